#include "bits/BitRange.h"

#include <stdexcept>

namespace ZeltNavMsg {

BitRange::BitRange(InitializationType type, std::int32_t first, std::int32_t second)
    : first_(first),
      // A count that runs past the 32-bit range wraps to a negative last index and
      // is refused as such.
      last_(type == InitializationType::FirstAndLastBit
                ? second
                : static_cast<std::int32_t>(static_cast<std::int64_t>(first) + second - 1)) {
    if (first_ < 0) {
        throw std::invalid_argument("BitRange: firstBitIndex is negative");
    }
    if (last_ < 0) {
        throw std::invalid_argument("BitRange: lastBitIndex is negative");
    }
    if (last_ < first_) {
        throw std::invalid_argument("BitRange: firstBitIndex is greater than lastBitIndex");
    }
}

}  // namespace ZeltNavMsg
