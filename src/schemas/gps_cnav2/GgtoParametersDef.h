#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_GGTOPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_GGTOPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// GPS-GNSS time offset, 68 bits (subframe 3 page 2). "tGGTO" is listed before "WNGGTO"
// although its bits come after.
class GgtoParametersDef : public BitStructDef {
  public:
    GgtoParametersDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                      const Modifiers& modifiers = {});

    Schema::Unsigned gnssId;
    Schema::Unsigned tGgto;
    Schema::Unsigned wnGgto;
    Schema::Real a0Ggto;
    Schema::Real a1Ggto;
    Schema::Real a2Ggto;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
