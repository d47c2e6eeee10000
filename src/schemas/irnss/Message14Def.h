#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE14DEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE14DEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::Irnss {

// Message type 14, 220 bits: clock and ephemeris differential corrections for the
// satellite "PRN ID".
class Message14Def : public BitStructDef {
  public:
    Message14Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned prnId;
    Schema::Real deltaAf0;
    Schema::Real deltaAf1;
    Schema::Signed udra;
    Schema::Real deltaAlpha;
    Schema::Real deltaBeta;
    Schema::Real deltaGamma;
    Schema::Real deltaI;
    Schema::Real deltaOmega;
    Schema::Real deltaA;
    Schema::Signed dUdra;
    Schema::Unsigned iodec;
    Schema::Unsigned tOd;
    Schema::Unsigned spare;
};

}  // namespace ZeltNavMsg::Irnss

#endif
