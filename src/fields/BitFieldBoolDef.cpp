#include "fields/BitFieldBoolDef.h"

namespace ZeltNavMsg {

BitFieldBoolDef::BitFieldBoolDef(BitStructDef* parent, std::string name,
                                 std::vector<BitRange> ranges, const Modifiers& modifiers)
    : BitFieldValueDef(parent, std::move(name), std::move(ranges),
                       NumberFormat::UnsignedNumberFormat, modifiers) {}

bool BitFieldBoolDef::read(ConstBitBuffer buffer) const noexcept {
    return (readRaw(buffer) & 1U) != 0;
}

void BitFieldBoolDef::write(BitBuffer buffer, bool value) const noexcept {
    writeRaw(buffer, value ? 1U : 0U);
}

void BitFieldBoolDef::writeDefault(BitBuffer& buffer) const {
    write(buffer, defaultValue() != 0.0);
}

char* BitFieldBoolDef::writeValueText(std::uint64_t raw, char* dst) const {
    *dst = (raw & 1U) != 0 ? '1' : '0';
    return dst + 1;
}

}  // namespace ZeltNavMsg
