#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_BGTOPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_BGTOPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// BDT-GNSS time offset, 68 bits: which system, reference week and time, polynomial.
class BgtoParametersDef : public BitStructDef {
  public:
    BgtoParametersDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                      const Modifiers& modifiers = {});

    Schema::Unsigned gnssId;
    Schema::Unsigned wn0Bgto;
    Schema::Unsigned t0Bgto;
    Schema::Real a0Bgto;
    Schema::Real a1Bgto;
    Schema::Real a2Bgto;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
