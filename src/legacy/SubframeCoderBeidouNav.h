#ifndef ZELTNAVMSG_LEGACY_SUBFRAMECODERBEIDOUNAV_H
#define ZELTNAVMSG_LEGACY_SUBFRAMECODERBEIDOUNAV_H

#include <cstdint>

#include "legacy/SubframeCoder.h"

namespace ZeltNavMsg::Legacy {

// BeiDou D1 and D2 words: BCH(15,11) codewords with generator x^4 + x + 1.
//
// As received, word 1 is 15 uncoded bits (preamble and the 4 bits after it) and one
// codeword; words 2-10 carry two codewords interleaved bit by bit, the first
// codeword's bit first. Decoded, word 1 is its 15 uncoded bits, 11 information bits
// and 4 zero bits; words 2-10 are the 11 information bits of each codeword, then
// 8 zero bits.
class SubframeCoderBeidouNav final : public SubframeCoder {
  public:
    explicit constexpr SubframeCoderBeidouNav(std::int32_t variant) noexcept
        : SubframeCoder(variant) {}

    // Decoded layout -> received layout: adds the parity and interleaves.
    bool Encode(subframe_t& sf) const override;

    // Received layout -> decoded layout, every codeword through BchDecode.
    bool Decode(subframe_t& sf) const override;
    [[nodiscard]] std::uint32_t DecodedWord(const subframe_t& sf,
                                            std::int32_t word) const noexcept override;

    // The 11 information bits of a 15-bit codeword (information first, parity in the
    // low 4 bits) after this decoder's correction step. The syndrome comes from four
    // one-bit registers that combine by OR, not XOR, and a matched error pattern is
    // set into the word rather than toggled; only patterns for bits 0, 1, 3 and 7
    // land inside the codeword. Kept as it is: the listing of a damaged codeword
    // depends on it.
    [[nodiscard]] static std::uint16_t BchDecode(std::uint16_t codeword) noexcept;

    // The BCH(15,11) codeword of 11 information bits: the information in bits 14-4,
    // the parity (the remainder of info * x^4 divided by x^4 + x + 1) in bits 3-0.
    [[nodiscard]] static std::uint16_t BchEncode(std::uint16_t info) noexcept;

    // The two codewords of a received 30-bit word of words 2-10 (first bit = bit 29):
    // the first from the bits at even offsets from the start, the second from the odd.
    struct CodewordPair {
        std::uint16_t first;
        std::uint16_t second;
    };
    [[nodiscard]] static CodewordPair DeinterleaveWord(std::uint32_t word) noexcept;

    // A received word 2-10 from its two 15-bit codewords (information first, parity in
    // the low 4 bits): the bits alternate, the first codeword's bit first.
    [[nodiscard]] static std::uint32_t InterleaveWord(std::uint32_t first,
                                                      std::uint32_t second) noexcept;
};

}  // namespace ZeltNavMsg::Legacy

#endif
