#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV2_REDUCEDALAMANACSARRAYDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV2_REDUCEDALAMANACSARRAYDEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/beidou_cnav/ReducedAlmanacDef.h"

namespace ZeltNavMsg::BeidouCNav2 {

// The three reduced almanac entries of message type 31, "Reduced almanac 1" ...
// "Reduced almanac 3", 38 bits each.
class ReducedAlamanacsArrayDef
    : public BitFieldArrayDef<BeidouCNav::DataBlocks::ReducedAlmanacDef, 3> {
  public:
    ReducedAlamanacsArrayDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                             const Modifiers& modifiers = {})
        : BitFieldArrayDef(parent, std::move(name), std::move(ranges), "Reduced almanac ", 38,
                           modifiers) {}
};

}  // namespace ZeltNavMsg::BeidouCNav2

#endif
