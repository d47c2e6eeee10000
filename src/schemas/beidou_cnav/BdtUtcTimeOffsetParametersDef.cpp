#include "schemas/beidou_cnav/BdtUtcTimeOffsetParametersDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

BdtUtcTimeOffsetParametersDef::BdtUtcTimeOffsetParametersDef(BitStructDef* parent, std::string name,
                                                             std::vector<BitRange> ranges,
                                                             const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      a0Utc(this, "A0UTC", bits(0, 16), kSignedReal, {pow2(-35), unit("s")}),
      a1Utc(this, "A1UTC", bits(16, 13), kSignedReal, {pow2(-51), unit("s/s")}),
      a2Utc(this, "A2UTC", bits(29, 7), kSignedReal, {pow2(-68), unit("s/s^2")}),
      dtls(this, "dtls", bits(36, 8), {unit("s")}),
      tot(this, "tot", bits(44, 16), {pow2(4), unit("s")}),
      wnot(this, "WNot", bits(60, 13), {unit("week")}),
      wnlsf(this, "WNlsf", bits(73, 13), {unit("week")}),
      dn(this, "DN", bits(86, 3), {unit("day")}),
      dtlsf(this, "dtlsf", bits(89, 8), {unit("s")}) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
