#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_MIDIALMANACDEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_MIDIALMANACDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// Midi almanac, 151 bits (subframe 3 page 4).
class MidiAlmanacDef : public BitStructDef {
  public:
    MidiAlmanacDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                   const Modifiers& modifiers = {});

    Schema::Unsigned wna;
    Schema::Unsigned toa;
    Schema::Unsigned prna;
    Schema::Flag l1Health;
    Schema::Flag l2Health;
    Schema::Flag l5Health;
    Schema::Real e;
    Schema::Real deltai;
    Schema::Real dOmega;
    Schema::Real sqrtA;
    Schema::Real omega0;
    Schema::Real w;
    Schema::Real m0;
    Schema::Real af0;
    Schema::Real af1;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
