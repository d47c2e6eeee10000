#include "legacy/SubframeCoder.h"

#include <cinttypes>
#include <cstdio>

namespace ZeltNavMsg::Legacy {

namespace {
constexpr std::int64_t kDataBits = std::int64_t{subframe_t::kDataBytes} * 8;
}

std::uint32_t SubframeCoder::ReadWord(const subframe_t& sf, std::int32_t firstBit) noexcept {
    std::uint32_t word = 0;
    for (std::int64_t bit = firstBit - 1; bit < std::int64_t{firstBit} + 29; ++bit) {
        word <<= 1;
        if (bit >= 0 && bit < kDataBits) {
            word |= (sf.data[bit / 8] >> (7 - bit % 8)) & 1U;
        }
    }
    return word;
}

bool SubframeCoder::WriteWord(subframe_t& sf, std::int32_t firstBit, std::uint32_t value) {
    const std::int64_t end = std::int64_t{firstBit} + 30;
    const std::int64_t limit = std::int64_t{sf.bitCount} + 1;
    if (end > limit) {
        std::fprintf(stderr,
                     "The data does not fit in the subframe %" PRId32 ": data %" PRId64
                     ", sf-length %" PRId64 ".\n",
                     sf.layoutId, end, limit);
        return true;
    }
    for (std::int64_t i = 0; i < 30; ++i) {
        const std::int64_t bit = firstBit - 1 + i;
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
    return false;
}

}  // namespace ZeltNavMsg::Legacy
