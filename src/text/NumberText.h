#ifndef ZELTNAVMSG_TEXT_NUMBERTEXT_H
#define ZELTNAVMSG_TEXT_NUMBERTEXT_H

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>

// Number-to-text writers shared by both output layouts. Each writes at `p` and
// returns the end of what it wrote; no terminating NUL, no allocation. The caller
// provides room: 20 characters for an unsigned, 21 for a signed 64-bit value,
// 16 for hex digits (or the padded width if larger), 16 for a "%g" value.

namespace ZeltNavMsg::Text {

// Room writeG needs at `p`: it may store this many bytes, though its text is at
// most 13 characters ("-1.23457e-308").
inline constexpr std::size_t kMaxGLength = 16;

namespace Detail {
inline constexpr char kDigitPairs[] =
    "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
    "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
    "8081828384858687888990919293949596979899";
inline constexpr char kHexDigits[] = "0123456789ABCDEF";

// The eight bytes of `v`, most significant first.
inline void storeBigEndian64(char* p, std::uint64_t v) noexcept {
#if defined(__GNUC__) || defined(__clang__)
    if constexpr (std::endian::native == std::endian::little) {
        v = __builtin_bswap64(v);
        std::memcpy(p, &v, 8);
        return;
    }
#endif
    for (int i = 7; i >= 0; --i, v >>= 8) {
        p[i] = static_cast<char>(v & 0xFF);
    }
}

// The four bytes of `v`, most significant first.
inline void storeBigEndian32(char* p, std::uint32_t v) noexcept {
#if defined(__GNUC__) || defined(__clang__)
    if constexpr (std::endian::native == std::endian::little) {
        v = __builtin_bswap32(v);
        std::memcpy(p, &v, 4);
        return;
    }
#endif
    for (int i = 3; i >= 0; --i, v >>= 8) {
        p[i] = static_cast<char>(v & 0xFF);
    }
}

// 10^k for k = 0 ... 19.
inline constexpr std::uint64_t kPowersOf10[20] = {1U,
                                                  10U,
                                                  100U,
                                                  1000U,
                                                  10000U,
                                                  100000U,
                                                  1000000U,
                                                  10000000U,
                                                  100000000U,
                                                  1000000000U,
                                                  10000000000U,
                                                  100000000000U,
                                                  1000000000000U,
                                                  10000000000000U,
                                                  100000000000000U,
                                                  1000000000000000U,
                                                  10000000000000000U,
                                                  100000000000000000U,
                                                  1000000000000000000U,
                                                  10000000000000000000U};

// Number of decimal digits of `v` (1 for 0): from its bit width, log10(2) being about
// 1233 / 4096, and one more where the value reaches the next power of ten.
[[nodiscard]] constexpr int decimalDigits(std::uint64_t v) noexcept {
    v |= 1U;
    const auto guess = static_cast<int>((std::bit_width(v) * 1233U) >> 12);
    return guess + (v >= kPowersOf10[static_cast<std::size_t>(guess)] ? 1 : 0);
}

// Two hex digits of each byte value, the first in the high byte.
inline constexpr auto kHexPairs = [] {
    std::array<std::uint16_t, 256> pairs{};
    for (std::size_t i = 0; i != pairs.size(); ++i) {
        pairs[i] = static_cast<std::uint16_t>((kHexDigits[i >> 4] << 8) | kHexDigits[i & 0xF]);
    }
    return pairs;
}();

// The eight hex digits of `v` as characters, the first in the most significant byte:
// four lookups of two digits.
[[nodiscard]] constexpr std::uint64_t hexDigits8(std::uint32_t v) noexcept {
    return (std::uint64_t{kHexPairs[v >> 24]} << 48) |
           (std::uint64_t{kHexPairs[(v >> 16) & 0xFFU]} << 32) |
           (std::uint64_t{kHexPairs[(v >> 8) & 0xFFU]} << 16) | kHexPairs[v & 0xFFU];
}
}  // namespace Detail

// Decimal digits of `v`, as "%lu" / "%llu" print them: two at a time from a table of
// pairs, from the last; in 32-bit arithmetic once the rest fits.
inline char* writeUnsigned(char* p, std::uint64_t v) noexcept {
    char* const end = p + Detail::decimalDigits(v);
    char* q = end;
    while (v > 0xFFFFFFFFU) {
        q -= 2;
        std::memcpy(q, Detail::kDigitPairs + 2 * (v % 100), 2);
        v /= 100;
    }
    auto w = static_cast<std::uint32_t>(v);
    while (w >= 100) {
        q -= 2;
        std::memcpy(q, Detail::kDigitPairs + 2 * std::size_t{w % 100}, 2);
        w /= 100;
    }
    if (w >= 10) {
        std::memcpy(q - 2, Detail::kDigitPairs + 2 * std::size_t{w}, 2);
    } else {
        q[-1] = static_cast<char>('0' + w);
    }
    return end;
}

// Decimal text of `v` with a leading "-" when negative, as "%ld" prints it.
inline char* writeSigned(char* p, std::int64_t v) noexcept {
    auto magnitude = static_cast<std::uint64_t>(v);
    if (v < 0) {
        *p++ = '-';
        magnitude = ~magnitude + 1;  // well defined also for INT64_MIN
    }
    return writeUnsigned(p, magnitude);
}

// The last `n` upper-case hex digits of `v` (leading zeros included): two digits at
// a time from a table, eight at a time into the text. Up to 16 digits it may store
// 16 bytes at `p`.
inline char* writeHexDigits(char* p, std::uint64_t v, int n) noexcept {
    if (n <= 4) {  // most fields: two lookups
        const auto x = static_cast<std::uint32_t>(v);
        Detail::storeBigEndian32(p, ((std::uint32_t{Detail::kHexPairs[(x >> 8) & 0xFFU]} << 16) |
                                     Detail::kHexPairs[x & 0xFFU])
                                        << (8 * (4 - n)));
        return p + n;
    }
    if (n <= 8) {
        Detail::storeBigEndian64(p, Detail::hexDigits8(static_cast<std::uint32_t>(v))
                                        << (8 * (8 - n)));
        return p + n;
    }
    if (n <= 16) {
        const int high = n - 8;
        Detail::storeBigEndian64(p, Detail::hexDigits8(static_cast<std::uint32_t>(v >> 32))
                                        << (8 * (8 - high)));
        Detail::storeBigEndian64(p + high, Detail::hexDigits8(static_cast<std::uint32_t>(v)));
        return p + n;
    }
    char* const end = p + n;
    for (char* q = end; q != p; v >>= 4) {
        *--q = Detail::kHexDigits[v & 0xF];
    }
    return end;
}

// Upper-case hex digits of `v`, zero-padded on the left to at least `minDigits`,
// as "%0*lX" prints it. Up to 16 digits it may store 16 bytes at `p`.
inline char* writeHex(char* p, std::uint64_t v, int minDigits) noexcept {
    const int significant = v == 0 ? 1 : static_cast<int>((std::bit_width(v) + 3) / 4);
    return writeHexDigits(p, v, significant > minDigits ? significant : minDigits);
}

// `v` as "%g" prints it: six significant digits, correctly rounded (ties to even),
// the shorter of fixed and exponent form, trailing zeros dropped. Values from about
// 1e-22 to below 1e6, and integers from 1e6 to below 2^64, are converted exactly with
// integer arithmetic; the rest (and compilers without 128-bit integers) go to
// std::to_chars in general form with precision 6, which the C++ standard defines to
// print the same text.
char* writeG(char* p, double v) noexcept;

}  // namespace ZeltNavMsg::Text

#endif
