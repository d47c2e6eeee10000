// The word coders: word access against the bit-by-bit definition, the LNAV parity and
// inversion rules, the BeiDou BCH rule as written, and real broadcasts, whose parity
// the satellites computed.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

#include "api/HexInput.h"
#include "legacy/SubframeCoderBeidouNav.h"
#include "legacy/SubframeCoderGpsLNav.h"
#include "support/RealData.h"
#include "support/SubframeBits.h"

namespace {

using namespace ZeltNavMsg::Legacy;
using namespace ZeltNavMsg::Testing;

const SubframeCoderGpsLNav kLNav{0};
const SubframeCoderBeidouNav kBeidou{1};
constexpr int kRecordBits = 8 * subframe_t::kDataBytes;

subframe_t recordFromHex(const std::string& hex) {
    subframe_t sf;
    sf.bitCount = static_cast<std::int32_t>(hex.size() * 4);
    ZeltNavMsg::Detail::hexDigitsToBytes(hex, sf.data, sizeof sf.data);
    return sf;
}

std::uint32_t word(const subframe_t& sf, int k) {
    return SubframeCoder::ReadWord(sf, 30 * (k - 1) + 1);
}

// Bit `bit` of the record, counted from 1; outside the record it reads 0 and is not set.
unsigned bitAt(const subframe_t& sf, int bit) {
    return bit < 1 || bit > kRecordBits ? 0U : (sf.data[(bit - 1) / 8] >> (7 - (bit - 1) % 8)) & 1U;
}
void setBit(subframe_t& sf, int bit, unsigned value) {
    if (bit >= 1 && bit <= kRecordBits) {
        const auto mask = static_cast<std::uint8_t>(0x80U >> ((bit - 1) % 8));
        std::uint8_t& byte = sf.data[(bit - 1) / 8];
        byte = static_cast<std::uint8_t>(value != 0 ? byte | mask : byte & ~mask);
    }
}

subframe_t randomRecord(std::mt19937& random, int bitCount) {
    subframe_t sf;
    sf.bitCount = bitCount;
    std::generate(std::begin(sf.data), std::end(sf.data),
                  [&] { return static_cast<std::uint8_t>(random()); });
    return sf;
}

// Words that hang over either end of the 304-bit record included.
TEST(SubframeWordAccess, ReadAndWriteMatchBitByBitAtEveryStart) {
    std::mt19937 random(11);
    for (int trial = 0; trial < 20; ++trial) {
        for (int firstBit = -40; firstBit <= kRecordBits + 40; ++firstBit) {
            subframe_t sf = randomRecord(random, 400);  // claims more bits than it holds
            std::uint32_t expectedWord = 0;
            for (int bit = firstBit; bit < firstBit + 30; ++bit) {
                expectedWord = (expectedWord << 1) | bitAt(sf, bit);
            }
            ASSERT_EQ(SubframeCoder::ReadWord(sf, firstBit), expectedWord) << firstBit;
            const auto value = static_cast<std::uint32_t>(random());
            subframe_t expected = sf;
            for (int i = 0; i < 30; ++i) {
                setBit(expected, firstBit + i, (value >> (29 - i)) & 1U);
            }
            ASSERT_FALSE(SubframeCoder::WriteWord(sf, firstBit, value));
            ASSERT_EQ(std::memcmp(sf.data, expected.data, sizeof sf.data), 0) << firstBit;
        }
    }
}

// A word is written only when it ends at or before bit sf.bitCount; otherwise the
// record is left as it was, one line goes to standard error and the result is true.
TEST(SubframeWordAccess, WriteWordHonoursTheBitCount) {
    std::mt19937 random(13);
    for (const int bitCount : {0, 29, 30, 31, 59, 60, 150, 270, 299, 300, 304}) {
        int refused = 0;
        testing::internal::CaptureStderr();
        for (int firstBit = 1; firstBit <= 300; ++firstBit) {
            subframe_t sf = randomRecord(random, bitCount);
            const subframe_t before = sf;
            const bool fits = firstBit + 29 <= bitCount;
            EXPECT_EQ(SubframeCoder::WriteWord(sf, firstBit, ~before.data[0]), !fits)
                << bitCount << " bits, first bit " << firstBit;
            if (!fits) {
                ++refused;
                EXPECT_EQ(std::memcmp(sf.data, before.data, sizeof sf.data), 0) << firstBit;
            }
        }
        const std::string messages = testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::count(messages.begin(), messages.end(), '\n'), refused);
        EXPECT_EQ(refused, bitCount >= 30 ? 300 - (bitCount - 29) : 300);
    }
}

// Decoding strips the inversions or codewords; encoding the result must rebuild every
// received word. LNAV word 1 starts from D29* = D30* = 0, which the previous subframe's
// word 10 guarantees, and the t bits of words 2 and 10 come out as sent.
TEST(SubframeCoder, EncodeRebuildsRealSubframes) {
    int count = 0;
    for (const char* file : {"gps_lnav.tsv", "qzss_lnav.tsv", "beidou_d1.tsv", "beidou_d2.tsv"}) {
        const SubframeCoder& coder = std::string(file).starts_with("beidou")
                                         ? static_cast<const SubframeCoder&>(kBeidou)
                                         : kLNav;
        for (const RealMessage& m : loadRealData(file)) {
            const subframe_t received = recordFromHex(m.hex);
            subframe_t sf = received;
            EXPECT_FALSE(coder.Decode(sf)) << m.where;
            EXPECT_FALSE(coder.Encode(sf)) << m.where;
            for (int k = 1; k <= 10; ++k) {
                EXPECT_EQ(word(sf, k), word(received, k)) << m.where << " word " << k;
            }
            ++count;
        }
    }
    EXPECT_EQ(count, 168 + 84 + 148);
}

// Encode then Decode returns the data bits, except the two t bits that words 2 and 10
// give up to zero their last parity bits, which must then be 0.
TEST(SubframeCoder, LNavDecodeInvertsEncode) {
    std::mt19937 random(7);
    for (int trial = 0; trial < 200; ++trial) {
        subframe_t sf;
        sf.bitCount = 300;
        for (int k = 1; k <= 10; ++k) {
            SubframeCoder::WriteWord(sf, 30 * (k - 1) + 1, random() & 0x3FFFFFC0U);
        }
        const subframe_t original = sf;
        kLNav.Encode(sf);
        EXPECT_EQ(word(sf, 2) & 3U, 0U);
        EXPECT_EQ(word(sf, 10) & 3U, 0U);
        kLNav.Decode(sf);
        for (int k = 1; k <= 10; ++k) {
            const std::uint32_t mask = (k == 2 || k == 10) ? 0x3FFFFF00U : 0x3FFFFFC0U;
            EXPECT_EQ(word(sf, k) & mask, word(original, k) & mask) << trial << " word " << k;
        }
    }
}

// D30 of the received word 1 inverts word 2, D30 of the received (not the corrected)
// word 2 inverts word 3.
TEST(SubframeCoder, LNavDecodeUsesReceivedPredecessor) {
    subframe_t sf;
    sf.bitCount = 300;
    SubframeCoder::WriteWord(sf, 1, 0x00000001U);
    SubframeCoder::WriteWord(sf, 31, 0x00000001U);
    kLNav.Decode(sf);
    EXPECT_EQ(word(sf, 1), 0x00000001U);
    EXPECT_EQ(word(sf, 2), 0x3FFFFFC1U);
    EXPECT_EQ(word(sf, 3), 0x3FFFFFC0U);
    EXPECT_EQ(word(sf, 4), 0x00000000U);
}

// The correction rule clocked one register at a time, as it is worded: four one-bit
// registers fed least significant bit first and combined by OR, the syndrome looked
// up in T, and the bit it names set (not toggled). The OR registers saturate for
// almost every word, so the rule hardly ever corrects the way a textbook decoder does.
std::uint16_t decodeByTheRule(std::uint16_t codeword) {
    bool r[4] = {};
    for (int i = 0; i < 15; ++i) {
        const bool d = r[3];
        r[3] = r[2];
        r[2] = r[1];
        r[1] = r[0] || d;
        r[0] = ((codeword >> i) & 1) != 0 || d;
    }
    const std::uint32_t table[16] = {0x0000, 0x0001, 0x0002, 0x0010, 0x0004, 0x0100,
                                     0x0020, 0x0400, 0x0008, 0x4000, 0x0200, 0x0080,
                                     0x0040, 0x2000, 0x0800, 0x1000};
    const std::uint32_t v = table[r[3] * 8 + r[2] * 4 + r[1] * 2 + r[0]];
    const std::uint32_t c = v != 0 ? codeword | (std::uint32_t{1} << ((v - 1) % 32)) : codeword;
    return static_cast<std::uint16_t>((c >> 4) & 0x7FF);
}

TEST(SubframeCoder, BchDecodeOfEveryCodewordFollowsTheRule) {
    for (std::uint32_t received = 0; received < 0x8000; ++received) {
        ASSERT_EQ(SubframeCoderBeidouNav::BchDecode(static_cast<std::uint16_t>(received)),
                  decodeByTheRule(static_cast<std::uint16_t>(received)))
            << received;
    }
    for (std::uint32_t info = 0; info < 2048; ++info) {
        EXPECT_EQ(SubframeCoderBeidouNav::BchDecode(static_cast<std::uint16_t>(bchCodeword(info))),
                  info);
    }
}

// Encode against the test's own coding; Decode keeps word 1's 15 uncoded bits, gives
// the information bits and clears the parity positions (4 bits of word 1, 8 of the rest).
TEST(SubframeCoder, BeidouEncodeThenDecode) {
    std::mt19937 random(11);
    for (int trial = 0; trial < 100; ++trial) {
        SubframeBits decoded;
        for (int bit = 1; bit <= 300; bit += 20) {
            decoded.put(bit, 20, random() & 0xFFFFFU);
        }
        subframe_t sf = recordFromHex(decoded.hex());
        sf.data[37] |= 0x0F;  // bits 301-304
        EXPECT_FALSE(kBeidou.Encode(sf));
        const subframe_t expected = recordFromHex(encodeBeidou(decoded).hex());
        for (int k = 1; k <= 10; ++k) {
            EXPECT_EQ(word(sf, k), word(expected, k)) << "trial " << trial << " word " << k;
        }
        EXPECT_EQ(sf.data[37] & 0x0F, 0) << "bits past word 10 are cleared";
        EXPECT_FALSE(kBeidou.Decode(sf));
        EXPECT_EQ(word(sf, 1), decoded.get(1, 26) << 4) << trial;
        for (int k = 2; k <= 10; ++k) {
            EXPECT_EQ(word(sf, k), decoded.get(30 * k - 29, 22) << 8) << trial << " word " << k;
        }
    }
}

}  // namespace
