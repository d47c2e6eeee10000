// BeiDou D1 and D2 listings compared line by line with text worked out by hand from
// the field tables. Each test writes the decoded-layout bits, codes them into the
// broadcast form with the test's own BCH and interleaving, and decodes that.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/BeidouWords.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::encodeBeidou;
using ZeltNavMsg::Testing::SubframeBits;

std::string joinCrlf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

// Preamble 0x712, the 4 bits after it (never printed) all ones, subframe id and
// seconds of week split 8 + 12 over words 1 and 2.
SubframeBits commonWords(unsigned fraid, unsigned sow) {
    SubframeBits s;
    s.put(1, 11, 0x712).put(12, 4, 0xF).put(16, 3, fraid);
    s.put(19, 8, sow >> 12).put(31, 12, sow & 0xFFF);
    return s;
}

std::string decode(MessageFormat format, int subframe, int page, const SubframeBits& decoded) {
    return NavMessageDecoder::Decode(format, subframe, page, encodeBeidou(decoded).hex());
}

TEST(BeidouListing, D1Subframe2) {
    SubframeBits s = commonWords(2, 345606);       // 0x54606
    s.put(43, 10, 0x200).put(61, 6, 0x01);         // deltan 0x8001
    s.put(67, 16, 0xFFFF).put(91, 2, 0x3);         // cuc 0x3FFFF
    s.put(93, 20, 0x80000).put(121, 12, 0);        // m0 0x80000000
    s.put(133, 10, 0x3FF).put(151, 22, 0x3FFFFF);  // e 0xFFFFFFFF
    s.put(181, 18, 0x1FFFF);                       // cus
    s.put(199, 4, 0x8).put(211, 14, 0);            // crc 0x20000
    s.put(225, 8, 0x48).put(241, 10, 0x345);       // crs 0x12345
    s.put(251, 12, 0xA1B).put(271, 20, 0x2C3D4);   // sqrta 0xA1B2C3D4
    s.put(291, 2, 2);                              // toe_1

    const std::vector<std::string> expected = {
        "Subframe: 2",
        "",                             // group 0 -> 1; no raw pass
        "                 pre: 0x712",  // flag 0x08: no decimal for 11 bits
        "               fraid: 0x2 2",
        "                 sow: 0x54606 345606 seconds",
        "",                                                     // group 1 -> 0
        "              deltan: 0x8001 -3.72518e-09 pi/second",  // -32767 x 1.13686837722e-13
        "                 cuc: 0x3FFFF -4.65661e-10 radians",
        "                  m0: 0x80000000 -1 pi",  // -2^31 x 4.65661287308e-10
        "                   e: 0xFFFFFFFF 0.5",    // no units
        "                 cus: 0x1FFFF 6.10347e-05 radians",
        "                 crc: 0x20000 -2048 meters",
        "                 crs: 0x12345 1165.08 meters",  // 74565 / 64
        "               sqrta: 0xA1B2C3D4 5174.35 meters^(-2)",
        "               toe_1: 0x2 2 2 MSB here, 15 LSB in Subframe 3",
    };
    EXPECT_EQ(decode(MessageFormat::BeidouD1, 2, 0, s), joinCrlf(expected));
}

SubframeBits d2Page1() {
    SubframeBits s = commonWords(1, 604799);  // 0x93A7F
    s.put(43, 4, 1).put(47, 1, 1).put(48, 5, 0x1F);
    s.put(61, 4, 0xA).put(65, 13, 0x1FFF);
    s.put(78, 5, 0x10).put(91, 12, 0);  // toc 0x10000
    s.put(103, 10, 0x200).put(121, 10, 0x1FF).put(131, 12, 0xFFF);
    for (int k = 6; k <= 10; ++k) {
        s.put(30 * (k - 1) + 1, 22, 0x3FFFFF);  // nothing of page 1 lives here
    }
    return s;
}

TEST(BeidouListing, D2Subframe1Page1) {
    const std::vector<std::string> expected = {
        "Subframe: 1 Page: 1",
        "",
        "                 pre: 0x712",
        "               fraid: 0x1 1",
        "                 sow: 0x93A7F 604799 seconds",
        "                pnum: 0x1 1",  // subframe 1 entry without a page: any page
        "",
        "               sath1: 1",  // one bit: no hex
        "                iodc: 0x1F 31",
        "                urai: 0xA 10",
        "                  wn: 0x1FFF 8191 weeks",
        "                 toc: 0x10000 -524288 seconds",  // 17-bit two's complement x 8
        "                tgd1: 0x200 -51.2 nanoseconds",
        "                tgd2: 0x1FF 51.1 nanoseconds",
    };
    EXPECT_EQ(decode(MessageFormat::BeidouD2, 1, 1, d2Page1()), joinCrlf(expected));
}

// Page 11 of subframe 1 has no layout: the common words and the page number remain.
TEST(BeidouListing, D2PageWithoutLayoutPrintsCommonFieldsOnly) {
    const std::vector<std::string> expected = {
        "Subframe: 1 Page: 11",
        "",
        "                 pre: 0x712",
        "               fraid: 0x1 1",
        "                 sow: 0x93A7F 604799 seconds",
        "                pnum: 0x1 1",
    };
    EXPECT_EQ(decode(MessageFormat::BeidouD2, 1, 11, d2Page1()), joinCrlf(expected));
}

}  // namespace
