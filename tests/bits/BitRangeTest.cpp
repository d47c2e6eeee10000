// Bit ranges, buffer views, fixed bit arrays and numbering schemes: their checks,
// in order, and their boundaries.

#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>
#include <string>
#include <vector>

#include "bits/BinArray.h"
#include "bits/BitRange.h"
#include "bits/BitsNumberingSchemeConvertor.h"
#include "support/Thrown.h"

namespace {

using ZeltNavMsg::BitRange;
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

TEST(BitBuffer, ChecksPointerBeforeCount) {
    const std::uint8_t byte = 0;
    const auto message = [](const std::uint8_t* p, std::int32_t bits) {
        return thrownMessage<std::runtime_error>([&] { ZeltNavMsg::ConstBitBuffer(p, bits); });
    };
    EXPECT_EQ(message(nullptr, 0), "BitBufferWrapper: ptr is 0");
    EXPECT_EQ(message(nullptr, 8), "BitBufferWrapper: ptr is 0");
    EXPECT_EQ(message(&byte, 0), "BitBufferWrapper: bitsCount should be positive");
    EXPECT_EQ(message(&byte, -8), "BitBufferWrapper: bitsCount should be positive");
    EXPECT_EQ(ZeltNavMsg::ConstBitBuffer(&byte, 1).bitsCount(), 1);
}

// Bits past the end stay zero: the last byte after fill().
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
    EXPECT_EQ(lastByteAfterFill<883>(0x00), 0x00);
    EXPECT_EQ(ZeltNavMsg::BinArray<883>::kBytes, 111);
    EXPECT_EQ(ZeltNavMsg::BinArray<878>::kBytes, 110);
}

TEST(BinArray, CopyBitsChecksSourceRangeThenDestinationThenBuffer) {
    ZeltNavMsg::BinArray<16> a;
    a.fill(0);
    const std::uint8_t src[2] = {0xAB, 0xCD};
    a.copyBits(4, 0, 7, src, 16);
    EXPECT_EQ(a.data()[0], 0x0A);
    EXPECT_EQ(a.data()[1], 0xB0);
    EXPECT_THROW(a.copyBits(0, 5, 4, src, 16), std::invalid_argument);   // source range
    EXPECT_THROW(a.copyBits(-1, 0, 3, src, 16), std::invalid_argument);  // destination range
    EXPECT_THROW(a.copyBits(0, 0, 3, nullptr, 16), std::runtime_error);  // source buffer
    EXPECT_THROW(a.copyBits(0, 0, 3, src, 0), std::runtime_error);
}

struct SchemeCase {
    ZeltNavMsg::BitsNumberingScheme scheme;
    int first;
    int last;
    int expectFirst;
    int expectLast;
};

TEST(BitsNumberingSchemeConvertor, ConvertsAndMirrors) {
    using S = ZeltNavMsg::BitsNumberingScheme;
    const SchemeCase cases[] = {
        {S::FromFirstBitZeroBased, 1, 8, 1, 8},    {S::FromFirstBitOneBased, 1, 8, 0, 7},
        {S::FromLastBitOneBased, 1, 8, 292, 299},  {S::FromLastBitZeroBased, 1, 8, 291, 298},
        {S::FromLastBitZeroBased, 0, 299, 0, 299}, {S::FromLastBitOneBased, 300, 300, 0, 0},
    };
    for (const SchemeCase& c : cases) {
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

}  // namespace
