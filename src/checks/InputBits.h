#ifndef ZELTNAVMSG_CHECKS_INPUTBITS_H
#define ZELTNAVMSG_CHECKS_INPUTBITS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "checks/Crc.h"
#include "zeltnavmsg/DecodedMessage.h"

namespace ZeltNavMsg::Checks {

// `count` (1-32) bits from input position `first`, first bit most significant. Bits at
// or past `inputBits` read as zero, and no byte past the last given bit is touched.
inline std::uint32_t readInputBits(const std::uint8_t* bytes, std::int32_t inputBits,
                                   std::int32_t first, std::int32_t count) noexcept {
    const std::int32_t end = first + count;
    const std::int32_t lastByte = (end - 1) / 8;
    std::uint64_t window = 0;
    const std::int32_t byteCount = (inputBits + 7) / 8;
    if (end <= inputBits && byteCount >= 8) {
        // One load of eight given bytes that hold the bits: from the first bit's byte, or
        // the last eight bytes near the end.
        const std::int32_t start = std::min(first / 8, byteCount - 8);
        window = loadBigEndian64(bytes + start);
        return static_cast<std::uint32_t>((window << (first - 8 * start)) >> (64 - count));
    }
    // Byte by byte, bits from inputBits on cleared.
    for (std::int32_t byte = first / 8; byte <= lastByte; ++byte) {
        window = (window << 8) | (8 * byte < inputBits ? bytes[byte] : 0U);
    }
    window >>= 8 * (lastByte + 1) - end;
    window &= (std::uint64_t{1} << count) - 1;
    if (end > inputBits) {
        window &= inputBits > first ? ~((std::uint64_t{1} << (end - inputBits)) - 1) : 0;
    }
    return static_cast<std::uint32_t>(window);
}

// Appends copies of `results` (names, bits and widths, all incomplete) to `out`, reusing
// its storage, and returns the first copy.
inline CheckResult* appendResults(std::vector<CheckResult>& out,
                                  std::span<const CheckResult> results) {
    const std::size_t first = out.size();
    out.insert(out.end(), results.data(), results.data() + results.size());
    return out.data() + first;
}

}  // namespace ZeltNavMsg::Checks

#endif
