// B-CNAV2 frames compared line by line with listings worked out from the layout
// (tests/data/listings/beidou_cnav2, see the README there), and single fields set by
// hand at their frame positions.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "schemas/beidou_cnav2/FrameDef.h"
#include "support/RealData.h"
#include "support/SubframeBits.h"
#include "support/TreeChecks.h"

namespace {

using ZeltNavMsg::Testing::expectSameLines;

std::vector<std::string> decodeLines(const std::string& hex) {
    return ZeltNavMsg::Testing::decodeTreeLines(ZeltNavMsg::MessageFormat::BeidouCNav2, hex);
}

ZeltNavMsg::Testing::ExpectedListing expected(const std::string& name) {
    return ZeltNavMsg::Testing::loadExpectedListing("beidou_cnav2/" + name + ".txt");
}

// Frame bits as `SubframeBits` numbers them, from 1.
constexpr int kMesType = 7;   // 6 bits
constexpr int kPayload = 31;  // first bit of the message data
ZeltNavMsg::Testing::SubframeBits frame() {
    return ZeltNavMsg::Testing::SubframeBits(288);
}

TEST(BeidouCNav2Listing, EveryMessageTypeUnknownOnesAndExtremes) {
    for (const char* name : {"message-10", "message-11", "message-30", "message-31", "message-32",
                             "message-33", "message-34", "message-40", "message-0", "message-12",
                             "message-35", "message-63", "all-zero", "all-ones"}) {
        SCOPED_TRACE(name);
        const auto listing = expected(name);
        expectSameLines(decodeLines(listing.hex), listing.lines);
    }
    // Input past the 288th bit is ignored, missing input reads as zero bits, and the
    // subframe and page numbers are not looked at.
    const std::string hex = expected("message-31").hex;
    EXPECT_EQ(decodeLines(hex + "FFFF"), decodeLines(hex));
    EXPECT_EQ(decodeLines("0"), expected("all-zero").lines);
    EXPECT_EQ(
        ZeltNavMsg::NavMessageDecoder::Decode(ZeltNavMsg::MessageFormat::BeidouCNav2, 3, -1, hex),
        ZeltNavMsg::NavMessageDecoder::Decode(ZeltNavMsg::MessageFormat::BeidouCNav2, 0, 0, hex));
}

TEST(BeidouCNav2Listing, SecondsOfWeekCountThreeSeconds) {
    EXPECT_EQ(decodeLines(frame().put(13, 18, 100000).hex()),
              (std::vector<std::string>{"B-CNAV2 Frame", "\tPRN: 0, Raw hex:00",
                                        "\tMesType: 0, Raw hex:00", "\tSOW: 300000, Raw hex:186A0",
                                        "\tCRC: 000000"}));
}

// The integrity flags and SISMAI list at the message's own level, right after the
// week, with no heading of their own.
TEST(BeidouCNav2Listing, CommonFieldsHaveNoHeading) {
    const std::vector<std::string> lines =
        decodeLines(frame()
                        .put(kMesType, 6, 10)
                        .put(kPayload, 13, 1052)
                        .put(kPayload + 13, 10, 0b101'1001'110U)  // B2a flags, SISMAI 9, B1C flags
                        .hex());
    ASSERT_GT(lines.size(), 14U);
    expectSameLines({lines.begin() + 4, lines.begin() + 14},
                    {"\tMessage type 10 data", "\t\tWN: 1052, Raw hex:041C", "\t\tDIF (B2a): 1",
                     "\t\tSIF (B2a): 0", "\t\tAIF (B2a): 1", "\t\tSISMAI: 9", "\t\tDIF (B1C): 1",
                     "\t\tSIF (B1C): 1", "\t\tAIF (B1C): 0", "\t\tIODE: 0, Raw hex:00"});
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& l) { return l.find("Common") != l.npos; }),
              0);
}

// The first BDGIM coefficient, 10 unsigned bits in 1/8 TECu, at its largest.
TEST(BeidouCNav2Listing, IonosphericAlpha1AllOnes) {
    const std::vector<std::string> lines =
        decodeLines(frame().put(kMesType, 6, 30).put(kPayload + 115, 10, 0x3FF).hex());
    const auto at =
        std::find(lines.begin(), lines.end(), "\t\tIonospheric delay correction model parameters");
    ASSERT_LT(at + 2, lines.end());
    EXPECT_EQ(at[1], "\t\t\talpha1: 127.875 TECu, Raw hex:3FF");
    EXPECT_EQ(at[2], "\t\t\talpha2: 0 TECu, Raw hex:00");
}

TEST(BeidouCNav2Listing, FrameIsTiledForEveryMessageType) {
    const auto& root = ZeltNavMsg::BeidouCNav2::beidouCNav2FrameDef();
    EXPECT_EQ(root.totalBitsCount(), 288);
    ZeltNavMsg::Testing::expectTiled(root);
}

}  // namespace
