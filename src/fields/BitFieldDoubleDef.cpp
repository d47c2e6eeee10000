#include "fields/BitFieldDoubleDef.h"

#include <cmath>
#include <stdexcept>

#include "bits/BitUtils.h"
#include "text/NumberText.h"

namespace ZeltNavMsg {

namespace {
// |round(x)| as a 64-bit code; codes beyond 64 bits keep their low bits, NaN is 0.
std::uint64_t roundedMagnitude(double x) {
    const double r = std::fabs(std::round(x));
    if (!(r < 18446744073709551616.0)) {
        return r == r ? static_cast<std::uint64_t>(std::fmod(r, 18446744073709551616.0)) : 0;
    }
    return static_cast<std::uint64_t>(r);
}
}  // namespace

BitFieldDoubleDef::BitFieldDoubleDef(BitStructDef* parent, std::string name,
                                     std::vector<BitRange> ranges, NumberFormat numberFormat,
                                     const Modifiers& modifiers)
    : BitFieldValueDef(parent, std::move(name), std::move(ranges), numberFormat, modifiers) {
    if (totalBitsCount() > 53) {
        fail("BitFieldDoubleDef",
             "bits count can't be more than 53 (bits count in mantissa of type double)");
    }
    if (isSignedFormat(numberFormat) && totalBitsCount() < 2) {
        fail("BitFieldDoubleDef",
             "is signed and bits count should be at least 2 (one bit for sign and one bit for "
             "magnitude)");
    }
    if (totalBitsCount() <= 0) {
        fail("BitFieldDoubleDef", "bits count can't be negative or zero");
    }
}

double BitFieldDoubleDef::read(ConstBitBuffer buffer) const {
    return BitUtils::readDouble(readRaw(buffer), scaleFactor(), totalBitsCount(), numberFormat());
}

void BitFieldDoubleDef::writeDouble(BitBuffer buffer, double value) const {
    const std::uint64_t mask = lowBitsMask(totalBitsCount());
    if (isUnsignedFormat(numberFormat())) {
        if (value < 0.0) {
            throw std::runtime_error("BitFieldDoubleDef::writeDouble: field '" + name() +
                                     "' is unsigned, but value is negative");
        }
        writeRaw(buffer, roundedMagnitude(value / scaleFactor()) & mask);
        return;
    }
    const std::uint64_t m = roundedMagnitude(value / scaleFactor());
    std::uint64_t code = m;
    if (value < 0.0) {
        switch (numberFormat()) {
            case NumberFormat::TwosComplementNumberFormat:
            case NumberFormat::TwosComplementNumberFormatAlt:
                code = (~m + 1) & mask;
                break;
            case NumberFormat::SignMagnitudeNumberFormat:
                code = m | (std::uint64_t{1} << (totalBitsCount() - 1));
                break;
            default:
                throw std::runtime_error(
                    "encodeSignedNumber: only signed number formats are supported");
        }
    }
    writeRaw(buffer, code);
}

void BitFieldDoubleDef::writeDefault(BitBuffer& buffer) const {
    writeDouble(buffer, defaultValue());
}

char* BitFieldDoubleDef::writeValueText(std::uint64_t raw, char* dst) const {
    return Text::writeG(dst,
                        BitUtils::readDouble(raw, scaleFactor(), totalBitsCount(), numberFormat()));
}

}  // namespace ZeltNavMsg
