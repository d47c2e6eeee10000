#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_SISAIOCDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_SISAIOCDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// Signal-in-space accuracy of orbit and clock, 22 bits. "top" is the raw count
// (the interface unit is 300 s) and carries no units.
class SisaiOcDef : public BitStructDef {
  public:
    SisaiOcDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
               const Modifiers& modifiers = {});

    Schema::Unsigned top;
    Schema::Unsigned sisaiOcb;
    Schema::Unsigned sisaiOc1;
    Schema::Unsigned sisaiOc2;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
