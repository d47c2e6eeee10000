#ifndef ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV1_SUBFRAME2DEF_H
#define ZELTNAVMSG_SCHEMAS_BEIDOU_CNAV1_SUBFRAME2DEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/beidou_cnav/ClockCorrectionParametersDef.h"
#include "schemas/beidou_cnav/EphemerisIDef.h"
#include "schemas/beidou_cnav/EphemerisIIDef.h"

namespace ZeltNavMsg::BeidouCNav1 {

// Subframe 2, 600 bits: week, hour of week, issue numbers, the whole ephemeris, clock
// correction and group delays, then the CRC.
class Subframe2Def : public BitStructDef {
  public:
    Subframe2Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned wn;
    Schema::Unsigned how;
    Schema::Unsigned iodc;
    Schema::Unsigned iode;
    BeidouCNav::DataBlocks::EphemerisIDef ephemerisI;
    BeidouCNav::DataBlocks::EphemerisIIDef ephemerisII;
    BeidouCNav::DataBlocks::ClockCorrectionParametersDef clockCorrection;
    Schema::Real tgdB2ap;
    Schema::Real iscB1cd;
    Schema::Real tgdB1cp;
    Schema::Unsigned rev;
    Schema::Unsigned crc;
};

}  // namespace ZeltNavMsg::BeidouCNav1

#endif
