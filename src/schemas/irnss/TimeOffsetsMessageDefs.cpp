#include "schemas/irnss/TimeOffsetsMessageDefs.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

TimeOffsetsMessageDef::TimeOffsetsMessageDef(BitStructDef* parent, std::string name,
                                             std::vector<BitRange> ranges,
                                             const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      a0utc(this, "A0utc", bits(0, 16), kSignedReal, {pow2(-35), unit("s")}),
      a1utc(this, "A1utc", bits(16, 13), kSignedReal, {pow2(-51), unit("s/s")}),
      a2utc(this, "A2utc", bits(29, 7), kSignedReal, {pow2(-68), unit("s/s^2")}),
      deltaTls(this, "deltaTls", bits(36, 8), {unit("s")}),
      toutc(this, "toutc", bits(44, 16), {times(16), unit("s")}),
      wnoutc(this, "WNoutc", bits(60, 10), {unit("WN")}),
      wnlsf(this, "WNLSF", bits(70, 10), {unit("WN")}),
      dn(this, "DN", bits(80, 4), {unit("day")}),
      deltaTlsf(this, "deltaTlsf", bits(84, 8), {unit("s")}),
      a0(this, "A0", bits(92, 16), kSignedReal, {pow2(-35), unit("s")}),
      a1(this, "A1", bits(108, 13), kSignedReal, {pow2(-51), unit("s/s")}),
      a2(this, "A2", bits(121, 7), kSignedReal, {pow2(-68), unit("s/s^2")}),
      tot(this, "tot", bits(128, 16), {times(16), unit("s")}),
      wnot(this, "WNot", bits(144, 10), {unit("WN")}),
      gnssId(this, "GNSS ID", bits(154, 3)),
      spare(this, "Spare", bits(157, 63), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::Irnss
