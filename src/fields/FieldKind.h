#ifndef ZELTNAVMSG_FIELDS_FIELDKIND_H
#define ZELTNAVMSG_FIELDS_FIELDKIND_H

#include <cstdint>

namespace ZeltNavMsg {

enum class FieldKind : std::int32_t {
    UnsignedInt = 0,
    SignedInt = 1,
    Double = 2,
    Bool = 3,
    Struct = 4,
    Array = 5,
};

// Display flags of a definition, OR-ed together by FlagsModifier.
enum FieldFlags : std::uint32_t {
    Hidden = 1,       // never printed; an unsigned field so marked may exceed 64 bits
    Transparent = 2,  // a structure without heading, its members at the parent's level
    RawHexOnly = 4,   // a value printed as its raw hex digits only
    NoDefaults = 8,   // writeDefault does not descend into this structure
};

}  // namespace ZeltNavMsg

#endif
