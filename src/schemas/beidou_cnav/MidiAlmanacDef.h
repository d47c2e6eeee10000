#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_MIDIALMANACDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_MIDIALMANACDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// One midi almanac entry, 156 bits. The argument of perigee is listed as "Omega" and
// sqrtA with units "m^-2", the listing's own texts.
class MidiAlmanacDef : public BitStructDef {
  public:
    MidiAlmanacDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                   const Modifiers& modifiers = {});

    Schema::Unsigned prnA;
    Schema::Unsigned satType;
    Schema::Unsigned wnA;
    Schema::Unsigned toa;
    Schema::Real e;
    Schema::Real deltaI;
    Schema::Real sqrtA;
    Schema::Real omega0;
    Schema::Real dOmega;
    Schema::Real omega;
    Schema::Real m0;
    Schema::Real af0;
    Schema::Real af1;
    Schema::Unsigned health;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
