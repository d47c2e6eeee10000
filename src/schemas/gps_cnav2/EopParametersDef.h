#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_EOPPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_EOPPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// Earth orientation parameters, 138 bits (subframe 3 page 2).
class EopParametersDef : public BitStructDef {
  public:
    EopParametersDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                     const Modifiers& modifiers = {});

    Schema::Unsigned teop;
    Schema::Real pmX;
    Schema::Real dPmX;
    Schema::Real pmY;
    Schema::Real dPmY;
    Schema::Real deltaUtgps;
    Schema::Real dDeltaUtgps;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
