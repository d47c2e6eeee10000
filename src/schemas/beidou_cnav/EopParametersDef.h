#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_EOPPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_EOPPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// Earth orientation parameters, 138 bits: polar motion and UT1-UTC with rates.
class EopParametersDef : public BitStructDef {
  public:
    EopParametersDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                     const Modifiers& modifiers = {});

    Schema::Unsigned teop;
    Schema::Real pmX;
    Schema::Real dPmX;
    Schema::Real pmY;
    Schema::Real dPmY;
    Schema::Real deltaUt1;
    Schema::Real dDeltaUt1;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
