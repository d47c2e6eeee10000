#include "schemas/irnss/Subframe2Def.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

// Angles in semicircles (power-of-two scale only, units text "pi").
Subframe2Def::Subframe2Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      m0(this, "M0", bits(0, 32), kSignedReal, {pow2(-31), unit("pi")}),
      toe(this, "toe", bits(32, 16), {times(16), unit("s")}),
      e(this, "e", bits(48, 32), kUnsignedReal, {pow2(-33)}),
      sqrtA(this, "sqrtA", bits(80, 32), kUnsignedReal, {pow2(-19), unit("m^1/2")}),
      omega0(this, "Omega0", bits(112, 32), kSignedReal, {pow2(-31), unit("pi")}),
      omega(this, "omega", bits(144, 32), kSignedReal, {pow2(-31), unit("pi")}),
      omegaDot(this, "omegaDot", bits(176, 22), kSignedReal, {pow2(-41), unit("pi/s")}),
      i0(this, "i0", bits(198, 32), kSignedReal, {pow2(-31), unit("pi")}),
      spare(this, "Spare", bits(230, 2), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::Irnss
