#ifndef ZELTNAVMSG_CHECKS_INPUTBITS_H
#define ZELTNAVMSG_CHECKS_INPUTBITS_H

#include <cstdint>

namespace ZeltNavMsg::Checks {

// `count` (1-32) bits from input position `first`, first bit most significant. Bits at
// or past `inputBits` read as zero, and no byte past the last given bit is touched.
inline std::uint32_t readInputBits(const std::uint8_t* bytes, std::int32_t inputBits,
                                   std::int32_t first, std::int32_t count) noexcept {
    const std::int32_t end = first + count;
    const std::int32_t given = end < inputBits ? end : inputBits;
    std::uint64_t window = 0;
    const std::int32_t lastByte = (end - 1) / 8;
    for (std::int32_t byte = first / 8; byte <= lastByte; ++byte) {
        window = (window << 8) | (8 * byte < given ? bytes[byte] : 0U);
    }
    window >>= 8 * (lastByte + 1) - end;
    window &= (std::uint64_t{1} << count) - 1;
    if (given < end) {
        window &= given > first ? ~((std::uint64_t{1} << (end - given)) - 1) : 0;
    }
    return static_cast<std::uint32_t>(window);
}

}  // namespace ZeltNavMsg::Checks

#endif
