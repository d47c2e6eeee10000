#ifndef ZELTNAVMSG_BITS_BINARRAY_H
#define ZELTNAVMSG_BITS_BINARRAY_H

#include <array>
#include <cstdint>

#include "bits/BitBuffer.h"
#include "bits/BitRange.h"
#include "bits/BitUtils.h"

namespace ZeltNavMsg {

// N bits held by value in ceil(N / 8) bytes; a whole frame fits in its owner's
// stack frame. The bits of the last byte beyond bit N-1 are kept zero by fill().
template <int N>
class BinArray {
    static_assert(N > 0);

  public:
    static constexpr int kBits = N;
    static constexpr int kBytes = (N + 7) / 8;

    // Sets every byte to `value`, then clears the bits of the last byte beyond N-1.
    void fill(std::uint8_t value) noexcept {
        bytes_.fill(value);
        clearUnusedBits();
    }

    // Clears the bits of the last byte that lie beyond bit N-1.
    void clearUnusedBits() noexcept {
        if constexpr (N % 8 != 0) {
            bytes_[kBytes - 1] &= static_cast<std::uint8_t>(0xFF00U >> (N % 8));
        }
    }

    // Copies bits srcFirst ... srcLast of `src` (declared `srcBitCount` bits long) to
    // this array from bit dstFirst on. Throws the BitRange and BitBufferWrapper errors.
    void copyBits(std::int32_t dstFirst, std::int32_t srcFirst, std::int32_t srcLast,
                  const std::uint8_t* src, std::int32_t srcBitCount) {
        using Init = BitRange::InitializationType;
        const BitRange from(Init::FirstAndLastBit, srcFirst, srcLast);
        const BitRange to(Init::FirstBitAndCount, dstFirst, from.bitsCount());
        const ConstBitBuffer source(src, srcBitCount);
        BitUtils::copyBits(to, buffer(), from, source);
    }

    [[nodiscard]] BitBuffer buffer() { return {bytes_.data(), N}; }
    [[nodiscard]] ConstBitBuffer buffer() const { return {bytes_.data(), N}; }
    [[nodiscard]] std::uint8_t* data() noexcept { return bytes_.data(); }
    [[nodiscard]] const std::uint8_t* data() const noexcept { return bytes_.data(); }

  private:
    std::array<std::uint8_t, kBytes> bytes_;
};

}  // namespace ZeltNavMsg

#endif
