#ifndef ZELTNAVMSG_BITS_BITRANGE_H
#define ZELTNAVMSG_BITS_BITRANGE_H

#include <cstdint>

namespace ZeltNavMsg {

// An inclusive run of bit indices, first <= last, both >= 0. Index 0 is the most
// significant bit of byte 0, so bits are in transmission order and a run read as a
// number has its first bit most significant.
class BitRange {
  public:
    enum class InitializationType : std::int32_t {
        FirstAndLastBit = 0,   // second number = last bit index
        FirstBitAndCount = 1,  // second number = number of bits (any non-zero value)
    };

    // Throws std::invalid_argument "BitRange: firstBitIndex is negative",
    // "BitRange: lastBitIndex is negative" or
    // "BitRange: firstBitIndex is greater than lastBitIndex", checked in that order.
    BitRange(InitializationType type, std::int32_t first, std::int32_t second);

    [[nodiscard]] constexpr std::int32_t firstBitIndex() const noexcept { return first_; }
    [[nodiscard]] constexpr std::int32_t lastBitIndex() const noexcept { return last_; }
    [[nodiscard]] constexpr std::int32_t bitsCount() const noexcept { return last_ - first_ + 1; }

    friend constexpr bool operator==(const BitRange&, const BitRange&) = default;

  private:
    std::int32_t first_;
    std::int32_t last_;
};

}  // namespace ZeltNavMsg

#endif
