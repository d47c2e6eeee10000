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

namespace {

using ZeltNavMsg::Testing::expectSameLines;

std::vector<std::string> decodeLines(const std::string& hex) {
    return ZeltNavMsg::Testing::decodeTreeLines(ZeltNavMsg::MessageFormat::BeidouCNav1, hex);
}

ZeltNavMsg::Testing::ExpectedListing expected(const std::string& name) {
    return ZeltNavMsg::Testing::loadExpectedListing("beidou_cnav1/" + name + ".txt");
}

// Frame bits as `SubframeBits` numbers them, from 1.
constexpr int kPageId = 615;  // first bit of subframe 3: "Page ID", 6 bits
constexpr int kPage = 621;    // first bit of the page data
ZeltNavMsg::Testing::SubframeBits frame() {
    return ZeltNavMsg::Testing::SubframeBits(878);
}

TEST(BeidouCNav1Listing, EveryPageUnknownOnesAndExtremes) {
    for (const char* name : {"page-1", "page-2", "page-3", "page-4", "page-0", "page-5", "page-63",
                             "page-2-zero", "all-zero", "all-ones"}) {
        SCOPED_TRACE(name);
        const auto listing = expected(name);
        expectSameLines(decodeLines(listing.hex), listing.lines);
    }
    // 220 digits carry two bits past the 878th: they are not part of the frame. Missing
    // input reads as zero bits; the subframe and page numbers are not looked at.
    EXPECT_EQ(decodeLines(std::string(220, 'F')), expected("all-ones").lines);
    EXPECT_EQ(decodeLines("0"), expected("all-zero").lines);
    const std::string hex = expected("page-3").hex;
    EXPECT_EQ(
        ZeltNavMsg::NavMessageDecoder::Decode(ZeltNavMsg::MessageFormat::BeidouCNav1, 3, 4, hex),
        ZeltNavMsg::NavMessageDecoder::Decode(ZeltNavMsg::MessageFormat::BeidouCNav1, 0, 0, hex));
}

TEST(BeidouCNav1Listing, SecondsOfHourCountEighteenSeconds) {
    const std::vector<std::string> lines = decodeLines(frame().put(7, 8, 200).hex());
    ASSERT_GE(lines.size(), 4U);
    EXPECT_EQ(lines[1], "\tSubframe 1");
    EXPECT_EQ(lines[2], "\t\tPRN: 0, Raw hex:00");
    EXPECT_EQ(lines[3], "\t\tSOH: 3600, Raw hex:C8");
}

// The first BDGIM coefficient, 10 unsigned bits in 1/8 TECu, at its largest.
TEST(BeidouCNav1Listing, IonosphericAlpha1AllOnes) {
    const std::vector<std::string> lines =
        decodeLines(frame().put(kPageId, 6, 1).put(kPage + 36, 10, 0x3FF).hex());
    const auto at = std::find(lines.begin(), lines.end(),
                              "\t\t\tIonospheric delay correction model parameters");
    ASSERT_LT(at + 2, lines.end());
    EXPECT_EQ(at[1], "\t\t\t\talpha1: 127.875 TECu, Raw hex:3FF");
    EXPECT_EQ(at[2], "\t\t\t\talpha2: 0 TECu, Raw hex:00");
}

TEST(BeidouCNav1Listing, FrameIsTiledForEveryPage) {
    const auto& root = ZeltNavMsg::BeidouCNav1::beidouCNav1FrameDef();
    EXPECT_EQ(root.totalBitsCount(), 878);
    ZeltNavMsg::Testing::expectTiled(root);
}

}  // namespace
