#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_FRAMEDEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_FRAMEDEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/gps_cnav2/Subframe1Def.h"
#include "schemas/gps_cnav2/Subframe2Def.h"
#include "schemas/gps_cnav2/Subframe3Def.h"

namespace ZeltNavMsg::GpsCNav2 {

// One L1C navigation frame as decoded bits: 9-bit TOI, 600-bit subframe 2 and
// 274-bit subframe 3, 883 bits in all.
class FrameDef : public BitStructDef {
  public:
    static constexpr int kBits = 883;

    FrameDef();

    Subframe1Def subframe1;
    Subframe2Def subframe2;
    Subframe3Def subframe3;
};

// The frame definition, built on first use and never changed; safe to use from any
// thread, and from a host's own static initialisers.
const FrameDef& gpsCNav2FrameDef();

}  // namespace ZeltNavMsg::GpsCNav2

#endif
