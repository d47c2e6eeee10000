#ifndef ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE11DEF_H
#define ZELTNAVMSG_SCHEMAS_IRNSS_MESSAGE11DEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::Irnss {

// Message type 11, 220 bits: Earth orientation parameters and the Klobuchar
// ionospheric coefficients.
class Message11Def : public BitStructDef {
  public:
    Message11Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned tEop;
    Schema::Real pmX;
    Schema::Real pmXDot;
    Schema::Real pmY;
    Schema::Real pmYDot;
    Schema::Real deltaUt1;
    Schema::Real deltaUt1Dot;
    Schema::Real alpha0;
    Schema::Real alpha1;
    Schema::Real alpha2;
    Schema::Real alpha3;
    Schema::Real beta0;
    Schema::Real beta1;
    Schema::Real beta2;
    Schema::Real beta3;
    Schema::Unsigned spare;
};

}  // namespace ZeltNavMsg::Irnss

#endif
