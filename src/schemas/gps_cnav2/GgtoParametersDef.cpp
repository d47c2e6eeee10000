#include "schemas/gps_cnav2/GgtoParametersDef.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

GgtoParametersDef::GgtoParametersDef(BitStructDef* parent, std::string name,
                                     std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      gnssId(this, "GNSS ID", bits(0, 3)),
      tGgto(this, "tGGTO", bits(16, 16), {pow2(4), unit("s")}),
      wnGgto(this, "WNGGTO", bits(3, 13), {unit("week")}),
      a0Ggto(this, "A0GGTO", bits(32, 16), kSignedReal, {pow2(-35), unit("s")}),
      a1Ggto(this, "A1GGTO", bits(48, 13), kSignedReal, {pow2(-51), unit("s/s")}),
      a2Ggto(this, "A2GGTO", bits(61, 7), kSignedReal, {pow2(-68), unit("s/s^2")}) {}

}  // namespace ZeltNavMsg::GpsCNav2
