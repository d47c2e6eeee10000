#include "schemas/gps_cnav2/Subframe1Def.h"

namespace ZeltNavMsg::GpsCNav2 {

Subframe1Def::Subframe1Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      toi(this, "TOI", bits(0, 9)) {}

}  // namespace ZeltNavMsg::GpsCNav2
