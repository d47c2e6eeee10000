#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_SUBFRAME1DEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_SUBFRAME1DEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::Irnss {

// Subframe 1 data, 232 bits: week, clock, accuracy, group delay, IODEC, health flags
// and the harmonic corrections of the ephemeris.
class Subframe1Def : public BitStructDef {
  public:
    Subframe1Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned week;
    Schema::Real af0;
    Schema::Real af1;
    Schema::Real af2;
    Schema::Unsigned ura;
    Schema::Unsigned toc;
    Schema::Real tgd;
    Schema::Real deltaN;
    Schema::Unsigned iodec;
    Schema::Unsigned reserved;
    Schema::Flag l5Flag;
    Schema::Flag sFlag;
    Schema::Real cuc;
    Schema::Real cus;
    Schema::Real cic;
    Schema::Real cis;
    Schema::Real crc;
    Schema::Real crs;
    Schema::Real idot;
    Schema::Unsigned spare;
};

}  // namespace ZeltNavMsg::Irnss

#endif
