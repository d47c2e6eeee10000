#ifndef ZELTNAVMSG_FIELDS_BITFIELDUNSIGNEDINTDEF_H
#define ZELTNAVMSG_FIELDS_BITFIELDUNSIGNEDINTDEF_H

#include "fields/BitFieldValueDef.h"

namespace ZeltNavMsg {

// An unsigned integer: raw bits times the scale factor truncated to an integer.
class BitFieldUnsignedIntDef : public BitFieldValueDef {
  public:
    // Throws std::runtime_error "BitFieldUnsignedIntDef: field '<name>' bits count is more
    // than 64" (unless Hidden) or "... bits count should be positive".
    BitFieldUnsignedIntDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers = {});

    [[nodiscard]] FieldKind fieldKind() const override { return FieldKind::UnsignedInt; }
    [[nodiscard]] std::uint64_t read(ConstBitBuffer buffer) const noexcept;
    // Writes value / multiplier; a multiplier of 0 (scale below 1) is refused with a
    // std::runtime_error rather than dividing by zero.
    void write(BitBuffer buffer, std::uint64_t value) const;
    void writeDefault(BitBuffer& buffer) const override;
    char* writeValueText(ConstBitBuffer buffer, char* dst) const override;

  private:
    std::uint64_t multiplier_;
};

}  // namespace ZeltNavMsg

#endif
