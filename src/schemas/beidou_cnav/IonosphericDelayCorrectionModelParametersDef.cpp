#include "schemas/beidou_cnav/IonosphericDelayCorrectionModelParametersDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

IonosphericDelayCorrectionModelParametersDef::IonosphericDelayCorrectionModelParametersDef(
    BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
    const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      alpha1(this, "alpha1", bits(0, 10), kUnsignedReal, {pow2(-3), unit("TECu")}),
      alpha2(this, "alpha2", bits(10, 8), kSignedReal, {pow2(-3), unit("TECu")}),
      alpha3(this, "alpha3", bits(18, 8), kUnsignedReal, {pow2(-3), unit("TECu")}),
      alpha4(this, "alpha4", bits(26, 8), kUnsignedReal, {pow2(-3), unit("TECu")}),
      alpha5(this, "alpha5", bits(34, 8), kUnsignedReal, {pow2(-3), unit("TECu")}),
      alpha6(this, "alpha6", bits(42, 8), kSignedReal, {pow2(-3), unit("TECu")}),
      alpha7(this, "alpha7", bits(50, 8), kSignedReal, {pow2(-3), unit("TECu")}),
      alpha8(this, "alpha8", bits(58, 8), kSignedReal, {pow2(-3), unit("TECu")}),
      alpha9(this, "alpha9", bits(66, 8), kSignedReal, {pow2(-3), unit("TECu")}) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
