#include "schemas/beidou_cnav/ClockCorrectionParametersDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

ClockCorrectionParametersDef::ClockCorrectionParametersDef(BitStructDef* parent, std::string name,
                                                           std::vector<BitRange> ranges,
                                                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      toc(this, "toc", bits(0, 11), {times(300), unit("s")}),
      a0(this, "a0", bits(11, 25), kSignedReal, {pow2(-34), unit("s")}),
      a1(this, "a1", bits(36, 22), kSignedReal, {pow2(-50), unit("s/s")}),
      a2(this, "a2", bits(58, 11), kSignedReal, {pow2(-66), unit("s/s2")}) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
