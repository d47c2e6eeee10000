#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_SUBFRAME1DEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_SUBFRAME1DEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// Subframe 1: the 9-bit time of interval.
class Subframe1Def : public BitStructDef {
  public:
    Subframe1Def(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers = {});

    Schema::Unsigned toi;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
