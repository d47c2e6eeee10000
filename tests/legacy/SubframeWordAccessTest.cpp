// ReadWord and WriteWord work a byte window at a time; here they are held against
// the bit-by-bit definition at every starting bit, including words that hang over
// either end of the 304-bit record and records shorter than 300 bits.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

#include "legacy/SubframeCoder.h"

namespace {

using ZeltNavMsg::Legacy::subframe_t;
using ZeltNavMsg::Legacy::SubframeCoder;

constexpr int kRecordBits = 8 * subframe_t::kDataBytes;

// Bit `bit` of the record, counted from 1 at the first transmitted bit.
unsigned bitAt(const subframe_t& sf, int bit) {
    if (bit < 1 || bit > kRecordBits) {
        return 0;
    }
    return (sf.data[(bit - 1) / 8] >> (7 - (bit - 1) % 8)) & 1U;
}

void setBit(subframe_t& sf, int bit, unsigned value) {
    if (bit < 1 || bit > kRecordBits) {
        return;
    }
    const auto mask = static_cast<std::uint8_t>(0x80U >> ((bit - 1) % 8));
    sf.data[(bit - 1) / 8] = static_cast<std::uint8_t>(value != 0 ? sf.data[(bit - 1) / 8] | mask
                                                                  : sf.data[(bit - 1) / 8] & ~mask);
}

subframe_t randomRecord(std::mt19937& random, int bitCount) {
    subframe_t sf;
    sf.bitCount = bitCount;
    for (std::uint8_t& byte : sf.data) {
        byte = static_cast<std::uint8_t>(random());
    }
    return sf;
}

TEST(SubframeWordAccess, ReadWordMatchesBitByBitAtEveryStart) {
    std::mt19937 random(11);
    for (int trial = 0; trial < 20; ++trial) {
        const subframe_t sf = randomRecord(random, 300);
        for (int firstBit = -40; firstBit <= kRecordBits + 40; ++firstBit) {
            std::uint32_t expected = 0;
            for (int bit = firstBit; bit < firstBit + 30; ++bit) {
                expected = (expected << 1) | bitAt(sf, bit);
            }
            ASSERT_EQ(SubframeCoder::ReadWord(sf, firstBit), expected)
                << "trial " << trial << " first bit " << firstBit;
        }
    }
}

// Only bits firstBit ... firstBit+29 change, to the low 30 bits of the value; bits
// beyond the record's 304 are dropped when the record claims more than it holds.
TEST(SubframeWordAccess, WriteWordMatchesBitByBitAtEveryStart) {
    std::mt19937 random(12);
    for (int trial = 0; trial < 20; ++trial) {
        for (int firstBit = -40; firstBit <= kRecordBits + 40; ++firstBit) {
            subframe_t sf = randomRecord(random, 400);
            const std::uint32_t value = static_cast<std::uint32_t>(random());
            subframe_t expected = sf;
            for (int i = 0; i < 30; ++i) {
                setBit(expected, firstBit + i, (value >> (29 - i)) & 1U);
            }
            ASSERT_FALSE(SubframeCoder::WriteWord(sf, firstBit, value));
            ASSERT_EQ(std::memcmp(sf.data, expected.data, sizeof sf.data), 0)
                << "trial " << trial << " first bit " << firstBit;
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
                << "bit count " << bitCount << " first bit " << firstBit;
            if (!fits) {
                ++refused;
                EXPECT_EQ(std::memcmp(sf.data, before.data, sizeof sf.data), 0)
                    << "bit count " << bitCount << " first bit " << firstBit;
            }
        }
        const std::string messages = testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::count(messages.begin(), messages.end(), '\n'), refused);
        EXPECT_EQ(refused, bitCount >= 30 ? 300 - (bitCount - 29) : 300);
    }
}

}  // namespace
