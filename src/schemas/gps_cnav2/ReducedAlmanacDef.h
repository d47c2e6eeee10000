#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_REDUCEDALMANACDEF_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_REDUCEDALMANACDEF_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// One reduced almanac packet, 33 bits.
class ReducedAlmanacDef : public BitStructDef {
  public:
    ReducedAlmanacDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                      const Modifiers& modifiers = {});

    Schema::Unsigned prn;
    Schema::Real deltaA;
    Schema::Real omega0;
    Schema::Real phi0;
    Schema::Flag l1Health;
    Schema::Flag l2Health;
    Schema::Flag l5Health;
};

// Six packets end to end, named "Reduced alamanac 1" ... "Reduced alamanac 6" (the
// listing's own spelling).
class ReducedAlamanacsArrayDef : public BitFieldArrayDef<ReducedAlmanacDef, 6> {
  public:
    ReducedAlamanacsArrayDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                             const Modifiers& modifiers = {})
        : BitFieldArrayDef(parent, std::move(name), std::move(ranges), "Reduced alamanac ", 33,
                           modifiers) {}
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
