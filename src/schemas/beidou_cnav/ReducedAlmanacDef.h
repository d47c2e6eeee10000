#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_REDUCEDALMANACDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_REDUCEDALMANACDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// One reduced almanac entry, 38 bits. "Health" is the 8-bit health word, not a flag.
class ReducedAlmanacDef : public BitStructDef {
  public:
    ReducedAlmanacDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                      const Modifiers& modifiers = {});

    Schema::Unsigned prnA;
    Schema::Unsigned satType;
    Schema::Real deltaA;
    Schema::Real omega0;
    Schema::Real phi0;
    Schema::Unsigned health;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
