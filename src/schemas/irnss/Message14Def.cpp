#include "schemas/irnss/Message14Def.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

Message14Def::Message14Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      prnId(this, "PRN ID", bits(0, 6)),
      deltaAf0(this, "deltaAf0", bits(6, 13), kSignedReal, {pow2(-35), unit("s")}),
      deltaAf1(this, "deltaAf1", bits(19, 8), kSignedReal, {pow2(-51), unit("s/s")}),
      udra(this, "UDRA", bits(27, 5)),
      // alpha and beta are dimensionless parameters of the orbit correction.
      deltaAlpha(this, "deltaAlpha", bits(32, 14), kSignedReal, {pow2(-34)}),
      deltaBeta(this, "deltaBeta", bits(46, 14), kSignedReal, {pow2(-34)}),
      deltaGamma(this, "deltaGamma", bits(60, 15), kSignedReal, {pow2(-32), unit("pi")}),
      deltaI(this, "deltai", bits(75, 12), kSignedReal, {pow2(-32), unit("pi")}),
      deltaOmega(this, "deltaOmega", bits(87, 12), kSignedReal, {pow2(-32), unit("pi")}),
      deltaA(this, "deltaA", bits(99, 12), kSignedReal, {pow2(-9), unit("m")}),
      dUdra(this, "dUDRA", bits(111, 5)),
      iodec(this, "IODEC", bits(116, 8)),
      tOd(this, "tOD", bits(124, 16), {times(16), unit("s")}),
      spare(this, "Spare", bits(140, 80), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::Irnss
