#include "fields/BitFieldSignedIntDef.h"

#include <stdexcept>

#include "bits/BitUtils.h"
#include "text/NumberText.h"

namespace ZeltNavMsg {

BitFieldSignedIntDef::BitFieldSignedIntDef(BitStructDef* parent, std::string name,
                                           std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitFieldValueDef(parent, std::move(name), std::move(ranges),
                       NumberFormat::TwosComplementNumberFormat, modifiers),
      readMultiplier_(truncateToInt32(scaleFactor())),
      writeDivisor_(truncateToInt64(scaleFactor())) {
    if (totalBitsCount() > 64) {
        fail("BitFieldSignedIntDef", "bits count is more than 64");
    }
    if (totalBitsCount() < 2) {
        fail("BitFieldSignedIntDef", "bits count should be more than 1");
    }
}

std::int64_t BitFieldSignedIntDef::read(ConstBitBuffer buffer) const {
    return valueOf(readRaw(buffer));
}

std::int64_t BitFieldSignedIntDef::valueOf(std::uint64_t raw) const {
    if (!isSignedFormat(numberFormat())) {
        throw std::runtime_error(
            "convertRawBitFieldToSignedInt: only signed number formats supported");
    }
    const std::int64_t value = BitUtils::decodeSignedNumber(raw, totalBitsCount(), numberFormat());
    // Wrapping product: an oversized scale on a wide field must not be undefined.
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(value) *
                                     static_cast<std::uint64_t>(std::int64_t{readMultiplier_}));
}

void BitFieldSignedIntDef::write(BitBuffer buffer, std::int64_t value) const {
    if (!isSignedFormat(numberFormat())) {
        return;
    }
    if (writeDivisor_ == 0) {
        throw std::runtime_error("BitFieldSignedIntDef: field '" + name() +
                                 "' scale factor is below 1, no value can be written");
    }
    // |value / divisor| from the magnitudes, so that INT64_MIN / -1 stays defined. The
    // sign written is the value's, not the quotient's.
    const auto magnitudeOf = [](std::int64_t v) {
        return v < 0 ? ~static_cast<std::uint64_t>(v) + 1 : static_cast<std::uint64_t>(v);
    };
    const std::uint64_t magnitude = magnitudeOf(value) / magnitudeOf(writeDivisor_);
    writeRaw(buffer,
             BitUtils::encodeSignedNumber(magnitude, value < 0, totalBitsCount(), numberFormat()));
}

void BitFieldSignedIntDef::writeDefault(BitBuffer& buffer) const {
    write(buffer, truncateToInt64(defaultValue()));
}

char* BitFieldSignedIntDef::writeValueText(std::uint64_t raw, char* dst) const {
    return Text::writeSigned(dst, valueOf(raw));
}

}  // namespace ZeltNavMsg
