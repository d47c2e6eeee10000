#include "schemas/irnss/Message5Def.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

Message5Def::Message5Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                         const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      regionMasks(this, "Region Masks", bits(0, 10)),
      regionId(this, "Region ID", bits(10, 4)),
      igps(this, "IGPs", bits(14, 195)),
      iodi(this, "IODI", bits(209, 3)),
      spare(this, "Spare", bits(212, 8), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::Irnss
