#ifndef ZELTNAVMSG_LOGS_RECORDBITS_H
#define ZELTNAVMSG_LOGS_RECORDBITS_H

#include <array>
#include <cstddef>
#include <cstdint>

// From the words a receiver stores to the message bits as transmitted, and the checks
// that the reader makes on records before it accepts them. Bits are packed first bit
// first: bit 0 is the most significant bit of byte 0.

namespace ZeltNavMsg::Logs {

// Bits of the longest message (GPS CNAV-2, 883 bits) and a little room.
struct MessageBits {
    static constexpr std::size_t kBytes = 112;

    std::array<std::uint8_t, kBytes> bytes{};
    std::size_t bitCount = 0;

    void clear() noexcept {
        bytes.fill(0);
        bitCount = 0;
    }
    // Appends the low `count` bits of `value` (count <= 32), most significant first.
    void append(std::uint32_t value, unsigned count) noexcept;
    // Appends `count` bits of `src` from bit `first`.
    void appendBits(const std::uint8_t* src, std::size_t first, std::size_t count) noexcept;
};

// Little-endian 16- and 32-bit fields of a log record.
[[nodiscard]] inline std::uint16_t le16(const std::uint8_t* p) noexcept {
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}
[[nodiscard]] inline std::uint32_t le32(const std::uint8_t* p) noexcept {
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

// `count` bits (at most 32) of `data` from bit `first`, first bit most significant.
[[nodiscard]] std::uint32_t readBits(const std::uint8_t* data, std::size_t first,
                                     unsigned count) noexcept;

// `words` little-endian 32-bit words from `p` as one bit stream, each word's most
// significant bit first: the raw bits of a record. `out` holds 4 * words bytes.
void wordsToBits(const std::uint8_t* p, std::size_t words, std::uint8_t* out) noexcept;

// Ten LNAV words stored right-aligned in 32-bit words (bits 31-30 ignored), each
// complemented as a whole when the previous transmitted word ended in D30 = 1: appends
// the 300 bits as transmitted.
void appendLNavWords(const std::array<std::uint32_t, 10>& stored, MessageBits& out) noexcept;

// Ten BeiDou D1/D2 words of 30 bits with words 2-10 de-interleaved as
// info1(11) info2(11) parity1(4) parity2(4): appends the 300 bits as transmitted,
// words 2-10 interleaved again.
void appendBeidouWords(const std::array<std::uint32_t, 10>& stored, MessageBits& out) noexcept;

// CRC-24Q of `count` bits from bit `first`, compared with the 24 bits after them.
[[nodiscard]] bool crc24Passes(const std::uint8_t* data, std::size_t first,
                               std::size_t count) noexcept;

// B-CNAV1 subframe 1 as 72 received symbols from bit 0: true when the PRN codeword
// (symbols 0-20) and the SOH codeword (symbols 21-71) satisfy their BCH recurrences.
[[nodiscard]] bool b1cSubframe1Passes(const std::uint8_t* symbols) noexcept;

// GPS/QZSS L1C subframe 1 as 52 received symbols from bit `first`: the 9-bit TOI, or
// -1 when symbols 1-51 (each XORed with symbol 0) are no BCH(51,8) codeword.
[[nodiscard]] std::int32_t l1cToi(const std::uint8_t* symbols, std::size_t first) noexcept;

// Writes the bits as lower-case hex digits, the last one zero-padded; returns the count.
std::size_t writeHex(const MessageBits& bits, char* out) noexcept;

}  // namespace ZeltNavMsg::Logs

#endif
