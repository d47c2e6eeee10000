#ifndef ZELTNAVMSG_ENCODING_PROTECTION_H
#define ZELTNAVMSG_ENCODING_PROTECTION_H

#include <cstdint>

#include "zeltnavmsg/MessageEncoder.h"

// Between the bits as the records read them and the bits as broadcast, per format, with
// the word coders and the checks' own CRC blocks.

namespace ZeltNavMsg::Encoding {

// Bytes enough for the longest frame (GPS CNAV-2, 883 bits).
inline constexpr std::int32_t kMessageBytes = 112;

// Bits of one message of `format`: 300 for the subframe formats, the frame length of the
// others; 0 for a format that is not decoded.
[[nodiscard]] std::int32_t messageBits(MessageFormat format) noexcept;

// The broadcast bits `bytes` (`givenBits` of them given, the rest zero) as the records
// read them, in place: LNAV data bits with the D30* inversion undone; a BeiDou codeword
// with a single error corrected, the corrected bit also set in `damage`. Frames stay.
void toRecordBits(MessageFormat format, std::uint8_t* bytes, std::int32_t givenBits,
                  std::uint8_t* damage);

// The records' bits `bytes` as broadcast, in place: the check bits recomputed or kept
// (LNAV data bits inverted after a D30* of 1 either way).
void toBroadcastBits(MessageFormat format, std::uint8_t* bytes, CheckBits checks);

}  // namespace ZeltNavMsg::Encoding

#endif
