#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_TIMEPARAMETERSDEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_TIMEPARAMETERSDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// GPS-UTC offset and leap second, 98 bits (subframe 3 page 1).
class TimeParametersDef : public BitStructDef {
  public:
    TimeParametersDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                      const Modifiers& modifiers = {});

    Schema::Real a0;
    Schema::Real a1;
    Schema::Real a2;
    Schema::Signed dtls;
    Schema::Unsigned tot;
    Schema::Unsigned wnOt;
    Schema::Unsigned wnLsf;
    Schema::Unsigned dn;
    Schema::Signed dtlsf;
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
