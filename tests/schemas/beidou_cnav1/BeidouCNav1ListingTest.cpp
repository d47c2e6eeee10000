// B-CNAV1 frames compared line by line with listings worked out from the layout
// (tests/data/listings/beidou_cnav1, see the README there), and single fields set by
// hand at their frame positions.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "schemas/beidou_cnav1/FrameDef.h"
#include "support/RealData.h"
#include "support/SubframeBits.h"
#include "support/TreeChecks.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::ExpectedListing;

// Frame bits numbered from 0; `SubframeBits` counts from 1.
class FrameBits {
  public:
    FrameBits& put(int first, int length, std::uint64_t value) {
        bits_.put(first + 1, length, value);
        return *this;
    }
    [[nodiscard]] std::string hex() const { return bits_.hex(); }

  private:
    ZeltNavMsg::Testing::SubframeBits bits_{878};
};

constexpr int kSubframe3 = 614;        // first bit of subframe 3: "Page ID", 6 bits
constexpr int kPage = kSubframe3 + 6;  // first bit of the page data

std::vector<std::string> decodeLines(const std::string& hex) {
    const std::string text = NavMessageDecoder::Decode(MessageFormat::BeidouCNav1, 0, 0, hex);
    EXPECT_FALSE(text.ends_with("\n"));
    return ZeltNavMsg::Testing::splitLines(text);
}

void expectLines(const std::vector<std::string>& got, const std::vector<std::string>& expected) {
    for (std::size_t i = 0; i < std::min(got.size(), expected.size()); ++i) {
        ASSERT_EQ(got[i], expected[i]) << "line " << i + 1;
    }
    EXPECT_EQ(got.size(), expected.size());
}

ExpectedListing expected(const std::string& name) {
    return ZeltNavMsg::Testing::loadExpectedListing("beidou_cnav1/" + name + ".txt");
}

// The lines from "\tSubframe 3" to the end.
std::vector<std::string> subframe3(const std::vector<std::string>& lines) {
    const auto at = std::find(lines.begin(), lines.end(), "\tSubframe 3");
    return {at, lines.end()};
}

TEST(BeidouCNav1Listing, EveryPageAndUnknownOnes) {
    for (const char* name :
         {"page-1", "page-2", "page-3", "page-4", "page-0", "page-5", "page-63", "page-2-zero"}) {
        SCOPED_TRACE(name);
        const ExpectedListing listing = expected(name);
        expectLines(decodeLines(listing.hex), listing.lines);
    }
}

TEST(BeidouCNav1Listing, ExtremeFrames) {
    for (const char* name : {"all-zero", "all-ones"}) {
        SCOPED_TRACE(name);
        const ExpectedListing listing = expected(name);
        expectLines(decodeLines(listing.hex), listing.lines);
    }
    // 220 digits carry two bits past the 878th; they are not part of the frame.
    expectLines(decodeLines(std::string(220, 'F')), expected("all-ones").lines);
}

// A page number without a layout: subframe 3 lists its page number and CRC only.
TEST(BeidouCNav1Listing, UnknownPageShowsNoPage) {
    for (const std::uint64_t page : {0U, 5U, 6U, 31U, 63U}) {
        FrameBits bits;
        bits.put(kSubframe3, 6, page).put(kSubframe3 + 240, 24, 0xABCDEF);
        const std::string pageHex =
            std::string(1, "0123456789ABCDEF"[page >> 4]) + "0123456789ABCDEF"[page & 15];
        expectLines(
            subframe3(decodeLines(bits.hex())),
            {"\tSubframe 3", "\t\tPage ID: " + std::to_string(page) + ", Raw hex:" + pageHex,
             "\t\tCRC: ABCDEF"});
    }
}

TEST(BeidouCNav1Listing, SecondsOfHourCountEighteenSeconds) {
    const std::vector<std::string> lines = decodeLines(FrameBits().put(6, 8, 200).hex());
    ASSERT_GE(lines.size(), 4U);
    EXPECT_EQ(lines[1], "\tSubframe 1");
    EXPECT_EQ(lines[2], "\t\tPRN: 0, Raw hex:00");
    EXPECT_EQ(lines[3], "\t\tSOH: 3600, Raw hex:C8");
}

// The first BDGIM coefficient, 10 unsigned bits in 1/8 TECu, at its largest.
TEST(BeidouCNav1Listing, IonosphericAlpha1AllOnes) {
    const int iono = kPage + 36;  // in page 1
    const std::vector<std::string> lines =
        decodeLines(FrameBits().put(kSubframe3, 6, 1).put(iono, 10, 0x3FF).hex());
    const auto at = std::find(lines.begin(), lines.end(),
                              "\t\t\tIonospheric delay correction model parameters");
    ASSERT_NE(at, lines.end());
    EXPECT_EQ(*(at + 1), "\t\t\t\talpha1: 127.875 TECu, Raw hex:3FF");
    EXPECT_EQ(*(at + 2), "\t\t\t\talpha2: 0 TECu, Raw hex:00");
}

TEST(BeidouCNav1Listing, InputLengthAndNumbersDoNotMatter) {
    const std::string hex = expected("page-3").hex;
    const std::string text = NavMessageDecoder::Decode(MessageFormat::BeidouCNav1, 0, 0, hex);
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::BeidouCNav1, 0, 0, hex + hex), text);
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::BeidouCNav1, 0, 0, hex.substr(0, 100)),
              NavMessageDecoder::Decode(MessageFormat::BeidouCNav1, 0, 0,
                                        hex.substr(0, 100) + std::string(120, '0')));
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::BeidouCNav1, 3, 4, hex), text);
    // One digit of input still lists the whole frame.
    expectLines(decodeLines("0"), expected("all-zero").lines);
}

TEST(BeidouCNav1Listing, FrameIsTiledForEveryPage) {
    const auto& frame = ZeltNavMsg::BeidouCNav1::beidouCNav1FrameDef();
    EXPECT_EQ(frame.totalBitsCount(), 878);
    ZeltNavMsg::Testing::expectTiled(frame);
}

}  // namespace
