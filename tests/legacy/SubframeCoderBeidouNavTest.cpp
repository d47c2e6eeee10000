// The BeiDou D1/D2 word coder: its unusual single-error rule, its word layouts, and
// real broadcasts, whose BCH parity the satellites computed.

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "api/HexInput.h"
#include "legacy/SubframeCoderBeidouNav.h"
#include "support/BeidouWords.h"
#include "support/RealData.h"

namespace {

using ZeltNavMsg::Legacy::subframe_t;
using ZeltNavMsg::Legacy::SubframeCoder;
using ZeltNavMsg::Legacy::SubframeCoderBeidouNav;
using ZeltNavMsg::Testing::bchCodeword;
using ZeltNavMsg::Testing::interleave;

const SubframeCoderBeidouNav kCoder{1};

// The correction rule clocked one register at a time, as it is worded: four one-bit
// registers fed least significant bit first and combined by OR, the syndrome looked
// up in T, and the bit it names set (not toggled) in a 32-bit register.
std::uint16_t decodeByTheRule(std::uint16_t codeword) {
    bool r0 = false;
    bool r1 = false;
    bool r2 = false;
    bool r3 = false;
    for (int i = 0; i < 15; ++i) {
        const bool bit = ((codeword >> i) & 1) != 0;
        const bool d = r3;
        r3 = r2;
        r2 = r1;
        r1 = r0 || d;
        r0 = bit || d;
    }
    const unsigned syndrome = (r3 ? 8U : 0U) + (r2 ? 4U : 0U) + (r1 ? 2U : 0U) + (r0 ? 1U : 0U);
    const std::uint32_t table[16] = {0x0000, 0x0001, 0x0002, 0x0010, 0x0004, 0x0100,
                                     0x0020, 0x0400, 0x0008, 0x4000, 0x0200, 0x0080,
                                     0x0040, 0x2000, 0x0800, 0x1000};
    std::uint32_t c = codeword;
    const std::uint32_t v = table[syndrome];
    if (v != 0) {
        c |= std::uint32_t{1} << ((v - 1) % 32);
    }
    return static_cast<std::uint16_t>((c >> 4) & 0x7FF);
}

subframe_t recordFromHex(const std::string& hex) {
    subframe_t sf;
    sf.bitCount = static_cast<std::int32_t>(hex.size() * 4);
    ZeltNavMsg::Detail::hexDigitsToBytes(hex, sf.data, sizeof sf.data);
    return sf;
}

subframe_t recordFromBits(const ZeltNavMsg::Testing::SubframeBits& bits) {
    return recordFromHex(bits.hex());
}

std::uint32_t word(const subframe_t& sf, int k) {
    return SubframeCoder::ReadWord(sf, 30 * (k - 1) + 1);
}

// Clean codewords of every information word and each of their 15 single-bit errors.
TEST(BeidouBchDecode, EverySingleBitErrorFollowsTheRule) {
    for (std::uint32_t info = 0; info < 2048; ++info) {
        const std::uint32_t clean = bchCodeword(info);
        EXPECT_EQ(SubframeCoderBeidouNav::BchDecode(static_cast<std::uint16_t>(clean)), info)
            << "clean codeword " << clean;
        for (int position = 0; position < 15; ++position) {
            const auto received = static_cast<std::uint16_t>(clean ^ (1U << position));
            ASSERT_EQ(SubframeCoderBeidouNav::BchDecode(received), decodeByTheRule(received))
                << "info " << info << " error at bit " << position;
        }
    }
}

// The OR registers saturate for almost every word, so the rule hardly ever corrects:
// an error in a parity bit is dropped with the parity, one in an information bit
// stays. The one word that ends with syndrome 8 (r3 alone) is 0x0800, the zero
// codeword with bit 11 in error: T[8] = 0x0008 sets bit 7, so it decodes to 0x088
// where a textbook corrector would give 0x000.
TEST(BeidouBchDecode, CorrectionRarelyReachesTheInformationBits) {
    EXPECT_EQ(SubframeCoderBeidouNav::BchDecode(0x0800), 0x088);
    const std::uint32_t clean = bchCodeword(0x5A3);
    EXPECT_EQ(SubframeCoderBeidouNav::BchDecode(static_cast<std::uint16_t>(clean ^ 0x4)), 0x5A3);
    EXPECT_EQ(SubframeCoderBeidouNav::BchDecode(static_cast<std::uint16_t>(clean ^ 0x100)),
              0x5A3 ^ 0x010);
}

TEST(SubframeCoderBeidouNav, EncodeWritesCodewordsInterleaved) {
    std::mt19937 random(11);
    for (int trial = 0; trial < 100; ++trial) {
        ZeltNavMsg::Testing::SubframeBits decoded;
        for (int bit = 1; bit <= 300; bit += 20) {
            decoded.put(bit, 20, random() & 0xFFFFFU);
        }
        subframe_t sf = recordFromBits(decoded);
        sf.data[37] |= 0x0F;  // bits 301-304
        EXPECT_FALSE(kCoder.Encode(sf));
        const subframe_t expected = recordFromBits(ZeltNavMsg::Testing::encodeBeidou(decoded));
        for (int k = 1; k <= 10; ++k) {
            EXPECT_EQ(word(sf, k), word(expected, k)) << "trial " << trial << " word " << k;
        }
        EXPECT_EQ(sf.data[37] & 0x0F, 0) << "bits past word 10 are cleared";

        EXPECT_FALSE(kCoder.Decode(sf));
        EXPECT_EQ(word(sf, 1), decoded.get(1, 26) << 4) << "trial " << trial;
        for (int k = 2; k <= 10; ++k) {
            EXPECT_EQ(word(sf, k), decoded.get(30 * (k - 1) + 1, 22) << 8)
                << "trial " << trial << " word " << k;
        }
    }
}

// Word 1 keeps its uncoded bits 1-15 and ends in four zeros; words 2-10 end in eight.
TEST(SubframeCoderBeidouNav, DecodeClearsTheParityPositions) {
    subframe_t sf;
    sf.bitCount = 300;
    std::memset(sf.data, 0xFF, sizeof sf.data);
    EXPECT_FALSE(kCoder.Decode(sf));
    EXPECT_EQ(word(sf, 1), 0x3FFFFFF0U);
    for (int k = 2; k <= 10; ++k) {
        EXPECT_EQ(word(sf, k), 0x3FFFFF00U) << "word " << k;
    }
    EXPECT_EQ(sf.data[37] & 0x0F, 0x0F) << "bits past word 10 are left alone";
}

// Decoding strips each codeword to its information bits; encoding them again must
// give back every word as the satellite sent it, parity and interleaving included.
TEST(SubframeCoderBeidouNav, EncodeRebuildsRealSubframes) {
    int count = 0;
    for (const char* file : {"beidou_d1.tsv", "beidou_d2.tsv"}) {
        for (const auto& m : ZeltNavMsg::Testing::loadRealData(file)) {
            const subframe_t received = recordFromHex(m.hex);
            subframe_t sf = received;
            EXPECT_FALSE(kCoder.Decode(sf)) << m.where;
            EXPECT_EQ(word(sf, 1) >> 15, word(received, 1) >> 15) << m.where;
            EXPECT_FALSE(kCoder.Encode(sf)) << m.where;
            for (int k = 1; k <= 10; ++k) {
                EXPECT_EQ(word(sf, k), word(received, k)) << m.where << " word " << k;
            }
            ++count;
        }
    }
    EXPECT_EQ(count, 84 + 148);
}

TEST(SubframeCoderBeidouNav, ShortRecordReportsEveryWordThatDoesNotFit) {
    subframe_t sf;
    sf.layoutId = 13;
    sf.bitCount = 240;  // words 9 and 10 do not fit
    std::memset(sf.data, 0xFF, sizeof sf.data);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(kCoder.Decode(sf));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "The data does not fit in the subframe 13: data 271, sf-length 241.\n"
              "The data does not fit in the subframe 13: data 301, sf-length 241.\n");
    EXPECT_EQ(word(sf, 8), 0x3FFFFF00U);
    EXPECT_EQ(word(sf, 9), 0x3FFFFFFFU) << "a word that does not fit is not written";

    // Encoding builds on a cleared copy: the words it cannot write come out zero.
    testing::internal::CaptureStderr();
    EXPECT_TRUE(kCoder.Encode(sf));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "The data does not fit in the subframe 13: data 271, sf-length 241.\n"
              "The data does not fit in the subframe 13: data 301, sf-length 241.\n");
    EXPECT_EQ(word(sf, 8), interleave(bchCodeword(0x7FF), bchCodeword(0x7FF)));
    EXPECT_EQ(word(sf, 9), 0U);
    EXPECT_EQ(word(sf, 10), 0U);
}

}  // namespace
