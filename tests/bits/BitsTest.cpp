// Bit ranges, buffer views, fixed bit arrays and numbering schemes: their checks, in
// order, and their boundaries. Bit reads, and the writes that tests build input with,
// against a bit-at-a-time model of the numbering (bit i is in byte i/8 under mask
// 0x80 >> i%8); the number codes and the errors of the conversions.

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "bits/BinArray.h"
#include "bits/BitRange.h"
#include "bits/BitUtils.h"
#include "bits/BitsNumberingSchemeConvertor.h"
#include "support/BitBytes.h"
#include "support/Thrown.h"

namespace {

using ZeltNavMsg::BitRange;
using ZeltNavMsg::BitUtils;
using ZeltNavMsg::NumberFormat;
using ZeltNavMsg::Testing::randomBytes;
using ZeltNavMsg::Testing::thrownMessage;
using Init = BitRange::InitializationType;

struct RangeCase {
    Init type;
    int first;
    int second;
    int expectFirst;  // or -1 when an error is expected
    int expectLast;
    const char* error;
};

TEST(BitRange, ConstructionAndChecksInOrder) {
    const RangeCase cases[] = {
        {Init::FirstAndLastBit, 5, 5, 5, 5, nullptr},
        {Init::FirstAndLastBit, 0, 882, 0, 882, nullptr},
        {Init::FirstBitAndCount, 0, 1, 0, 0, nullptr},
        {Init::FirstBitAndCount, 10, 22, 10, 31, nullptr},
        {static_cast<Init>(7), 3, 4, 3, 6, nullptr},  // any non-zero type counts bits
        {Init::FirstBitAndCount, 5, 0, -1, 0,
         "BitRange: firstBitIndex is greater than lastBitIndex"},
        {Init::FirstAndLastBit, 6, 5, -1, 0,
         "BitRange: firstBitIndex is greater than lastBitIndex"},
        {Init::FirstAndLastBit, -1, 3, -1, 0, "BitRange: firstBitIndex is negative"},
        {Init::FirstAndLastBit, -1, -3, -1, 0, "BitRange: firstBitIndex is negative"},
        {Init::FirstAndLastBit, 0, -1, -1, 0, "BitRange: lastBitIndex is negative"},
        {Init::FirstBitAndCount, 0, -5, -1, 0, "BitRange: lastBitIndex is negative"},
        // A count past the 32-bit range wraps to a negative last index.
        {Init::FirstBitAndCount, INT_MAX, 2, -1, 0, "BitRange: lastBitIndex is negative"},
    };
    for (const RangeCase& c : cases) {
        const std::string what = std::to_string(c.first) + "," + std::to_string(c.second);
        if (c.error == nullptr) {
            const BitRange r(c.type, c.first, c.second);
            EXPECT_EQ(r.firstBitIndex(), c.expectFirst) << what;
            EXPECT_EQ(r.lastBitIndex(), c.expectLast) << what;
            EXPECT_EQ(r.bitsCount(), c.expectLast - c.expectFirst + 1) << what;
            continue;
        }
        EXPECT_EQ(thrownMessage<std::invalid_argument>(
                      [&] { (void)BitRange(c.type, c.first, c.second); }),
                  c.error)
            << what;
    }
}

// Bits past the end stay zero: the last byte after fill(), the others all `value`.
template <int N>
std::uint8_t lastByteAfterFill(std::uint8_t value) {
    ZeltNavMsg::BinArray<N> a;
    a.fill(value);
    for (int i = 0; i + 1 < ZeltNavMsg::BinArray<N>::kBytes; ++i) {
        EXPECT_EQ(a.data()[i], value);
    }
    return a.data()[ZeltNavMsg::BinArray<N>::kBytes - 1];
}

TEST(BinArray, FillKeepsBitsPastTheEndZero) {
    EXPECT_EQ(lastByteAfterFill<883>(0xFF), 0xE0);
    EXPECT_EQ(lastByteAfterFill<878>(0xFF), 0xFC);
    EXPECT_EQ(lastByteAfterFill<292>(0xFF), 0xF0);
    EXPECT_EQ(lastByteAfterFill<288>(0xFF), 0xFF);
    EXPECT_EQ(lastByteAfterFill<878>(0x01), 0x00);
}

TEST(BinArray, CopyBitsPlacesTheSourceRange) {
    ZeltNavMsg::BinArray<16> a;
    a.fill(0);
    const std::uint8_t src[2] = {0xAB, 0xCD};
    a.copyBits(4, 0, 7, src, 16);
    EXPECT_EQ(a.data()[0], 0x0A);
    EXPECT_EQ(a.data()[1], 0xB0);
}

TEST(BitsNumberingSchemeConvertor, ConvertsAndMirrors) {
    using S = ZeltNavMsg::BitsNumberingScheme;
    const struct {
        S scheme;
        int first, last, expectFirst, expectLast;
    } cases[] = {
        {S::FromFirstBitZeroBased, 1, 8, 1, 8},    {S::FromFirstBitOneBased, 1, 8, 0, 7},
        {S::FromLastBitOneBased, 1, 8, 292, 299},  {S::FromLastBitZeroBased, 1, 8, 291, 298},
        {S::FromLastBitZeroBased, 0, 299, 0, 299}, {S::FromLastBitOneBased, 300, 300, 0, 0},
    };
    for (const auto& c : cases) {
        std::vector<BitRange> ranges{BitRange(Init::FirstAndLastBit, c.first, c.last)};
        ZeltNavMsg::BitsNumberingSchemeConvertor(c.scheme, 300).convert(ranges);
        EXPECT_EQ(ranges[0], BitRange(Init::FirstAndLastBit, c.expectFirst, c.expectLast))
            << static_cast<int>(c.scheme) << ": " << c.first << ".." << c.last;
    }
}

TEST(BitsNumberingSchemeConvertor, ErrorsKeepEarlierRangesConverted) {
    using S = ZeltNavMsg::BitsNumberingScheme;
    std::vector<BitRange> ranges{BitRange(Init::FirstAndLastBit, 1, 8),
                                 BitRange(Init::FirstAndLastBit, 0, 3)};
    EXPECT_EQ(
        thrownMessage<std::invalid_argument>([&] {
            ZeltNavMsg::BitsNumberingSchemeConvertor(S::FromFirstBitOneBased, 300).convert(ranges);
        }),
        "BitRange: firstBitIndex is negative");
    EXPECT_EQ(ranges[0], BitRange(Init::FirstAndLastBit, 0, 7));

    const ZeltNavMsg::BitsNumberingSchemeConvertor unknown(static_cast<S>(4), 300);
    std::vector<BitRange> none;
    EXPECT_NO_THROW(unknown.convert(none));  // nothing to convert, nothing to refuse
    EXPECT_EQ(thrownMessage<std::runtime_error>([&] { unknown.convert(ranges); }),
              "BitsNumberingSchemeConvertor: Unknown bits numbering scheme");
}

bool bitAt(const std::vector<std::uint8_t>& bytes, int i) {
    return ZeltNavMsg::Testing::bitOf(bytes.data(), static_cast<std::size_t>(i)) != 0;
}

TEST(BitUtils, ReadsEveryOffsetAndWidthLikeTheBitModel) {
    const std::vector<std::uint8_t> bytes = randomBytes(24, 1);
    const ZeltNavMsg::ConstBitBuffer buffer(bytes.data(), 192);
    for (int first = 0; first < 64; ++first) {
        for (int width = 1; width <= 64; ++width) {
            std::uint64_t expected = 0;
            for (int i = first; i < first + width; ++i) {
                expected = (expected << 1) | (bitAt(bytes, i) ? 1U : 0U);
            }
            ASSERT_EQ(BitUtils::readBits(BitRange(Init::FirstBitAndCount, first, width), buffer),
                      expected)
                << "first " << first << " width " << width;
        }
    }
}

TEST(BitUtils, WritesEveryOffsetAndWidthTouchingNothingElse) {
    std::mt19937_64 random(2);
    for (int first = 0; first < 64; ++first) {
        for (int width = 1; width <= 64; ++width) {
            std::vector<std::uint8_t> bytes =
                randomBytes(24, static_cast<unsigned>(first * 100 + width));
            const std::vector<std::uint8_t> before = bytes;
            const std::uint64_t value = random();
            BitUtils::writeBits(BitRange(Init::FirstBitAndCount, first, width),
                                ZeltNavMsg::BitBuffer(bytes.data(), 192), value);
            for (int i = 0; i < 192; ++i) {
                const bool inside = i >= first && i < first + width;
                const bool expected =
                    inside ? ((value >> (first + width - 1 - i)) & 1U) != 0 : bitAt(before, i);
                ASSERT_EQ(bitAt(bytes, i), expected)
                    << "first " << first << " width " << width << " bit " << i;
            }
        }
    }
}

// Whole bytes at once when both starts are byte-aligned and more than 64 bits remain,
// then 64-bit chunks; only the destination range's width counts.
TEST(BitUtils, CopyBitsMovesExactlyTheRange) {
    const struct {
        int dstFirst, srcFirst, count;
    } cases[] = {{0, 0, 72}, {8, 16, 64}, {3, 0, 72}, {0, 5, 130}, {17, 9, 1}, {0, 0, 200}};
    for (const auto& c : cases) {
        const std::vector<std::uint8_t> src = randomBytes(32, 3);
        std::vector<std::uint8_t> dst = randomBytes(32, 4);
        const std::vector<std::uint8_t> before = dst;
        BitUtils::copyBits(BitRange(Init::FirstBitAndCount, c.dstFirst, c.count),
                           ZeltNavMsg::BitBuffer(dst.data(), 1),
                           BitRange(Init::FirstBitAndCount, c.srcFirst, 1),
                           ZeltNavMsg::ConstBitBuffer(src.data(), 1));
        for (int i = 0; i < 256; ++i) {
            const bool inside = i >= c.dstFirst && i < c.dstFirst + c.count;
            ASSERT_EQ(bitAt(dst, i),
                      inside ? bitAt(src, c.srcFirst + i - c.dstFirst) : bitAt(before, i))
                << "copy to " << c.dstFirst << " from " << c.srcFirst << " of " << c.count
                << ", bit " << i;
        }
    }
}

TEST(BitUtils, DecodeSignedNumber) {
    const struct {
        std::uint64_t raw;
        int width;
        unsigned format;
        std::int64_t value;
    } cases[] = {
        {0b1011, 4, 2, -5},
        {0b1011, 4, 4, -5},
        {0b1011, 4, 3, -3},
        {0b0011, 4, 9, 3},  // a clear sign bit is never checked against the format
        {0b1000, 4, 3, 0},  // negative zero
        {0x80000000, 32, 2, -2147483648LL},
        {0x8000000000000000ULL, 64, 2, std::numeric_limits<std::int64_t>::min()},
        {0xFFFFFFFFFFFFFFFFULL, 64, 3, -0x7FFFFFFFFFFFFFFFLL},
        {0b10, 2, 2, -2},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(BitUtils::decodeSignedNumber(c.raw, c.width, static_cast<NumberFormat>(c.format)),
                  c.value)
            << c.raw << "/" << c.width << "/" << c.format;
    }
}

// Each refusal, its category and message; where several checks could fail, the one that
// runs first (the pointer before the count, the source range before the destination).
TEST(Bits, RefusalsNameWhatIsWrong) {
    using F = NumberFormat;
    const std::uint8_t byte = 0;
    std::uint8_t bytes[2] = {};
    ZeltNavMsg::BinArray<16> a;
    ZeltNavMsg::LimitedSizeString<3> s;
    s.append("abc");
    const auto runtime = [](auto call) { return thrownMessage<std::runtime_error>(call); };
    const auto invalid = [](auto call) { return thrownMessage<std::invalid_argument>(call); };
    const std::string kNoPointer = "BitBufferWrapper: ptr is 0";
    const std::string kNoBits = "BitBufferWrapper: bitsCount should be positive";
    const std::string kUnknown = "decodeSignedNumber: Unknown number format";
    const std::string kUnsigned = "encodeSignedNumber: only signed number formats are supported";
    const std::pair<std::string, std::string> cases[] = {
        {runtime([] { ZeltNavMsg::ConstBitBuffer(nullptr, 0); }), kNoPointer},
        {runtime([] { ZeltNavMsg::ConstBitBuffer(nullptr, 8); }), kNoPointer},
        {runtime([&] { ZeltNavMsg::ConstBitBuffer(&byte, 0); }), kNoBits},
        {runtime([&] { ZeltNavMsg::ConstBitBuffer(&byte, -8); }), kNoBits},
        {invalid([&] { a.copyBits(-1, 5, 4, nullptr, 0); }),
         "BitRange: firstBitIndex is greater than lastBitIndex"},
        {invalid([&] { a.copyBits(-1, 0, 3, nullptr, 0); }), "BitRange: firstBitIndex is negative"},
        {runtime([&] { a.copyBits(0, 0, 3, nullptr, 0); }), kNoPointer},
        {runtime([&] { a.copyBits(0, 0, 3, bytes, 0); }), kNoBits},
        {runtime([&] { BitUtils::convertHexStringToBinArray("1g", 2, bytes, 8); }),
         "BitUtils::convertHexStringToBinArray: hexString should contain only hex digits "
         "(0-9, A-F, a-f)"},
        {runtime([] { BitUtils::convertHexStringToBinArray("1", 1, nullptr, 8); }), kNoPointer},
        {runtime([&] { BitUtils::convertHexStringToBinArray("1", 1, bytes, 0); }), kNoBits},
        {runtime([] { (void)BitUtils::decodeSignedNumber(0b1011, 4, static_cast<F>(0)); }),
         kUnknown},
        {runtime([] { (void)BitUtils::decodeSignedNumber(0b1011, 4, static_cast<F>(1)); }),
         kUnknown},
        {runtime([] { (void)BitUtils::decodeSignedNumber(0b1011, 4, static_cast<F>(5)); }),
         kUnknown},
        {runtime([] { (void)BitUtils::decodeSignedNumber(0b1011, 4, static_cast<F>(9)); }),
         kUnknown},
        {runtime([] { (void)BitUtils::readDouble(0xFF, 1.0, 8, F::UnknownNumberFormat); }),
         kUnknown},
        {runtime([] { (void)BitUtils::encodeSignedNumber(5, true, 4, F::UnsignedNumberFormat); }),
         kUnsigned},
        {runtime([] { (void)BitUtils::encodeSignedNumber(5, true, 4, F::UnknownNumberFormat); }),
         kUnsigned},
        {runtime([&] { s.push_back('d'); }), "LimitedSizeString: not enough capacity"},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(cases[i].first, cases[i].second) << "case " << i;
    }
    EXPECT_EQ(ZeltNavMsg::ConstBitBuffer(&byte, 1).bitsCount(), 1);
    EXPECT_EQ(s.view(), "abc");  // the refused character left out
    EXPECT_STREQ(s.c_str(), "abc");
}

}  // namespace
