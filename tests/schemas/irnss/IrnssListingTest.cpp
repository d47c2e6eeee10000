// IRNSS L5 subframes compared line by line with listings worked out from the layout
// (tests/data/listings/irnss, see the README there), and the variant selection.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "schemas/irnss/SubframeDef.h"
#include "support/RealData.h"
#include "support/TreeChecks.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::ExpectedListing;

std::string decode(const std::string& hex) {
    return NavMessageDecoder::Decode(MessageFormat::Irnss, 0, 0, hex);
}

std::vector<std::string> decodeLines(const std::string& hex) {
    const std::string text = decode(hex);
    EXPECT_FALSE(text.ends_with("\n"));  // no line end after the last line
    return ZeltNavMsg::Testing::splitLines(text);
}

ExpectedListing expected(const std::string& name) {
    return ZeltNavMsg::Testing::loadExpectedListing("irnss/" + name + ".txt");
}

// Line by line, so that a failure names the first line that differs.
void expectListing(const std::string& name) {
    SCOPED_TRACE(name);
    const ExpectedListing listing = expected(name);
    ASSERT_EQ(listing.hex.size(), 73U);
    const std::vector<std::string> got = decodeLines(listing.hex);
    for (std::size_t i = 0; i < std::min(got.size(), listing.lines.size()); ++i) {
        ASSERT_EQ(got[i], listing.lines[i]) << "line " << i + 1;
    }
    EXPECT_EQ(got.size(), listing.lines.size());
}

// Sets `count` bits from `first` (bit 0 = most significant bit of the first digit).
std::string withBits(std::string hex, int first, int count, unsigned value) {
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<std::size_t>((first + i) / 4);
        const int mask = 8 >> ((first + i) % 4);
        int digit = std::stoi(hex.substr(at, 1), nullptr, 16);
        digit = ((value >> (count - 1 - i)) & 1U) != 0 ? (digit | mask) : (digit & ~mask);
        hex[at] = "0123456789ABCDEF"[digit];
    }
    return hex;
}

constexpr int kSubframeIdBit = 27;
constexpr int kMessageIdBit = 30;

TEST(IrnssListing, EveryContainerAndMessageType) {
    for (const std::string kind :
         {"subframe-1", "subframe-2", "message-5", "message-7", "message-9", "message-11",
          "message-14", "message-18", "message-26"}) {
        expectListing(kind);
        expectListing("sign-bit-" + kind);  // the most negative value of every field
    }
    for (const char* name : {"all-zero", "all-ones", "message-0", "message-63"}) {
        expectListing(name);
    }
    // Missing bits read as zero; subframe and page numbers are not looked at.
    EXPECT_EQ(decodeLines("0"), expected("all-zero").lines);
    const std::string hex = expected("message-26").hex;
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::Irnss, 4, 17, hex), decode(hex));
}

// Subframes 3 and 4 (IDs 2 and 3) carry the same message data; the listings above
// hold both. The same bits as subframe 4 and 3 differ in the ID line alone.
TEST(IrnssListing, SubframeIds2And3ShowTheMessage) {
    const std::string message7 = expected("message-7").hex;
    std::vector<std::string> subframe3 = decodeLines(withBits(message7, kSubframeIdBit, 2, 2));
    const std::vector<std::string> subframe4 =
        decodeLines(withBits(message7, kSubframeIdBit, 2, 3));
    EXPECT_EQ(subframe4, expected("message-7").lines);
    ASSERT_EQ(subframe3.size(), subframe4.size());
    EXPECT_EQ(subframe3[5], "\tSubframe ID: 2");
    subframe3[5] = subframe4[5];
    EXPECT_EQ(subframe3, subframe4);
}

// A message type without a layout (including the null message 0) shows its ID and
// the PRN only, whatever the body bits hold.
TEST(IrnssListing, UnknownMessageShowsIdAndPrnOnly) {
    const std::string body = expected("message-9").hex;
    for (const unsigned id : {0U, 1U, 6U, 8U, 10U, 17U, 19U, 25U, 27U, 63U}) {
        SCOPED_TRACE(id);
        const std::vector<std::string> lines = decodeLines(withBits(body, kMessageIdBit, 6, id));
        ASSERT_EQ(lines.size(), 10U);
        EXPECT_EQ(lines[6], "\tSubframe specific data");
        EXPECT_TRUE(lines[7].starts_with("\t\tMessage ID: " + std::to_string(id) + ", Raw hex:"));
        EXPECT_TRUE(lines[8].starts_with("\t\tPRN ID: "));
        EXPECT_TRUE(lines[9].starts_with("\tCRC: "));
    }
}

TEST(IrnssListing, EveryStructureIsTiledByItsMembers) {
    const auto& subframe = ZeltNavMsg::Irnss::irnssSubframeDef();
    EXPECT_EQ(subframe.totalBitsCount(), 292);
    EXPECT_EQ(&subframe, &ZeltNavMsg::Irnss::irnssSubframeDef());  // built once
    ZeltNavMsg::Testing::expectTiled(subframe);
}

}  // namespace
