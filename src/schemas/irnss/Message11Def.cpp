#include "schemas/irnss/Message11Def.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

Message11Def::Message11Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      tEop(this, "tEOP", bits(0, 16), {times(16), unit("s")}),
      pmX(this, "PM_X", bits(16, 21), kSignedReal, {pow2(-20), unit("arc-sec")}),
      pmXDot(this, "PM_X dot", bits(37, 15), kSignedReal, {pow2(-21), unit("arc-sec/day")}),
      pmY(this, "PM_Y", bits(52, 21), kSignedReal, {pow2(-20), unit("arc-sec")}),
      pmYDot(this, "PM_Y dot", bits(73, 15), kSignedReal, {pow2(-21), unit("arc-sec/day")}),
      deltaUt1(this, "deltaUT1", bits(88, 31), kSignedReal, {pow2(-24), unit("s")}),
      deltaUt1Dot(this, "deltaUT1 dot", bits(119, 19), kSignedReal, {pow2(-25), unit("s/day")}),
      alpha0(this, "alpha0", bits(138, 8), kSignedReal, {pow2(-30), unit("s")}),
      alpha1(this, "alpha1", bits(146, 8), kSignedReal, {pow2(-27), unit("s/pi")}),
      alpha2(this, "alpha2", bits(154, 8), kSignedReal, {pow2(-24), unit("s/pi^2")}),
      alpha3(this, "alpha3", bits(162, 8), kSignedReal, {pow2(-24), unit("s/pi^3")}),
      beta0(this, "beta0", bits(170, 8), kSignedReal, {pow2(11), unit("s")}),
      beta1(this, "beta1", bits(178, 8), kSignedReal, {pow2(14), unit("s/pi")}),
      beta2(this, "beta2", bits(186, 8), kSignedReal, {pow2(16), unit("s/pi^2")}),
      beta3(this, "beta3", bits(194, 8), kSignedReal, {pow2(16), unit("s/pi^3")}),
      spare(this, "Spare", bits(202, 18), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::Irnss
