#include "fields/ParamModifiers.h"

#include <cmath>

namespace ZeltNavMsg {

void UnitsModifier::apply(FieldParams& params) const {
    if (&params.units != &units_) {
        params.units = units_;
    }
}

ScaleFactorModifier::ScaleFactorModifier(std::int32_t exponent, double multiplier)
    : scaleFactor_(std::ldexp(multiplier, exponent)) {}

}  // namespace ZeltNavMsg
