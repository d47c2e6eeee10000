#include "fields/BitFieldValueDef.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "bits/BitUtils.h"

namespace ZeltNavMsg {

BitFieldValueDef::BitFieldValueDef(BitStructDef* parent, std::string name,
                                   std::vector<BitRange> ranges, NumberFormat numberFormat,
                                   const Modifiers& modifiers)
    : BitFieldDef(parent, std::move(name), std::move(ranges), modifiers, false),
      numberFormat_(numberFormat),
      singleRange_(BitFieldDef::ranges().size() == 1),
      windowed_(singleRange_ && totalBitsCount() <= 57),
      hexDigits_(std::min((totalBitsCount() + 3) / 4, 17)),
      unitsSuffix_(units().empty() ? std::string() : " " + units()) {
    if (windowed_) {
        firstByte_ = BitFieldDef::ranges().front().firstBitIndex() / 8;
        windowShift_ = BitFieldDef::ranges().front().firstBitIndex() % 8;
    }
    if (numberFormat_ == NumberFormat::UnknownNumberFormat) {
        throw std::runtime_error("BitFieldValueDef: numberFormat can't be UnknownNumberFormat");
    }
}

void BitFieldValueDef::fail(const char* kind, const char* what) const {
    throw std::runtime_error(std::string(kind) + ": field '" + name() + "' " + what);
}

std::string BitFieldValueDef::valueToString(ConstBitBuffer buffer) const {
    char text[kMaxValueText];
    return {text, writeValueText(readRaw(buffer), text)};
}

std::uint64_t BitFieldValueDef::readRawSlow(ConstBitBuffer buffer) const noexcept {
    return singleRange_ ? BitUtils::readBits(ranges().front(), buffer)
                        : BitUtils::readBits(ranges(), buffer);
}

void BitFieldValueDef::writeRaw(BitBuffer buffer, std::uint64_t raw) const noexcept {
    BitUtils::writeBits(ranges(), buffer, raw);
}

std::int32_t truncateToInt32(double v) noexcept {
    const double t = std::trunc(v);
    if (!(t >= -2147483648.0 && t <= 2147483647.0)) {
        return std::numeric_limits<std::int32_t>::min();
    }
    return static_cast<std::int32_t>(t);
}

std::int64_t truncateToInt64(double v) noexcept {
    const double t = std::trunc(v);
    if (!(t >= -9223372036854775808.0 && t < 9223372036854775808.0)) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return static_cast<std::int64_t>(t);
}

std::uint64_t truncateToUInt64(double v) noexcept {
    const double t = std::trunc(v);
    if (!(t >= 0.0 && t < 18446744073709551616.0)) {
        return 0;
    }
    return static_cast<std::uint64_t>(t);
}

}  // namespace ZeltNavMsg
