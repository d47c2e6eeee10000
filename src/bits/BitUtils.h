#ifndef ZELTNAVMSG_BITS_BITUTILS_H
#define ZELTNAVMSG_BITS_BITUTILS_H

#include <cstddef>
#include <cstdint>
#include <span>

#include "bits/BitBuffer.h"
#include "bits/BitRange.h"
#include "bits/LimitedSizeString.h"
#include "bits/NumberFormat.h"

namespace ZeltNavMsg {

// The one place where bits are read from and written to buffers, copied, parsed
// from hex, and turned into and out of signed numbers. Indices are internal (bit 0
// = most significant bit of byte 0). Reads and writes are not checked against the
// buffers' declared bit counts: callers keep ranges inside the bytes they hold.
class BitUtils {
  public:
    // Bits of `range`, bit `first` most significant, right-aligned. A range wider
    // than 64 bits yields its last 64 bits.
    [[nodiscard]] static std::uint64_t readBits(const BitRange& range,
                                                ConstBitBuffer buffer) noexcept;

    // Stores the low `width` bits of `value` in `range` (value bit width-1 at the first
    // index), keeping every other bit; bits of a range wider than 64 beyond the value's
    // 64 bits are written as zero.
    static void writeBits(const BitRange& range, BitBuffer buffer, std::uint64_t value) noexcept;

    // The ranges concatenated in order, the first most significant.
    [[nodiscard]] static std::uint64_t readBits(std::span<const BitRange> ranges,
                                                ConstBitBuffer buffer) noexcept;
    // Splits the low W bits of `value` (W = total width) over the ranges, first range
    // taking the most significant part.
    static void writeBits(std::span<const BitRange> ranges, BitBuffer buffer,
                          std::uint64_t value) noexcept;

    // Copies dstRange.bitsCount() bits from srcRange.firstBitIndex() on. Whole bytes at
    // once when both starts are byte-aligned and more than 64 bits are copied, the
    // rest in chunks of up to 64 bits (each chunk range checked as a BitRange).
    static void copyBits(const BitRange& dstRange, BitBuffer dst, const BitRange& srcRange,
                         ConstBitBuffer src);

    // Writes ceil(bitCount / 4) hex digits of `text` (missing ones count as 0) into the
    // first `bitCount` bits of `dst`. Throws std::runtime_error on a non-hex character.
    // A null `text` writes nothing.
    static void convertHexStringToBinArray(const char* text, std::size_t length, std::uint8_t* dst,
                                           std::int32_t bitCount);

    // Raw code of a signed number: two's complement of the low `width` bits (formats 2
    // and 4) or sign and magnitude (3). A non-negative value is returned unchanged.
    [[nodiscard]] static std::uint64_t encodeSignedNumber(std::uint64_t magnitude, bool isNegative,
                                                          std::int32_t width, NumberFormat format);

    // Value of a `width`-bit raw code. A clear sign bit gives the magnitude whatever the
    // format; otherwise formats 2 and 4 sign-extend and 3 negates the magnitude.
    [[nodiscard]] static std::int64_t decodeSignedNumber(std::uint64_t raw, std::int32_t width,
                                                         NumberFormat format);

    // Raw value read in `format` (1 and 5 unsigned, others as decodeSignedNumber) times `scale`.
    [[nodiscard]] static double readDouble(std::uint64_t raw, double scale, std::int32_t width,
                                           NumberFormat format);

    [[nodiscard]] static LimitedSizeString<21> unsignedToString(std::uint64_t value);
    [[nodiscard]] static LimitedSizeString<21> signedToString(std::int32_t value);
};

// Mask of the low `width` bits; all ones from 64 bits on.
[[nodiscard]] constexpr std::uint64_t lowBitsMask(std::int32_t width) noexcept {
    if (width <= 0) {
        return 0;
    }
    return width >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << width) - 1;
}

}  // namespace ZeltNavMsg

#endif
