#ifndef ZELTNAVMSG_FIELDS_BITFIELDBOOLDEF_H
#define ZELTNAVMSG_FIELDS_BITFIELDBOOLDEF_H

#include "fields/BitFieldValueDef.h"

namespace ZeltNavMsg {

// A one-bit flag, printed "1" or "0".
class BitFieldBoolDef : public BitFieldValueDef {
  public:
    BitFieldBoolDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                    const Modifiers& modifiers = {});

    [[nodiscard]] FieldKind fieldKind() const override { return FieldKind::Bool; }
    [[nodiscard]] bool read(ConstBitBuffer buffer) const noexcept;
    void write(BitBuffer buffer, bool value) const noexcept;
    // 1 when the default value is not 0.0.
    void writeDefault(BitBuffer& buffer) const override;
    char* writeValueText(std::uint64_t raw, char* dst) const override;
};

}  // namespace ZeltNavMsg

#endif
