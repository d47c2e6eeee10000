#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_IONOPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_IONOPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// Klobuchar coefficients, 64 bits (subframe 3 page 1). All eight carry the units text
// "TECu", the beta terms included.
class IonoParametersDef : public BitStructDef {
  public:
    IonoParametersDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                      const Modifiers& modifiers = {});

    Schema::Real alpha0;
    Schema::Real alpha1;
    Schema::Real alpha2;
    Schema::Real alpha3;
    Schema::Real beta0;
    Schema::Real beta1;
    Schema::Real beta2;
    Schema::Real beta3;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
