#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_EPHEMERISIIDEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV_EPHEMERISIIDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::BeidouCNav::DataBlocks {

// Second half of the ephemeris, 222 bits: orbit plane and harmonic corrections.
// Unlike GPS CNAV, the node rate is broadcast whole (19 bits), not as a difference.
class EphemerisIIDef : public BitStructDef {
  public:
    EphemerisIIDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                   const Modifiers& modifiers = {});

    Schema::Real omega0;
    Schema::Real i0;
    Schema::Real dOmega;
    Schema::Real di0;
    Schema::Real cis;
    Schema::Real cic;
    Schema::Real crs;
    Schema::Real crc;
    Schema::Real cus;
    Schema::Real cuc;
};

}  // namespace ZeltNavMsg::BeidouCNav::DataBlocks

#endif
