#include "schemas/gps_cnav2/IonoParametersDef.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

IonoParametersDef::IonoParametersDef(BitStructDef* parent, std::string name,
                                     std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      alpha0(this, "alpha0", bits(0, 8), kSignedReal, {pow2(-30), unit("TECu")}),
      alpha1(this, "alpha1", bits(8, 8), kSignedReal, {pow2(-27), unit("TECu")}),
      alpha2(this, "alpha2", bits(16, 8), kSignedReal, {pow2(-24), unit("TECu")}),
      alpha3(this, "alpha3", bits(24, 8), kSignedReal, {pow2(-24), unit("TECu")}),
      beta0(this, "beta0", bits(32, 8), kSignedReal, {pow2(11), unit("TECu")}),
      beta1(this, "beta1", bits(40, 8), kSignedReal, {pow2(14), unit("TECu")}),
      beta2(this, "beta2", bits(48, 8), kSignedReal, {pow2(16), unit("TECu")}),
      beta3(this, "beta3", bits(56, 8), kSignedReal, {pow2(16), unit("TECu")}) {}

}  // namespace ZeltNavMsg::GpsCNav2
