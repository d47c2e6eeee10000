#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_SUBFRAME2DEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_SUBFRAME2DEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::Irnss {

// Subframe 2 data, 232 bits: the Keplerian elements of the ephemeris.
class Subframe2Def : public BitStructDef {
  public:
    Subframe2Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Real m0;
    Schema::Unsigned toe;
    Schema::Real e;
    Schema::Real sqrtA;
    Schema::Real omega0;
    Schema::Real omega;
    Schema::Real omegaDot;
    Schema::Real i0;
    Schema::Unsigned spare;
};

}  // namespace ZeltNavMsg::Irnss

#endif
