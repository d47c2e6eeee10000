#ifndef ZELTNAVMSG_SCHEMAS_SCHEMATYPES_H
#define ZELTNAVMSG_SCHEMAS_SCHEMATYPES_H

#include <cstdint>
#include <string>

#include "fields/BitFieldArrayDef.h"
#include "fields/BitFieldBoolDef.h"
#include "fields/BitFieldDoubleDef.h"
#include "fields/BitFieldSignedIntDef.h"
#include "fields/BitFieldUnsignedIntDef.h"
#include "fields/BitStructDef.h"
#include "fields/ParamModifiers.h"

// Vocabulary of the message schemas, so that a structure's constructor reads like
// its layout table: name, start, width, kind, scale, units.

namespace ZeltNavMsg::Schema {

using Unsigned = BitFieldUnsignedIntDef;  // U
using Signed = BitFieldSignedIntDef;      // S (two's complement)
using Flag = BitFieldBoolDef;             // B
using Real = BitFieldDoubleDef;           // D1 / D2

inline constexpr NumberFormat kUnsignedReal = NumberFormat::UnsignedNumberFormat;      // D1
inline constexpr NumberFormat kSignedReal = NumberFormat::TwosComplementNumberFormat;  // D2

// Scale 2^e.
inline ScaleFactorModifier pow2(std::int32_t e) {
    return ScaleFactorModifier(e);
}
// Scale 2^e x pi, pi being the interface constant; the units text stays "pi", "pi/s"...
inline ScaleFactorModifier pow2Pi(std::int32_t e) {
    return ScaleFactorModifier(e, kInterfacePi);
}
// Scale by an integer or decimal factor.
inline ScaleFactorModifier times(double factor) {
    return ScaleFactorModifier(0, factor);
}
inline UnitsModifier unit(std::string text) {
    return UnitsModifier(std::move(text));
}
inline FlagsModifier flag(std::uint32_t f) {
    return FlagsModifier(f);
}
inline ContainerIdModifier container(std::int32_t id) {
    return ContainerIdModifier(id);
}

}  // namespace ZeltNavMsg::Schema

#endif
