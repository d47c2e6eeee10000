#include "schemas/beidou_cnav/BgtoParametersDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

BgtoParametersDef::BgtoParametersDef(BitStructDef* parent, std::string name,
                                     std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      gnssId(this, "GNSS ID", bits(0, 3)),
      wn0Bgto(this, "WN0BGTO", bits(3, 13), {unit("week")}),
      t0Bgto(this, "t0BGTO", bits(16, 16), {pow2(4), unit("s")}),
      a0Bgto(this, "A0BGTO", bits(32, 16), kSignedReal, {pow2(-35), unit("s")}),
      a1Bgto(this, "A1BGTO", bits(48, 13), kSignedReal, {pow2(-51), unit("s/s")}),
      a2Bgto(this, "A2BGTO", bits(61, 7), kSignedReal, {pow2(-68), unit("s/s^2")}) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
