#ifndef ZELTNAVMSG_LEGACY_SUBFRAMECODERGPSLNAV_H
#define ZELTNAVMSG_LEGACY_SUBFRAMECODERGPSLNAV_H

#include <cstdint>

#include "legacy/SubframeCoder.h"

namespace ZeltNavMsg::Legacy {

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

    // The six parity bits D25 ... D30 (D25 in bit 5) of the source data bits d1 ... d24
    // of 30-bit word `word` (d1 = bit 29; bits 5-0 are ignored) given the last two bits
    // of the previous coded word (bit 1 = D29*, bit 0 = D30*). The one parity rule of
    // the coder and of the parity check.
    [[nodiscard]] static std::uint32_t Parity(std::uint32_t word, std::uint32_t previous) noexcept;

    // Received 30-bit word -> source data: the data bits inverted back when D30* of
    // `previous` is 1; the parity bits are left as they are.
    [[nodiscard]] static std::uint32_t SourceWord(std::uint32_t received,
                                                  std::uint32_t previous) noexcept;

    // The coded form of 30-bit word `word` (first bit = bit 29) given the last two
    // bits of the previous coded word (bit 1 = D29*, bit 0 = D30*).
    [[nodiscard]] static std::uint32_t EncodeWord(std::uint32_t word, std::uint32_t previous,
                                                  bool zeroLastParityBits) noexcept;
};

}  // namespace ZeltNavMsg::Legacy

#endif
