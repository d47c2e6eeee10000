#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_EPHEMERISIDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_EPHEMERISIDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// First half of the ephemeris, 203 bits: reference time, orbit type, semi-major
// axis and mean motion as differences from their reference values, M0, e, w. Angles
// scale by 2^n x pi while their units stay "pi".
class EphemerisIDef : public BitStructDef {
  public:
    EphemerisIDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                  const Modifiers& modifiers = {});

    Schema::Unsigned toe;
    Schema::Unsigned satType;
    Schema::Real deltaA;
    Schema::Real dA;
    Schema::Real deltaN0;
    Schema::Real dDeltaN0;
    Schema::Real m0;
    Schema::Real e;
    Schema::Real w;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
