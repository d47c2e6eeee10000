#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_DIFFERENTIALCORRECTIONDEFS_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_DIFFERENTIALCORRECTIONDEFS_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// Clock differential correction, 34 bits (subframe 3 page 5).
class ClockDifferentialCorrectionDef : public BitStructDef {
  public:
    ClockDifferentialCorrectionDef(BitStructDef* parent, std::string name,
                                   std::vector<BitRange> ranges, const Modifiers& modifiers = {});

    Schema::Unsigned prn;
    Schema::Real deltaAf0;
    Schema::Real deltaAf1;
    Schema::Signed udra;
};

// Ephemeris differential correction, 92 bits (subframe 3 page 5). "dUDRA" has neither
// scale nor units: it prints as a raw signed number.
class EphemerisDifferentialCorrectionDef : public BitStructDef {
  public:
    EphemerisDifferentialCorrectionDef(BitStructDef* parent, std::string name,
                                       std::vector<BitRange> ranges,
                                       const Modifiers& modifiers = {});

    Schema::Unsigned prn;
    Schema::Real deltaAlpha;
    Schema::Real deltaBeta;
    Schema::Real deltaGamma;
    Schema::Real deltai;
    Schema::Real deltaOmega;
    Schema::Real deltaA;
    Schema::Real dUdra;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
