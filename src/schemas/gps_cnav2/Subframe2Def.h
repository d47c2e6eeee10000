#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_SUBFRAME2DEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_SUBFRAME2DEF_H

#include "schemas/SchemaTypes.h"
#include "schemas/gps_cnav2/ClockCorrectionParametersDef.h"
#include "schemas/gps_cnav2/EphemerisDef.h"

namespace ZeltNavMsg::GpsCNav2 {

// Subframe 2, 600 bits: week, ephemeris, accuracy, clock, group delays, CRC.
class Subframe2Def : public BitStructDef {
  public:
    Subframe2Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned wn;
    Schema::Unsigned itow;
    Schema::Unsigned top;
    Schema::Flag l1cHealth;
    Schema::Signed uraEdIndex;
    EphemerisDef ephemeris;
    Schema::Signed uraNed0Index;
    Schema::Unsigned uraNed1Index;
    Schema::Unsigned uraNed2Index;
    ClockCorrectionParametersDef clockCorrectionParameters;
    Schema::Real tgd;
    Schema::Real iscL1Cp;
    Schema::Real iscL1Cd;
    Schema::Flag isf;
    Schema::Unsigned wnOp;
    Schema::Unsigned reserved;
    Schema::Unsigned crc;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
