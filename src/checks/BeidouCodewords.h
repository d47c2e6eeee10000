#ifndef ZELTNAVMSG_CHECKS_BEIDOUCODEWORDS_H
#define ZELTNAVMSG_CHECKS_BEIDOUCODEWORDS_H

#include <cstdint>
#include <span>
#include <vector>

#include "zeltnavmsg/DecodedMessage.h"

// The BCH(15,11) codewords of a BeiDou D1/D2 subframe: their check, the correction of a
// single error, and the subframe as the field tables number it, from corrected bits.
//
// Received, word 1 is 15 unprotected bits and one codeword; words 2-10 carry two
// codewords interleaved bit by bit. Decoded (the form the D1/D2 field tables count in),
// word 1 is its 15 unprotected bits, the codeword's 11 information bits and its 4
// parity bits; words 2-10 are the information bits of codeword 1 and of codeword 2,
// then the parity bits of codeword 1 and of codeword 2.

namespace ZeltNavMsg::Checks {

inline constexpr std::int32_t kBeidouSubframeBits = 300;
inline constexpr std::int32_t kBeidouCodewords = 19;
inline constexpr std::int32_t kBeidouDecodedBytes = 38;

// A received 15-bit codeword (first bit = bit 14, parity in bits 3-0) after the check.
struct BchOutcome {
    std::uint16_t codeword = 0;  // corrected: the nearest codeword
    std::int32_t errorBit = -1;  // the bit (0-14) that was toggled, -1 if none
    std::uint32_t computed = 0;  // parity computed from the received information bits
    std::uint32_t received = 0;  // parity as received
};

// The syndrome names the single bit to toggle. The code is perfect: every received word
// is within one bit of exactly one codeword, so two errors are "corrected" at a wrong bit.
[[nodiscard]] BchOutcome correctBch(std::uint16_t received) noexcept;

// Appends the results of the 19 codewords of a received subframe, in transmission order
// of their first bits: "word 1 BCH", then "word K BCH 1" and "word K BCH 2" for K = 2-10.
// A corrected codeword is CheckStatus::Corrected with correctedBit its input position.
void checkBeidouSubframe(const std::uint8_t* bytes, std::int32_t inputBits,
                         std::vector<CheckResult>& out);

// The received subframe in its decoded form, 38 bytes, every complete codeword
// corrected (information and parity bits). A codeword that the input does not cover
// whole is laid out as received, missing bits zero. Bits 300-303 are copied as given.
void correctBeidouSubframe(const std::uint8_t* bytes, std::int32_t inputBits,
                           std::span<std::uint8_t, kBeidouDecodedBytes> out) noexcept;

// For each bit of the decoded form (0 = first), its position in the received input.
[[nodiscard]] std::span<const std::int16_t, kBeidouSubframeBits> beidouInputPositions() noexcept;

}  // namespace ZeltNavMsg::Checks

#endif
