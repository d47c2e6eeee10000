// GPS CNAV-2 frames compared line by line with listings worked out from the layout.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "schemas/gps_cnav2/ExpectedListings.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "support/RealData.h"
#include "support/TreeChecks.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using namespace ZeltNavMsg::Testing::GpsCNav2Expected;

std::vector<std::string> decodeLines(const std::string& hex) {
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, hex);
    EXPECT_FALSE(text.ends_with("\n"));  // no line end after the last line
    return ZeltNavMsg::Testing::splitLines(text);
}

// Line-by-line comparison, so that a failure names the first differing line.
void expectLines(const std::vector<std::string>& got, const std::vector<std::string>& expected) {
    for (std::size_t i = 0; i < std::min(got.size(), expected.size()); ++i) {
        ASSERT_EQ(got[i], expected[i]) << "line " << i + 1;
    }
    EXPECT_EQ(got.size(), expected.size());
}

std::vector<std::string> fromSubframe3(const std::vector<std::string>& lines) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] == "\tSubframe 3") {
            return {lines.begin() + static_cast<std::ptrdiff_t>(i), lines.end()};
        }
    }
    ADD_FAILURE() << "no subframe 3";
    return {};
}

TEST(GpsCNav2Listing, AllZeroFrame) {
    expectLines(decodeLines(std::string(221, '0')), kAllZero);
}

TEST(GpsCNav2Listing, AllOnesFrame) {
    expectLines(decodeLines(std::string(220, 'F') + "E"), kAllOnes);
    // The bit past the 883rd of the last digit is not part of the frame.
    expectLines(decodeLines(std::string(221, 'F')), kAllOnes);
}

TEST(GpsCNav2Listing, SignBitOnlyFrame) {
    expectLines(decodeLines(kSignBitHex), kSignBitOnly);
}

struct PageCase {
    int page;
    const std::string& hex;
    const std::vector<std::string>& expected;
};

TEST(GpsCNav2Listing, EveryPageAndUnknownOnes) {
    const PageCase cases[] = {
        {1, kPage1Hex, kPage1Subframe3}, {2, kPage2Hex, kPage2Subframe3},
        {3, kPage3Hex, kPage3Subframe3}, {4, kPage4Hex, kPage4Subframe3},
        {5, kPage5Hex, kPage5Subframe3}, {6, kPage6Hex, kPage6Subframe3},
        {7, kPage7Hex, kPage7Subframe3}, {0, kPage0Hex, kPage0Subframe3},
        {8, kPage8Hex, kPage8Subframe3}, {63, kPage63Hex, kPage63Subframe3},
    };
    for (const PageCase& c : cases) {
        SCOPED_TRACE("page " + std::to_string(c.page));
        expectLines(fromSubframe3(decodeLines(c.hex)), c.expected);
    }
    EXPECT_EQ(kPage0Subframe3.size(), 4U);  // PRN, Page ID and CRC only
}

TEST(GpsCNav2Listing, InputLengthDoesNotMatter) {
    // Shorter input: the missing bits are zero. Longer: the extra bits are ignored.
    const std::string page3 = kPage3Hex;
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, page3);
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, page3 + page3), text);
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, page3.substr(0, 150)),
              NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0,
                                        page3.substr(0, 150) + std::string(71, '0')));
    // Subframe and page numbers are not looked at.
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::GpsCNav2, -5, 99, page3), text);
    // One digit of input still lists the whole frame.
    EXPECT_EQ(ZeltNavMsg::Testing::splitLines(
                  NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, "0")),
              kAllZero);
}

TEST(GpsCNav2Listing, EveryStructureIsTiledByItsMembers) {
    const auto& frame = ZeltNavMsg::GpsCNav2::gpsCNav2FrameDef();
    EXPECT_EQ(frame.totalBitsCount(), 883);
    ZeltNavMsg::Testing::expectTiled(frame);
}

}  // namespace
