#ifndef ZELTNAVMSG_BITS_BIGENDIAN_H
#define ZELTNAVMSG_BITS_BIGENDIAN_H

#include <bit>
#include <cstdint>
#include <cstring>

// Eight bytes of a bit stream as one number, the first byte most significant, and
// back: the word-wide reads and writes of the listing, the records, the word decoders
// and the encoder. One load or store and a byte swap where the compiler has one.

namespace ZeltNavMsg::Bits {

inline std::uint64_t loadBigEndian64(const std::uint8_t* p) noexcept {
#if defined(__GNUC__) || defined(__clang__)
    if constexpr (std::endian::native == std::endian::little) {
        std::uint64_t v = 0;
        std::memcpy(&v, p, sizeof v);
        return __builtin_bswap64(v);
    }
#endif
    std::uint64_t v = 0;
    for (int i = 0; i < 8; ++i) {
        v = (v << 8) | p[i];
    }
    return v;
}

inline void storeBigEndian64(std::uint8_t* p, std::uint64_t v) noexcept {
#if defined(__GNUC__) || defined(__clang__)
    if constexpr (std::endian::native == std::endian::little) {
        v = __builtin_bswap64(v);
        std::memcpy(p, &v, sizeof v);
        return;
    }
#endif
    for (int i = 7; i >= 0; --i, v >>= 8) {
        p[i] = static_cast<std::uint8_t>(v & 0xFFU);
    }
}

}  // namespace ZeltNavMsg::Bits

#endif
