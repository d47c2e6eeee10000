#ifndef ZELTNAVMSG_LEGACY_SUBFRAMECODERGPSLNAV_H
#define ZELTNAVMSG_LEGACY_SUBFRAMECODERGPSLNAV_H

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "legacy/SubframeCoder.h"

namespace ZeltNavMsg::Legacy {

namespace LNavParity {

constexpr std::uint32_t kDataInversion = 0x3FFFFFC0U;  // d1 ... d24 of a 30-bit word

// Mask of data bits d1 ... d24 of a 30-bit word, d1 being bit 29.
template <typename... Bits>
constexpr std::uint32_t dataBits(Bits... d) {
    return ((1U << (30 - d)) | ...);
}

// The six parity equations: the data bits each one covers, and whether it
// starts from D29* (true) or D30* (false) of the previous word.
struct ParityEquation {
    std::uint32_t mask;
    bool fromD29;
};
constexpr ParityEquation kParity[6] = {
    {dataBits(1, 2, 3, 5, 6, 10, 11, 12, 13, 14, 17, 18, 20, 23), true},      // D25
    {dataBits(2, 3, 4, 6, 7, 11, 12, 13, 14, 15, 18, 19, 21, 24), false},     // D26
    {dataBits(1, 3, 4, 5, 7, 8, 12, 13, 14, 15, 16, 19, 20, 22), true},       // D27
    {dataBits(2, 4, 5, 6, 8, 9, 13, 14, 15, 16, 17, 20, 21, 23), false},      // D28
    {dataBits(1, 3, 5, 6, 7, 9, 10, 14, 15, 16, 17, 18, 21, 22, 24), false},  // D29
    {dataBits(3, 5, 6, 8, 9, 10, 11, 13, 15, 19, 22, 23, 24), true},          // D30
};

// The parity bits D25 ... D30 (D25 = bit 5) that the seeds D29* (bit 1 of the index)
// and D30* (bit 0) contribute.
constexpr auto kParityOfSeeds = [] {
    std::array<std::uint8_t, 4> table{};
    for (std::uint32_t seeds = 0; seeds < 4; ++seeds) {
        for (int k = 0; k < 6; ++k) {
            const std::uint32_t seed = kParity[k].fromD29 ? seeds >> 1 : seeds & 1U;
            table[seeds] = static_cast<std::uint8_t>(table[seeds] | (seed << (5 - k)));
        }
    }
    return table;
}();

// The parity bits each data byte contributes, for data bits d1-d8, d9-d16 and d17-d24:
// three lookups give all six equations of a word at once.
constexpr auto kParityOfByte = [] {
    std::array<std::array<std::uint8_t, 256>, 3> table{};
    for (int part = 0; part < 3; ++part) {
        for (std::uint32_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t word = byte << (6 + 8 * (2 - part));
            std::uint32_t parity = 0;
            for (int k = 0; k < 6; ++k) {
                parity |= (static_cast<std::uint32_t>(std::popcount(word & kParity[k].mask)) & 1U)
                          << (5 - k);
            }
            table[static_cast<std::size_t>(part)][byte] = static_cast<std::uint8_t>(parity);
        }
    }
    return table;
}();

}  // namespace LNavParity

// GPS and QZSS L1 C/A LNAV words: 24 data bits and 6 parity bits of the (32,26)
// Hamming code; the data bits of a word go out inverted when the previous word's
// last parity bit (D30*) is 1.
class SubframeCoderGpsLNav final : public SubframeCoder {
  public:
    explicit constexpr SubframeCoderGpsLNav(std::int32_t variant) noexcept
        : SubframeCoder(variant) {}

    // Recomputes the parity of all ten words from their data bits; for words 2 and 10
    // first chooses the two bits ahead of the parity so that D29 and D30 are 0.
    bool Encode(subframe_t& sf) const override;

    // Undoes the data-bit inversion of every word whose received predecessor ends in 1.
    bool Decode(subframe_t& sf) const override;
    [[nodiscard]] std::uint32_t DecodedWord(const subframe_t& sf,
                                            std::int32_t word) const noexcept override;

    // The six parity bits D25 ... D30 (D25 in bit 5) of the source data bits d1 ... d24
    // of 30-bit word `word` (d1 = bit 29; bits 5-0 are ignored) given the last two bits
    // of the previous coded word (bit 1 = D29*, bit 0 = D30*). The one parity rule of
    // the coder and of the parity check.
    [[nodiscard]] static constexpr std::uint32_t Parity(std::uint32_t word,
                                                        std::uint32_t previous) noexcept {
        using LNavParity::kParityOfByte;
        return static_cast<std::uint32_t>(
            kParityOfByte[0][(word >> 22) & 0xFFU] ^ kParityOfByte[1][(word >> 14) & 0xFFU] ^
            kParityOfByte[2][(word >> 6) & 0xFFU] ^ LNavParity::kParityOfSeeds[previous & 3U]);
    }

    // Received 30-bit word -> source data: the data bits inverted back when D30* of
    // `previous` is 1; the parity bits are left as they are.
    [[nodiscard]] static constexpr std::uint32_t SourceWord(std::uint32_t received,
                                                            std::uint32_t previous) noexcept {
        return (previous & 1U) != 0 ? received ^ LNavParity::kDataInversion : received;
    }

    // The coded form of 30-bit word `word` (first bit = bit 29) given the last two
    // bits of the previous coded word (bit 1 = D29*, bit 0 = D30*).
    [[nodiscard]] static std::uint32_t EncodeWord(std::uint32_t word, std::uint32_t previous,
                                                  bool zeroLastParityBits) noexcept;
};

}  // namespace ZeltNavMsg::Legacy

#endif
