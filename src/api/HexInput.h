#ifndef ZELTNAVMSG_API_HEXINPUT_H
#define ZELTNAVMSG_API_HEXINPUT_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// Parsing of the hex text that carries a message's bits: first digit = most
// significant nibble of the first byte.

namespace ZeltNavMsg::Detail {

// Value of each byte as a hex digit, -1 for anything else.
inline constexpr std::array<std::int8_t, 256> kHexDigitValue = [] {
    std::array<std::int8_t, 256> table{};
    table.fill(-1);
    for (int c = '0'; c <= '9'; ++c) {
        table[static_cast<std::size_t>(c)] = static_cast<std::int8_t>(c - '0');
    }
    for (int c = 'A'; c <= 'F'; ++c) {
        table[static_cast<std::size_t>(c)] = static_cast<std::int8_t>(c - 'A' + 10);
        table[static_cast<std::size_t>(c + 'a' - 'A')] = static_cast<std::int8_t>(c - 'A' + 10);
    }
    return table;
}();

// Strips the ASCII white space characters space, \t, \n, \v, \f and \r from both ends.
[[nodiscard]] std::string_view trimAsciiWhiteSpace(std::string_view text) noexcept;

// Trims `hexString` and checks that every character left is a hex digit.
// Returns the digits. Throws DecodingError "Can't parse symbol as hex digit: X"
// naming the first character that is not one.
[[nodiscard]] std::string_view validateHexDigits(std::string_view hexString);

// Writes the first min(digits.size(), 2 * dstSize) digits of already validated
// `digits` into `dst`, high nibble first. Bytes not reached are left unchanged;
// with an odd digit count the last byte written gets zero in its low nibble.
void hexDigitsToBytes(std::string_view digits, std::uint8_t* dst, std::size_t dstSize) noexcept;

// The whole conversion: trim, validate, and return ceil(L / 2) bytes with
// `sizeBits` = 4 L. Throws std::length_error when 4 L does not fit 32 bits.
[[nodiscard]] std::vector<std::uint8_t> HexStringToBytes(std::string_view hexString,
                                                         std::int32_t& sizeBits);

}  // namespace ZeltNavMsg::Detail

#endif
