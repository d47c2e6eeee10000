#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_CLOCKCORRECTIONPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_CLOCKCORRECTIONPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// Satellite clock correction, 69 bits: toc and the polynomial a0, a1, a2.
class ClockCorrectionParametersDef : public BitStructDef {
  public:
    ClockCorrectionParametersDef(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers = {});

    Schema::Unsigned toc;
    Schema::Real a0;
    Schema::Real a1;
    Schema::Real a2;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
