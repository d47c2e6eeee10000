#ifndef ZELTNAVMSG_TEXT_NUMBERTEXT_H
#define ZELTNAVMSG_TEXT_NUMBERTEXT_H

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

[[nodiscard]] constexpr int decimalDigits(std::uint64_t v) noexcept {
    int n = 1;
    while (v >= 10) {
        v /= 10;
        ++n;
    }
    return n;
}
}  // namespace Detail

// Decimal digits of `v`, as "%lu" / "%llu" print them.
inline char* writeUnsigned(char* p, std::uint64_t v) noexcept {
    const int n = Detail::decimalDigits(v);
    char* end = p + n;
    char* q = end;
    while (v >= 100) {
        const auto pair = static_cast<unsigned>(v % 100) * 2;
        v /= 100;
        *--q = Detail::kDigitPairs[pair + 1];
        *--q = Detail::kDigitPairs[pair];
    }
    if (v >= 10) {
        const auto pair = static_cast<unsigned>(v) * 2;
        *--q = Detail::kDigitPairs[pair + 1];
        *--q = Detail::kDigitPairs[pair];
    } else {
        *--q = static_cast<char>('0' + v);
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

// Upper-case hex digits of `v`, zero-padded on the left to at least `minDigits`,
// as "%0*lX" prints it. Up to 8 digits it may store 8 bytes at `p`.
inline char* writeHex(char* p, std::uint64_t v, int minDigits) noexcept {
    const int significant = v == 0 ? 1 : static_cast<int>((std::bit_width(v) + 3) / 4);
    const int n = significant > minDigits ? significant : minDigits;
    if (n <= 8) {
        // One nibble per byte, most significant in the top byte, then each nibble
        // to its digit: '0' + nibble, and 7 more from 'A' on.
        std::uint64_t x = v;
        x = ((x & 0xFFFF0000U) << 16) | (x & 0xFFFFU);
        x = ((x & 0x0000FF000000FF00U) << 8) | (x & 0x000000FF000000FFU);
        x = ((x & 0x00F000F000F000F0U) << 4) | (x & 0x000F000F000F000FU);
        const std::uint64_t letters = ((x + 0x0606060606060606U) >> 4) & 0x0101010101010101U;
        x += 0x3030303030303030U + 7 * letters;
        Detail::storeBigEndian64(p, x << (8 * (8 - n)));
        return p + n;
    }
    char* const end = p + n;
    for (char* q = end; q != p; v >>= 4) {
        *--q = Detail::kHexDigits[v & 0xF];
    }
    return end;
}

// `v` as "%g" prints it: six significant digits, correctly rounded (ties to even),
// the shorter of fixed and exponent form, trailing zeros dropped. Values from about
// 1e-22 to below 1e7 are converted exactly with integer arithmetic; the rest (and
// compilers without 128-bit integers) go to std::to_chars in general form with
// precision 6, which the C++ standard defines to print the same text.
char* writeG(char* p, double v) noexcept;

}  // namespace ZeltNavMsg::Text

#endif
