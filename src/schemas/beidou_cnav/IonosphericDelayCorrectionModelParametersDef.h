#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_IONOSPHERICDELAYCORRECTIONMODELPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_IONOSPHERICDELAYCORRECTIONMODELPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// BDGIM ionospheric model, 74 bits: nine coefficients in TECu, scale 2^-3.
// alpha1 (10 bits) and alpha3..alpha5 are unsigned, the others two's complement, as
// broadcast.
class IonosphericDelayCorrectionModelParametersDef : public BitStructDef {
  public:
    IonosphericDelayCorrectionModelParametersDef(BitStructDef* parent, std::string name,
                                                 std::vector<BitRange> ranges,
                                                 const Modifiers& modifiers = {});

    Schema::Real alpha1;
    Schema::Real alpha2;
    Schema::Real alpha3;
    Schema::Real alpha4;
    Schema::Real alpha5;
    Schema::Real alpha6;
    Schema::Real alpha7;
    Schema::Real alpha8;
    Schema::Real alpha9;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
