#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_CLOCKCORRECTIONPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_CLOCKCORRECTIONPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// Subframe 2 clock correction, 56 bits.
class ClockCorrectionParametersDef : public BitStructDef {
  public:
    ClockCorrectionParametersDef(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers = {});

    Schema::Real af0;
    Schema::Real af1;
    Schema::Real af2;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
