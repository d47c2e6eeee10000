// GPS CNAV-2 frames compared line by line with listings worked out from the layout
// (tests/data/listings/gps_cnav2, see the README there).

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "schemas/gps_cnav2/FrameDef.h"
#include "support/RealData.h"
#include "support/TreeChecks.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::ExpectedListing;

std::vector<std::string> decodeLines(const std::string& hex) {
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, hex);
    EXPECT_FALSE(text.ends_with("\n"));  // no line end after the last line
    return ZeltNavMsg::Testing::splitLines(text);
}

// Line by line, so that a failure names the first line that differs.
void expectLines(const std::vector<std::string>& got, const std::vector<std::string>& expected) {
    for (std::size_t i = 0; i < std::min(got.size(), expected.size()); ++i) {
        ASSERT_EQ(got[i], expected[i]) << "line " << i + 1;
    }
    EXPECT_EQ(got.size(), expected.size());
}

ExpectedListing expected(const std::string& name) {
    return ZeltNavMsg::Testing::loadExpectedListing("gps_cnav2/" + name + ".txt");
}

TEST(GpsCNav2Listing, ExtremeFrames) {
    for (const char* name : {"all-zero", "all-ones", "sign-bit-only"}) {
        SCOPED_TRACE(name);
        const ExpectedListing listing = expected(name);
        expectLines(decodeLines(listing.hex), listing.lines);
    }
    // The bit past the 883rd in the last digit is not part of the frame.
    expectLines(decodeLines(std::string(221, 'F')), expected("all-ones").lines);
}

TEST(GpsCNav2Listing, EveryPageAndUnknownOnes) {
    for (const int page : {1, 2, 3, 4, 5, 6, 7, 0, 8, 63}) {
        SCOPED_TRACE("page " + std::to_string(page));
        const ExpectedListing listing = expected("page-" + std::to_string(page));
        expectLines(decodeLines(listing.hex), listing.lines);
    }
    // An unknown page shows PRN, Page ID and CRC only.
    const std::vector<std::string> lines = decodeLines(expected("page-8").hex);
    ASSERT_GE(lines.size(), 4U);
    EXPECT_EQ(lines[lines.size() - 4], "\tSubframe 3");
    EXPECT_TRUE(lines[lines.size() - 3].starts_with("\t\tPRN: "));
    EXPECT_EQ(lines[lines.size() - 2], "\t\tPage ID: 8, Raw hex:08");
    EXPECT_TRUE(lines.back().starts_with("\t\tCRC: "));
}

TEST(GpsCNav2Listing, InputLengthDoesNotMatter) {
    // Shorter input: the missing bits are zero. Longer: the extra bits are ignored.
    const std::string page3 = expected("page-3").hex;
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, page3);
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, page3 + page3), text);
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0, page3.substr(0, 150)),
              NavMessageDecoder::Decode(MessageFormat::GpsCNav2, 0, 0,
                                        page3.substr(0, 150) + std::string(71, '0')));
    // Subframe and page numbers are not looked at.
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::GpsCNav2, -5, 99, page3), text);
    // One digit of input still lists the whole frame.
    expectLines(decodeLines("0"), expected("all-zero").lines);
}

TEST(GpsCNav2Listing, EveryStructureIsTiledByItsMembers) {
    const auto& frame = ZeltNavMsg::GpsCNav2::gpsCNav2FrameDef();
    EXPECT_EQ(frame.totalBitsCount(), 883);
    ZeltNavMsg::Testing::expectTiled(frame);
}

}  // namespace
