#ifndef ZELTNAVMSG_FIELDS_BITFIELDDOUBLEDEF_H
#define ZELTNAVMSG_FIELDS_BITFIELDDOUBLEDEF_H

#include "fields/BitFieldValueDef.h"

namespace ZeltNavMsg {

// A real value: the raw integer in the declared number format times the scale factor.
class BitFieldDoubleDef : public BitFieldValueDef {
  public:
    // Throws std::runtime_error for an unknown format, more than 53 bits, a signed
    // format with fewer than 2 bits, or no bits.
    BitFieldDoubleDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                      NumberFormat numberFormat, const Modifiers& modifiers = {});

    [[nodiscard]] FieldKind fieldKind() const override { return FieldKind::Double; }
    [[nodiscard]] double read(ConstBitBuffer buffer) const;
    // Writes round(value / scale) (half away from zero) in the field's format. Throws
    // std::runtime_error for a negative value in an unsigned format.
    void writeDouble(BitBuffer buffer, double value) const;
    void writeDefault(BitBuffer& buffer) const override;
    // "%g" of the value.
    char* writeValueText(std::uint64_t raw, char* dst) const override;
};

}  // namespace ZeltNavMsg

#endif
