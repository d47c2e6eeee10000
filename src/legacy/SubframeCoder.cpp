#include "legacy/SubframeCoder.h"

#include <cinttypes>
#include <cstdio>

namespace ZeltNavMsg::Legacy {

namespace {

constexpr std::int64_t kDataBits = std::int64_t{subframe_t::kDataBytes} * 8;
constexpr std::uint32_t kMask30 = 0x3FFFFFFFU;  // the bits of one word

// A 30-bit word starting at bit index `index` (from 0) lies in the five bytes from
// index / 8 on. Those of them past the data read as zero and are never written.
constexpr bool wordInsideData(std::int64_t index) noexcept {
    return index >= 0 && index + 30 <= kDataBits;
}

// Bytes past the data read as zero.
std::uint64_t readFiveBytesOfData(const std::uint8_t* data, std::int64_t firstByte) noexcept {
    std::uint64_t window = 0;
    if (firstByte + 5 <= subframe_t::kDataBytes) {
        for (int i = 0; i < 5; ++i) {
            window = (window << 8) | data[firstByte + i];
        }
        return window;
    }
    for (std::int64_t b = firstByte; b < firstByte + 5; ++b) {
        window = (window << 8) | (b < subframe_t::kDataBytes ? data[b] : 0U);
    }
    return window;
}

// Bit by bit, for words that hang over either end of the data.
std::uint32_t readWordBits(const subframe_t& sf, std::int64_t index) noexcept {
    std::uint32_t word = 0;
    for (std::int64_t bit = index; bit < index + 30; ++bit) {
        word <<= 1;
        if (bit >= 0 && bit < kDataBits) {
            word |= (sf.data[bit / 8] >> (7 - bit % 8)) & 1U;
        }
    }
    return word;
}

void writeWordBits(subframe_t& sf, std::int64_t index, std::uint32_t value) noexcept {
    for (std::int64_t i = 0; i < 30; ++i) {
        const std::int64_t bit = index + i;
        if (bit < 0 || bit >= kDataBits) {
            continue;  // only a record that claims more bits than it holds gets here
        }
        const auto mask = static_cast<std::uint8_t>(0x80U >> (bit % 8));
        if ((value >> (29 - i)) & 1U) {
            sf.data[bit / 8] |= mask;
        } else {
            sf.data[bit / 8] &= static_cast<std::uint8_t>(~mask);
        }
    }
}

}  // namespace

std::uint32_t SubframeCoder::ReadWordAtEdge(const subframe_t& sf, std::int32_t firstBit) noexcept {
    const std::int64_t index = std::int64_t{firstBit} - 1;
    if (!wordInsideData(index)) {
        return readWordBits(sf, index);
    }
    // 40 bits from the word's first byte; the word starts index % 8 bits in.
    const std::uint64_t window = readFiveBytesOfData(sf.data, index / 8);
    return static_cast<std::uint32_t>(window >> (10 - index % 8)) & kMask30;
}

bool SubframeCoder::WriteWordAtEdge(subframe_t& sf, std::int32_t firstBit, std::uint32_t value) {
    const std::int64_t end = std::int64_t{firstBit} + 30;
    const std::int64_t limit = std::int64_t{sf.bitCount} + 1;
    if (end > limit) {
        std::fprintf(stderr,
                     "The data does not fit in the subframe %" PRId32 ": data %" PRId64
                     ", sf-length %" PRId64 ".\n",
                     sf.layoutId, end, limit);
        return true;
    }
    const std::int64_t index = std::int64_t{firstBit} - 1;
    if (!wordInsideData(index)) {
        writeWordBits(sf, index, value);
        return false;
    }
    const std::int64_t firstByte = index / 8;
    const auto shift = static_cast<int>(10 - index % 8);
    std::uint64_t window = readFiveBytesOfData(sf.data, firstByte);
    window &= ~(std::uint64_t{kMask30} << shift);
    window |= std::uint64_t{value & kMask30} << shift;
    // All five bytes go back when they are all inside the record (those the word
    // does not cover keep their value); otherwise only the ones the word covers.
    std::uint8_t* const bytes = sf.data + firstByte;
    // cppcheck-suppress knownConditionTrueFalse ; false for the last word of a long record
    if (firstByte + 5 <= subframe_t::kDataBytes) {
        for (int i = 0; i < 5; ++i) {
            bytes[i] = static_cast<std::uint8_t>(window >> (32 - 8 * i));
        }
    } else {
        for (std::int64_t i = 0; i <= (index + 29) / 8 - firstByte; ++i) {
            bytes[i] = static_cast<std::uint8_t>(window >> (32 - 8 * i));
        }
    }
    return false;
}

}  // namespace ZeltNavMsg::Legacy
