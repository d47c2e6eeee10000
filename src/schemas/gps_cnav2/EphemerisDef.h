#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_EPHEMERISDEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_EPHEMERISDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// Subframe 2 ephemeris, 421 bits. Angles scale by 2^n x pi while their units stay "pi".
class EphemerisDef : public BitStructDef {
  public:
    EphemerisDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned toe;
    Schema::Real deltaA;
    Schema::Real dA;
    Schema::Real deltaN0;
    Schema::Real dDeltaN0;
    Schema::Real m0;
    Schema::Real e;
    Schema::Real w;
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

}  // namespace ZeltNavMsg::GpsCNav2

#endif
