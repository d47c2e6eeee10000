#include "schemas/gps_cnav2/TimeParametersDef.h"

namespace ZeltNavMsg::GpsCNav2 {

using namespace Schema;

TimeParametersDef::TimeParametersDef(BitStructDef* parent, std::string name,
                                     std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      a0(this, "A0", bits(0, 16), kSignedReal, {pow2(-35), unit("s")}),
      a1(this, "A1", bits(16, 13), kSignedReal, {pow2(-51), unit("s/s")}),
      a2(this, "A2", bits(29, 7), kSignedReal, {pow2(-68), unit("s/s^2")}),
      dtls(this, "dtls", bits(36, 8), {unit("s")}),
      tot(this, "tot", bits(44, 16), {pow2(4), unit("s")}),
      wnOt(this, "WNot", bits(60, 13), {unit("week")}),
      wnLsf(this, "WNlsf", bits(73, 13), {unit("week")}),
      dn(this, "DN", bits(86, 4), {unit("day")}),
      dtlsf(this, "dtlsf", bits(90, 8), {unit("s")}) {}

}  // namespace ZeltNavMsg::GpsCNav2
