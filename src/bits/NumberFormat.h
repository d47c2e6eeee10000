#ifndef ZELTNAVMSG_BITS_NUMBERFORMAT_H
#define ZELTNAVMSG_BITS_NUMBERFORMAT_H

#include <cstdint>

namespace ZeltNavMsg {

// How a field's raw bits are read as a number. The codes are stored in field
// definitions; 4 and 5 behave as 2 and 1 everywhere.
enum class NumberFormat : std::uint32_t {
    UnknownNumberFormat = 0,
    UnsignedNumberFormat = 1,
    TwosComplementNumberFormat = 2,
    SignMagnitudeNumberFormat = 3,  // first bit of the run is the sign
    TwosComplementNumberFormatAlt = 4,
    UnsignedNumberFormatAlt = 5,
};

[[nodiscard]] constexpr bool isUnsignedFormat(NumberFormat f) noexcept {
    return f == NumberFormat::UnsignedNumberFormat || f == NumberFormat::UnsignedNumberFormatAlt;
}

[[nodiscard]] constexpr bool isSignedFormat(NumberFormat f) noexcept {
    return f == NumberFormat::TwosComplementNumberFormat ||
           f == NumberFormat::SignMagnitudeNumberFormat ||
           f == NumberFormat::TwosComplementNumberFormatAlt;
}

}  // namespace ZeltNavMsg

#endif
