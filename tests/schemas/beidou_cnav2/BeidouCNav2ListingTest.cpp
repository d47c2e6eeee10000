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
    ZeltNavMsg::Testing::SubframeBits bits_{288};
};

constexpr int kMesType = 6;   // 6 bits
constexpr int kPayload = 30;  // first bit of the message data

std::vector<std::string> decodeLines(const std::string& hex) {
    const std::string text = NavMessageDecoder::Decode(MessageFormat::BeidouCNav2, 0, 0, hex);
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
    return ZeltNavMsg::Testing::loadExpectedListing("beidou_cnav2/" + name + ".txt");
}

TEST(BeidouCNav2Listing, EveryMessageTypeAndUnknownOnes) {
    for (const int type : {10, 11, 30, 31, 32, 33, 34, 40, 0, 12, 35, 63}) {
        SCOPED_TRACE("message type " + std::to_string(type));
        const ExpectedListing listing = expected("message-" + std::to_string(type));
        expectLines(decodeLines(listing.hex), listing.lines);
    }
}

TEST(BeidouCNav2Listing, ExtremeFrames) {
    for (const char* name : {"all-zero", "all-ones"}) {
        SCOPED_TRACE(name);
        const ExpectedListing listing = expected(name);
        expectLines(decodeLines(listing.hex), listing.lines);
    }
}

// A type without a layout lists the frame's own fields only.
TEST(BeidouCNav2Listing, UnknownTypeShowsNoMessage) {
    for (const std::uint64_t type : {0U, 1U, 9U, 12U, 29U, 35U, 39U, 41U, 63U}) {
        const std::vector<std::string> lines =
            decodeLines(FrameBits().put(0, 6, 0x2C).put(kMesType, 6, type).hex());
        ASSERT_EQ(lines.size(), 5U) << type;
        EXPECT_EQ(lines[0], "B-CNAV2 Frame");
        EXPECT_EQ(lines[1], "\tPRN: 44, Raw hex:2C");
        EXPECT_TRUE(lines[2].starts_with("\tMesType: " + std::to_string(type) + ", Raw hex:"));
        EXPECT_EQ(lines[3], "\tSOW: 0, Raw hex:00000");
        EXPECT_EQ(lines[4], "\tCRC: 000000");
    }
}

TEST(BeidouCNav2Listing, SecondsOfWeekCountThreeSeconds) {
    const std::vector<std::string> lines = decodeLines(FrameBits().put(12, 18, 100000).hex());
    ASSERT_GE(lines.size(), 4U);
    EXPECT_EQ(lines[3], "\tSOW: 300000, Raw hex:186A0");
    // 18 bits all set: 262143 x 3.
    EXPECT_EQ(decodeLines(FrameBits().put(12, 18, 0x3FFFF).hex())[3],
              "\tSOW: 786429, Raw hex:3FFFF");
}

// The integrity flags and SISMAI list at the message's own level, right after the
// week, with no heading of their own.
TEST(BeidouCNav2Listing, CommonFieldsHaveNoHeading) {
    FrameBits bits;
    bits.put(kMesType, 6, 10)
        .put(kPayload, 13, 1052)                   // WN
        .put(kPayload + 13, 10, 0b101'1001'110U);  // B2a flags, SISMAI 9, B1C flags
    const std::vector<std::string> lines = decodeLines(bits.hex());
    const std::vector<std::string> head(lines.begin(), lines.begin() + 14);
    expectLines(head, {"B-CNAV2 Frame", "\tPRN: 0, Raw hex:00", "\tMesType: 10, Raw hex:0A",
                       "\tSOW: 0, Raw hex:00000", "\tMessage type 10 data",
                       "\t\tWN: 1052, Raw hex:041C", "\t\tDIF (B2a): 1", "\t\tSIF (B2a): 0",
                       "\t\tAIF (B2a): 1", "\t\tSISMAI: 9", "\t\tDIF (B1C): 1", "\t\tSIF (B1C): 1",
                       "\t\tAIF (B1C): 0", "\t\tIODE: 0, Raw hex:00"});
    for (const std::string& line : lines) {
        EXPECT_EQ(line.find("Common fields"), std::string::npos);
        EXPECT_FALSE(line.empty());
    }
}

// The first BDGIM coefficient, 10 unsigned bits in 1/8 TECu, at its largest.
TEST(BeidouCNav2Listing, IonosphericAlpha1AllOnes) {
    const int iono = kPayload + 115;  // in message type 30
    const std::vector<std::string> lines =
        decodeLines(FrameBits().put(kMesType, 6, 30).put(iono, 10, 0x3FF).hex());
    const auto at =
        std::find(lines.begin(), lines.end(), "\t\tIonospheric delay correction model parameters");
    ASSERT_NE(at, lines.end());
    EXPECT_EQ(*(at + 1), "\t\t\talpha1: 127.875 TECu, Raw hex:3FF");
    EXPECT_EQ(*(at + 2), "\t\t\talpha2: 0 TECu, Raw hex:00");
}

// Message 30's group delays have no scale: they list as signed counts.
TEST(BeidouCNav2Listing, Message30GroupDelaysAreRawCounts) {
    FrameBits bits;
    bits.put(kMesType, 6, 30)
        .put(kPayload + 91, 12, 0x800)    // TGDB2ap: most negative
        .put(kPayload + 103, 12, 0x7FF)   // ISCB2ad: most positive
        .put(kPayload + 189, 12, 0xFFF);  // TGDB1Cp: -1
    const auto lines = ZeltNavMsg::Testing::parseTreeListing(
        NavMessageDecoder::Decode(MessageFormat::BeidouCNav2, 0, 0, bits.hex()));
    const std::string m = "Message type 30 data/";
    ASSERT_EQ(lines.count(m + "TGDB2ap"), 1U);
    EXPECT_EQ(lines.find(m + "TGDB2ap")->second.value, "-2048");
    EXPECT_EQ(lines.find(m + "TGDB2ap")->second.units, "");
    EXPECT_EQ(lines.find(m + "TGDB2ap")->second.rawHex, "800");
    EXPECT_EQ(lines.find(m + "ISCB2ad")->second.value, "2047");
    EXPECT_EQ(lines.find(m + "TGDB1Cp")->second.value, "-1");
    EXPECT_EQ(lines.find(m + "TGDB1Cp")->second.rawHex, "FFF");
}

TEST(BeidouCNav2Listing, OnlyTheFirst288BitsCount) {
    const std::string hex = expected("message-31").hex;
    ASSERT_EQ(hex.size(), 72U);
    const std::string text = NavMessageDecoder::Decode(MessageFormat::BeidouCNav2, 0, 0, hex);
    // Longer input: the extra bits are ignored. Shorter: the missing bits are zero.
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::BeidouCNav2, 0, 0, hex + "FFFF"), text);
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::BeidouCNav2, 0, 0, hex.substr(0, 40)),
              NavMessageDecoder::Decode(MessageFormat::BeidouCNav2, 0, 0,
                                        hex.substr(0, 40) + std::string(32, '0')));
    // Subframe and page numbers are not looked at.
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::BeidouCNav2, 3, -1, hex), text);
}

TEST(BeidouCNav2Listing, FrameIsTiledForEveryMessageType) {
    const auto& frame = ZeltNavMsg::BeidouCNav2::beidouCNav2FrameDef();
    EXPECT_EQ(frame.totalBitsCount(), 288);
    ZeltNavMsg::Testing::expectTiled(frame);
}

}  // namespace
