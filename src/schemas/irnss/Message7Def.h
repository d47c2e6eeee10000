#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE7DEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE7DEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::Irnss {

// Message type 7, 220 bits: the almanac of satellite "PRNa".
class Message7Def : public BitStructDef {
  public:
    Message7Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                const Modifiers& modifiers = {});

    Schema::Unsigned wna;
    Schema::Real e;
    Schema::Unsigned toa;
    Schema::Real i0;
    Schema::Real omegaDot;
    Schema::Real sqrtA;
    Schema::Real omega0;
    Schema::Real omega;
    Schema::Real m0;
    Schema::Real af0;
    Schema::Real af1;
    Schema::Unsigned prna;
    Schema::Real isc;
    Schema::Unsigned spare;
};

}  // namespace ZeltNavMsg::Irnss

#endif
