#ifndef ZELTNAVMSG_CHECKS_CHECKS_H
#define ZELTNAVMSG_CHECKS_CHECKS_H

#include <cstdint>
#include <vector>

#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/NavMessageDecoder.h"

// The integrity checks of one message, in message order:
//   GPS and QZSS LNAV   "word 1 parity" ... "word 10 parity": the six parity bits of each
//                       word, D29*/D30* from the previous word as received (0 for word 1)
//   BeiDou D1 and D2    the 19 BCH(15,11) codewords (see BeidouCodewords.h)
//   GPS CNAV-2          "subframe 2 CRC-24Q", "subframe 3 CRC-24Q"
//   BeiDou B-CNAV1      "subframe 2 CRC-24Q", "subframe 3 CRC-24Q"
//   BeiDou B-CNAV2      "frame CRC-24Q"
//   IRNSS               "subframe CRC-24Q"
// A CRC covers the bits of the structure whose "CRC" field it is, up to that field, as
// the format's definition tree lays them out. Names and bit segments are static data.

namespace ZeltNavMsg::Checks {

// Appends one result per word, codeword or CRC block of a message of `format` to `out`
// (other formats have none). `bytes` hold `inputBits` input bits, bit 0 the most
// significant bit of bytes[0]; no byte past the last given bit is read. A check whose
// bits are not all given is CheckStatus::Incomplete. A frame format's bits past its
// frame length are ignored.
void run(MessageFormat format, const std::uint8_t* bytes, std::int32_t inputBits,
         std::vector<CheckResult>& out);

// Writes the CRC-24Q of every block of a frame format's message into its CRC bits, in
// message order; `bytes` hold the whole frame. Other formats are left as they are.
void sealCrcs(MessageFormat format, std::uint8_t* bytes);

}  // namespace ZeltNavMsg::Checks

#endif
