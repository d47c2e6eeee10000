#include "schemas/beidou_cnav/SisaiOcDef.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

using namespace Schema;

SisaiOcDef::SisaiOcDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                       const Modifiers& modifiers)
    : BitStructDef(parent, std::move(name), std::move(ranges), modifiers),
      top(this, "top", bits(0, 11)),
      sisaiOcb(this, "SISAIocb", bits(11, 5)),
      sisaiOc1(this, "SISAIoc1", bits(16, 3)),
      sisaiOc2(this, "SISAIoc2", bits(19, 3)) {}

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks
