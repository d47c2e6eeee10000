#include "fields/BitFieldUnsignedIntDef.h"

#include "bits/BitUtils.h"
#include "text/NumberText.h"

namespace ZeltNavMsg {

BitFieldUnsignedIntDef::BitFieldUnsignedIntDef(BitStructDef* parent, std::string name,
                                               std::vector<BitRange> ranges,
                                               const Modifiers& modifiers)
    : BitFieldValueDef(parent, std::move(name), std::move(ranges),
                       NumberFormat::UnsignedNumberFormat, modifiers),
      multiplier_(truncateToUInt64(scaleFactor())) {
    if (!hasFlag(Hidden) && totalBitsCount() > 64) {
        fail("BitFieldUnsignedIntDef", "bits count is more than 64");
    }
    if (totalBitsCount() < 1) {
        fail("BitFieldUnsignedIntDef", "bits count should be positive");
    }
}

std::uint64_t BitFieldUnsignedIntDef::read(ConstBitBuffer buffer) const noexcept {
    return valueOf(readRaw(buffer));
}

void BitFieldUnsignedIntDef::write(BitBuffer buffer, std::uint64_t value) const {
    if (multiplier_ == 0) {
        throw std::runtime_error("BitFieldUnsignedIntDef: field '" + name() +
                                 "' scale factor is below 1, no value can be written");
    }
    writeRaw(buffer, (value / multiplier_) & lowBitsMask(totalBitsCount()));
}

void BitFieldUnsignedIntDef::writeDefault(BitBuffer& buffer) const {
    write(buffer, truncateToUInt64(defaultValue()));
}

char* BitFieldUnsignedIntDef::writeValueText(std::uint64_t raw, char* dst) const {
    return Text::writeUnsigned(dst, valueOf(raw));
}

}  // namespace ZeltNavMsg
