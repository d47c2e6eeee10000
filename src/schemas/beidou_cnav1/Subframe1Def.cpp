#include "schemas/beidou_cnav1/Subframe1Def.h"

namespace ZeltNavMsg::BeidouCNav1 {

using namespace Schema;

Subframe1Def::Subframe1Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      prn(this, "PRN", bits(0, 6)),
      soh(this, "SOH", bits(6, 8), {times(18)}) {}  // counted in 18 s units

}  // namespace ZeltNavMsg::BeidouCNav1
