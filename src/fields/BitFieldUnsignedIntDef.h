#ifndef ZELTNAVMSG_FIELDS_BITFIELDUNSIGNEDINTDEF_H
#define ZELTNAVMSG_FIELDS_BITFIELDUNSIGNEDINTDEF_H

#include "bits/BitUtils.h"
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
    char* writeValueText(std::uint64_t raw, char* dst) const override;

  private:
    [[nodiscard]] std::uint64_t valueOf(std::uint64_t raw) const noexcept {
        return (raw & lowBitsMask(totalBitsCount())) * multiplier_;
    }

    std::uint64_t multiplier_;
};

}  // namespace ZeltNavMsg

#endif
