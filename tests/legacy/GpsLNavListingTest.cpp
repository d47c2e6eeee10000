// GPS LNAV listings compared line by line with text worked out by hand from the
// field table: names right-aligned in 20 columns, hex digits = ceil(width / 4),
// "%g" of raw x scale, the group and pass separators.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/SubframeBits.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::SubframeBits;

std::string joinCrlf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

// TLM and HOW with all parity bits zero, so no word is inverted: preamble 0x8B,
// TLM message 0x0ABC, integrity flag 1, TOW count 100000, A-S flag 1.
SubframeBits tlmAndHow(unsigned subframeId) {
    SubframeBits s;
    s.put(1, 8, 0x8B).put(9, 14, 0x0ABC).put(23, 1, 1);
    s.put(31, 17, 100000).put(48, 1, 0).put(49, 1, 1).put(50, 3, subframeId);
    return s;
}

const std::vector<std::string> kTlmAndHowLines = {
    "            preamble: 0x8B",  // flag 0x08: no decimal for a multi-bit field
    "             tlm_res: 0x0ABC 2748",
    "            isf_flag: 1",  // one bit: no hex
    "           tow_count: 0x186A0 100000",
    "          alert_flag: 0",
    "      antispoof_flag: 1",
};

TEST(GpsLNavListing, Subframe1) {
    SubframeBits s = tlmAndHow(1);
    s.put(61, 10, 0x3FF).put(71, 2, 2).put(73, 4, 15).put(77, 6, 0x21);
    s.put(83, 2, 2).put(211, 8, 0xAB);  // iodc: 2 MSBs in word 3, 8 LSBs in word 8
    s.put(91, 1, 1).put(92, 23, 0x123456).put(121, 24, 0xFFFFFF).put(151, 24, 0);
    s.put(181, 16, 0x8000).put(197, 8, 0x80).put(219, 16, 0xFFFF);
    s.put(241, 8, 0x7F).put(249, 16, 0xFFFF).put(271, 22, 0x200000);

    std::vector<std::string> expected = {
        "Subframe: 1",
        "",  // group 0 -> 1 before the raw words
        "              Word 1: 0x22CABC80",
        "              Word 2: 0x30D40900",
        "              Word 3: 0x3FFBE180",
        "              Word 4: 0x248D1580",
        "              Word 5: 0x3FFFFFC0",
        "              Word 6: 0x00000000",
        "              Word 7: 0x20002000",
        "              Word 8: 0x2AFFFFC0",
        "              Word 9: 0x1FFFFFC0",
        "             Word 10: 0x20000000",
        "",  // between the raw and the decoded pass
    };
    expected.insert(expected.end(), kTlmAndHowLines.begin(), kTlmAndHowLines.end());
    const std::vector<std::string> subframe1 = {
        "         subframe_id: 0x1 1",
        "                  wn: 0x3FF 1023",
        "                 cap: 0x2 2",
        "                 ura: 0xF 15",
        "           sv_health: 0x21 33",
        "                iodc: 0x2AB 683",
        "                 l2p: 1",
        "               word4: 0x123456 1193046",
        "               word5: 0xFFFFFF 16777215",
        "               word6: 0x000000 0",
        "               word7: 0x8000 32768",
        "                 tgd: 0x80 -5.96046e-08 seconds",           // -128 x 4.65661287308e-10
        "                 toc: 0xFFFF 1.04856e+06 seconds",          // 65535 x 16
        "                 af2: 0x7F 3.52496e-15 seconds/second^2",   // 127 x 2.77555756156e-17
        "                 af1: 0xFFFF -1.13687e-13 seconds/second",  // -1 x 1.13686837722e-13
        "                 af0: 0x200000 -0.000976563 seconds",       // the decimal scale rounds up
    };
    expected.insert(expected.end(), subframe1.begin(), subframe1.end());

    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0, s.hex()), joinCrlf(expected));
}

TEST(GpsLNavListing, Subframe4Page18IonoAndUtc) {
    SubframeBits s = tlmAndHow(4);
    s.put(61, 2, 1).put(63, 6, 56);
    s.put(69, 8, 0x0C).put(77, 8, 0xFF).put(91, 8, 0x80).put(99, 8, 0x01);
    s.put(107, 8, 0x50).put(121, 8, 0xFE).put(129, 8, 0x7F).put(137, 8, 0x00);
    s.put(151, 24, 0xFFFFF6).put(181, 24, 0x800000).put(211, 8, 0x00);  // A0 = 0x80000000
    s.put(219, 8, 0x90).put(227, 8, 0xE3).put(241, 8, 0x12).put(249, 8, 0x89);
    s.put(257, 8, 7).put(271, 8, 0xED).put(279, 14, 0x2AAA);

    std::vector<std::string> expected = {
        "Subframe: 4 Page: 18",
        "",
        "              Word 1: 0x22CABC80",
        "              Word 2: 0x30D40C00",
        "              Word 3: 0x1E033FC0",
        "              Word 4: 0x20005400",
        "              Word 5: 0x3F9FC000",
        "              Word 6: 0x3FFFFD80",
        "              Word 7: 0x20000000",
        "              Word 8: 0x002438C0",
        "              Word 9: 0x04A241C0",
        "             Word 10: 0x3B6AAA00",
        "",
    };
    expected.insert(expected.end(), kTlmAndHowLines.begin(), kTlmAndHowLines.end());
    const std::vector<std::string> page18 = {
        "         subframe_id: 0x4 4",
        "             data_id: 0x1 1",  // subframe 4 entries without a page print for any page
        "               sv_id: 0x38 56",
        "               alfa0: 0x0C 1.11759e-08 seconds",
        "               alfa1: 0xFF -7.45058e-09 seconds/semi-circle",
        "               alfa2: 0x80 -7.62939e-06 seconds/(semi-circles^2)",
        "               alfa3: 0x01 5.96046e-08 seconds/(semi-circles^3)",
        "               beta0: 0x50 163840 seconds",
        "               beta1: 0xFE -32768 seconds/semi-circle",
        "               beta2: 0x7F 8.32307e+06 seconds/(semi-circles^2)",
        "               beta3: 0x00 0 seconds/(semi-circles^3)",
        "                  A1: 0xFFFFF6 -8.88178e-15 seconds/second",
        "                  A0: 0x80000000 -2 seconds",  // 32 bits: negative, whatever long is
        "                 tot: 0x90 589824 seconds",
        "                 wnt: 0xE3 227 weeks",
        "                dtls: 0x12 18 seconds",
        "               wnlsf: 0x89 137 weeks",
        "                  dn: 0x07 7 days",
        "               dtlsf: 0xED -19 seconds",
        "          reserved10: 0x2AAA",
    };
    expected.insert(expected.end(), page18.begin(), page18.end());

    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::GpsLNav, 4, 18, s.hex()),
              joinCrlf(expected));
}

// A page that maps to no layout keeps only the entries of every layout and those
// selected by the subframe number alone.
TEST(GpsLNavListing, UnmappedPagePrintsCommonWordsOnly) {
    const SubframeBits s = tlmAndHow(4);
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsLNav, 4, 26, s.hex());
    EXPECT_TRUE(text.starts_with("Subframe: 4 Page: 26\r\n\r\n              Word 1:"));
    EXPECT_TRUE(
        text.ends_with("         subframe_id: 0x4 4\r\n"
                       "             data_id: 0x0 0\r\n"
                       "               sv_id: 0x00 0\r\n"));
}

// Subframe 0 matches the entries whose own subframe is 0: the reserved words of
// layout 6 and the almanac of layout 12 both print.
TEST(GpsLNavListing, SubframeZeroTakesEveryLayoutWithoutSubframe) {
    const SubframeBits s = tlmAndHow(0);
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsLNav, 0, 0, s.hex());
    EXPECT_NE(text.find("           reserved1: 0x0000\r\n"), std::string::npos);
    EXPECT_NE(text.find("               sqrta: 0x000000 0 meters^-2\r\n"), std::string::npos);
    EXPECT_EQ(text.find("data_id"), std::string::npos);
    EXPECT_EQ(text.find("tgd"), std::string::npos);
}

TEST(GpsLNavListing, NegativePageIsNoPage) {
    const SubframeBits s = tlmAndHow(2);
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsLNav, 2, -3, s.hex());
    EXPECT_TRUE(text.starts_with("Subframe: 2\r\n"));
    EXPECT_NE(text.find("                iode:"), std::string::npos);
}

TEST(GpsLNavListing, Page17TextShowsCharacters) {
    SubframeBits s = tlmAndHow(4);
    s.put(69, 8, 'A').put(77, 8, 0x00).put(91, 8, '\n').put(99, 8, 0xFF);
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsLNav, 4, 17, s.hex());
    EXPECT_NE(text.find("\r\n                ch01: 0x41 65 'A'\r\n"), std::string::npos);
    // A NUL ends the formatted piece: the closing quote is lost with it.
    EXPECT_NE(text.find("\r\n                ch02: 0x00 0 '\r\n"), std::string::npos);
    // The line-end conversion reaches a newline character too.
    EXPECT_NE(text.find("\r\n                ch03: 0x0A 10 '\r\n'\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\n                ch04: 0xFF 255 '\xFF'\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\n            reserved: 0x00 0\r\n"), std::string::npos);
}

// With a word 1 ending in 1, the decoded pass shows word 2's data bits inverted; the
// decision for word 3 uses word 2 as received, not as corrected.
TEST(GpsLNavListing, DecodedPassUndoesInversionFromReceivedPredecessor) {
    SubframeBits s = tlmAndHow(1);
    s.put(30, 1, 1);  // D30 of word 1
    s.put(60, 1, 0);  // D30 of word 2 as received: word 3 stays as it is
    s.put(61, 10, 0x155);
    const std::string text = NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0, s.hex());
    // The raw pass shows word 2 as received.
    EXPECT_NE(text.find("              Word 2: 0x30D40900\r\n"), std::string::npos);
    // Decoded: TOW count 100000 (0x186A0) inverted over 17 bits is 0x0795F.
    EXPECT_NE(text.find("           tow_count: 0x0795F 31071\r\n"), std::string::npos);
    EXPECT_NE(text.find("          alert_flag: 1\r\n"), std::string::npos);
    EXPECT_NE(text.find("                  wn: 0x155 341\r\n"), std::string::npos);
}

}  // namespace
