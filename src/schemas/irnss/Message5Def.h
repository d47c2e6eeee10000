#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE5DEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE5DEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/irnss/IonoGridCorrectionDef.h"

namespace ZeltNavMsg::Irnss {

// Message type 5, 220 bits: grid ionospheric corrections for 15 grid points of one
// region.
class Message5Def : public BitStructDef {
  public:
    Message5Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                const Modifiers& modifiers = {});

    Schema::Unsigned regionMasks;
    Schema::Unsigned regionId;
    IonoGridCorrectionsArrayDef igps;
    Schema::Unsigned iodi;
    Schema::Unsigned spare;
};

}  // namespace ZeltNavMsg::Irnss

#endif
