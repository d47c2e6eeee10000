#include "schemas/irnss/Message18Def.h"

namespace ZeltNavMsg::Irnss {

using namespace Schema;

Message18Def::Message18Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      numberOfBlocks(this, "Number of blocks", bits(0, 4)),
      blockId(this, "Block ID", bits(4, 4)),
      text(this, "Text", bits(8, 200)),
      spare(this, "Spare", bits(208, 12), {flag(Hidden)}) {}

}  // namespace ZeltNavMsg::Irnss
