#include "schemas/beidou_cnav1/Subframe2Def.h"

namespace ZeltNavMsg::BeidouCNav1 {

using namespace Schema;

Subframe2Def::Subframe2Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      wn(this, "WN", bits(0, 13)),
      how(this, "HOW", bits(13, 8)),
      iodc(this, "IODC", bits(21, 10)),
      iode(this, "IODE", bits(31, 8)),
      ephemerisI(this, "EphemerisI", bits(39, 203)),
      ephemerisII(this, "EphemerisII", bits(242, 222)),
      clockCorrection(this, "ClockCorrectionParameters", bits(464, 69)),
      tgdB2ap(this, "TGDB2ap", bits(533, 12), kSignedReal, {pow2(-34), unit("s")}),
      iscB1cd(this, "ISCB1Cd", bits(545, 12), kSignedReal, {pow2(-34), unit("s")}),
      tgdB1cp(this, "TGDB1Cp", bits(557, 12), kSignedReal, {pow2(-34), unit("s")}),
      rev(this, "Rev", bits(569, 7), {flag(Hidden)}),
      crc(this, "CRC", bits(576, 24), {flag(RawHexOnly)}) {}

}  // namespace ZeltNavMsg::BeidouCNav1
