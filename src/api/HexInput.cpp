#include "api/HexInput.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>

#include "zeltnavmsg/NavMessageDecoder.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace ZeltNavMsg::Detail {

namespace {

constexpr bool isAsciiWhiteSpace(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

constexpr bool isContinuation(unsigned char c) noexcept {
    return (c & 0xC0U) == 0x80U;
}

// Length of the well-formed UTF-8 sequence starting at `i`, or 1 when there is none,
// so that an error names a whole non-ASCII character rather than half of one.
std::size_t characterLength(std::string_view s, std::size_t i) noexcept {
    const auto lead = static_cast<unsigned char>(s[i]);
    std::size_t length = 1;
    unsigned char secondMin = 0x80;
    unsigned char secondMax = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        secondMin = lead == 0xE0 ? 0xA0 : 0x80;
        secondMax = lead == 0xED ? 0x9F : 0xBF;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        secondMin = lead == 0xF0 ? 0x90 : 0x80;
        secondMax = lead == 0xF4 ? 0x8F : 0xBF;
    } else {
        return 1;
    }
    if (s.size() - i < length) {
        return 1;
    }
    const auto second = static_cast<unsigned char>(s[i + 1]);
    if (second < secondMin || second > secondMax) {
        return 1;
    }
    for (std::size_t k = 2; k < length; ++k) {
        if (!isContinuation(static_cast<unsigned char>(s[i + k]))) {
            return 1;
        }
    }
    return length;
}

// Without an early exit, so that the compiler checks many characters at a time.
bool allHexDigits(std::string_view s) noexcept {
#if defined(__SSE2__)
    // Sixteen characters a step: c - '0' below 10, or (c | 0x20) - 'a' below 6, as
    // unsigned bytes (compared signed after flipping the top bit). The last step
    // takes the last sixteen, overlapping the one before.
    if (s.size() >= 16) {
        const auto* const p = reinterpret_cast<const unsigned char*>(s.data());
        const __m128i flip = _mm_set1_epi8(static_cast<char>(0x80));
        __m128i good = _mm_set1_epi8(-1);
        for (std::size_t i = 0;; i += 16) {
            const std::size_t at = std::min(i, s.size() - 16);
            const __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
            const __m128i digit = _mm_xor_si128(_mm_sub_epi8(c, _mm_set1_epi8('0')), flip);
            const __m128i letter = _mm_xor_si128(
                _mm_sub_epi8(_mm_or_si128(c, _mm_set1_epi8(0x20)), _mm_set1_epi8('a')), flip);
            good = _mm_and_si128(
                good,
                _mm_or_si128(_mm_cmplt_epi8(digit, _mm_set1_epi8(static_cast<char>(0x80 + 10))),
                             _mm_cmplt_epi8(letter, _mm_set1_epi8(static_cast<char>(0x80 + 6)))));
            if (at + 16 == s.size()) {
                break;
            }
        }
        return _mm_movemask_epi8(good) == 0xFFFF;
    }
#endif
    // Byte-wide throughout, so that each vector step takes as many characters as fit.
    std::uint8_t bad = 0;
    for (const char ch : s) {
        const auto c = static_cast<std::uint8_t>(ch);
        const auto digitOffset = static_cast<std::uint8_t>(c - '0');
        const auto letterOffset = static_cast<std::uint8_t>((c | 0x20U) - 'a');
        bad |= static_cast<std::uint8_t>((digitOffset >= 10) & (letterOffset >= 6));
    }
    return bad == 0;
}

}  // namespace

std::string_view trimAsciiWhiteSpace(std::string_view text) noexcept {
    std::size_t first = 0;
    std::size_t last = text.size();
    while (first < last && isAsciiWhiteSpace(text[first])) {
        ++first;
    }
    while (last > first && isAsciiWhiteSpace(text[last - 1])) {
        --last;
    }
    return text.substr(first, last - first);
}

std::string_view validateHexDigits(std::string_view hexString) {
    const std::string_view digits = trimAsciiWhiteSpace(hexString);
    if (allHexDigits(digits)) {
        return digits;
    }
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (kHexDigitValue[static_cast<unsigned char>(digits[i])] < 0) {
            std::string message = "Can't parse symbol as hex digit: ";
            message.append(digits.substr(i, characterLength(digits, i)));
            throw DecodingError(message);
        }
    }
    return digits;
}

void hexDigitsToBytes(std::string_view digits, std::uint8_t* dst, std::size_t dstSize) noexcept {
    std::size_t count = digits.size() < 2 * dstSize ? digits.size() : 2 * dstSize;
    const auto* p = reinterpret_cast<const unsigned char*>(digits.data());
#if defined(__SSE2__)
    // Sixteen digits a step, as below: each digit's value, then the pairs of each
    // 16-bit lane into its low byte, packed into eight bytes. The last step takes the
    // last sixteen of an even count, overlapping the one before.
    if (count >= 16) {
        const std::size_t even = count & ~std::size_t{1};
        for (std::size_t i = 0;; i += 16) {
            const std::size_t at = std::min(i, even - 16);
            const __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
            const __m128i letters = _mm_and_si128(_mm_srli_epi16(c, 6), _mm_set1_epi8(1));
            const __m128i v = _mm_add_epi8(_mm_and_si128(c, _mm_set1_epi8(0x0F)),
                                           _mm_add_epi8(_mm_slli_epi16(letters, 3), letters));
            const __m128i pairs = _mm_and_si128(
                _mm_or_si128(_mm_slli_epi16(v, 4), _mm_srli_epi16(v, 8)), _mm_set1_epi16(0xFF));
            _mm_storel_epi64(reinterpret_cast<__m128i*>(dst + at / 2),
                             _mm_packus_epi16(pairs, pairs));
            if (at + 16 == even) {
                break;
            }
        }
        p += even;
        dst += even / 2;
        count -= even;
    }
#endif
    if constexpr (std::endian::native == std::endian::little) {
        // Eight digits at a time, character i in byte i: a digit's value is its low
        // nibble, plus 9 for the letters (bit 6 set), then pairs join into bytes.
        for (; count >= 8; count -= 8, p += 8, dst += 4) {
            std::uint64_t v = 0;
            std::memcpy(&v, p, 8);
            v = (v & 0x0F0F0F0F0F0F0F0FU) + 9 * ((v >> 6) & 0x0101010101010101U);
            v = ((v & 0x000F000F000F000FU) << 4) | ((v >> 8) & 0x000F000F000F000FU);
            v = (v | (v >> 8)) & 0x0000FFFF0000FFFFU;
            v = (v | (v >> 16)) & 0xFFFFFFFFU;
            std::memcpy(dst, &v, 4);
        }
    }
    for (; count >= 2; count -= 2, p += 2) {
        *dst++ = static_cast<std::uint8_t>((kHexDigitValue[p[0]] << 4) | kHexDigitValue[p[1]]);
    }
    if (count == 1) {
        *dst = static_cast<std::uint8_t>(kHexDigitValue[p[0]] << 4);
    }
}

std::vector<std::uint8_t> HexStringToBytes(std::string_view hexString, std::int32_t& sizeBits) {
    const std::string_view digits = validateHexDigits(hexString);
    if (digits.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max() / 4)) {
        throw std::length_error("HexStringToBytes: hex string is too long");
    }
    std::vector<std::uint8_t> bytes((digits.size() + 1) / 2);
    hexDigitsToBytes(digits, bytes.data(), bytes.size());
    sizeBits = static_cast<std::int32_t>(digits.size() * 4);
    return bytes;
}

}  // namespace ZeltNavMsg::Detail
