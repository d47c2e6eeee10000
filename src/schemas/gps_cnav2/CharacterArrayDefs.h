#ifndef ZELTNAVMSG_SCHEMAS_GPS_CNAV2_CHARACTERARRAYDEFS_H
#define ZELTNAVMSG_SCHEMAS_GPS_CNAV2_CHARACTERARRAYDEFS_H

#include "schemas/SchemaTypes.h"

namespace ZeltNavMsg::GpsCNav2 {

// Text page characters "CH1" ... "CH29", 8 bits each, shown as their codes.
class BitFieldCharArrayDef : public BitFieldArrayDef<Schema::Unsigned, 29> {
  public:
    BitFieldCharArrayDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                         const Modifiers& modifiers = {})
        : BitFieldArrayDef(parent, std::move(name), std::move(ranges), "CH", 8, modifiers) {}
};

// SV configuration codes "PRN-1" ... "PRN-63", 3 bits each.
class SvConfigArrayDef : public BitFieldArrayDef<Schema::Unsigned, 63> {
  public:
    SvConfigArrayDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                     const Modifiers& modifiers = {})
        : BitFieldArrayDef(parent, std::move(name), std::move(ranges), "PRN-", 3, modifiers) {}
};

}  // namespace ZeltNavMsg::GpsCNav2

#endif
