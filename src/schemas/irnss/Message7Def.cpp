#include "schemas/irnss/Message7Def.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

Message7Def::Message7Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                         const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      wna(this, "WNa", bits(0, 10), {unit("WN")}),
      e(this, "e", bits(10, 16), kUnsignedReal, {pow2(-21)}),
      toa(this, "toa", bits(26, 16), {times(16), unit("s")}),
      i0(this, "i0", bits(42, 24), kSignedReal, {pow2(-23), unit("pi")}),
      omegaDot(this, "omegaDot", bits(66, 16), kSignedReal, {pow2(-38), unit("pi/s")}),
      sqrtA(this, "sqrtA", bits(82, 24), kUnsignedReal, {pow2(-11), unit("m^1/2")}),
      omega0(this, "Omega0", bits(106, 24), kSignedReal, {pow2(-23), unit("pi")}),
      omega(this, "omega", bits(130, 24), kSignedReal, {pow2(-23), unit("pi")}),
      m0(this, "M0", bits(154, 24), kSignedReal, {pow2(-23), unit("pi")}),
      af0(this, "af0", bits(178, 11), kSignedReal, {pow2(-20), unit("s")}),
      af1(this, "af1", bits(189, 11), kSignedReal, {pow2(-38), unit("s/s")}),
      prna(this, "PRNa", bits(200, 6)),
      isc(this, "ISC", bits(206, 8), kSignedReal, {pow2(-31), unit("s")}),
      spare(this, "Spare", bits(214, 6), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::Irnss
