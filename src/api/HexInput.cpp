#include "api/HexInput.h"

#include <limits>
#include <stdexcept>
#include <string>

#include "zeltnavmsg/NavMessageDecoder.h"

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
