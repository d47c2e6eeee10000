#include "schemas/beidou_cnav/EopParametersDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

EopParametersDef::EopParametersDef(BitStructDef* parent, std::string name,
                                   std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      teop(this, "teop", bits(0, 16), {pow2(4), unit("s")}),
      pmX(this, "PM_X", bits(16, 21), kSignedReal, {pow2(-20), unit("arc-seconds")}),
      dPmX(this, "dPM_X", bits(37, 15), kSignedReal, {pow2(-21), unit("arc-seconds/day")}),
      pmY(this, "PM_Y", bits(52, 21), kSignedReal, {pow2(-20), unit("arc-seconds")}),
      dPmY(this, "dPM_Y", bits(73, 15), kSignedReal, {pow2(-21), unit("arc-seconds/day")}),
      deltaUt1(this, "DeltaUT1", bits(88, 31), kSignedReal, {pow2(-24), unit("s")}),
      dDeltaUt1(this, "dDeltaUT1", bits(119, 19), kSignedReal, {pow2(-25), unit("s/day")}) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
