#ifndef ZELTNAVMSG_FIELDS_BITFIELDSIGNEDINTDEF_H
#define ZELTNAVMSG_FIELDS_BITFIELDSIGNEDINTDEF_H

#include "fields/BitFieldValueDef.h"

namespace ZeltNavMsg {

// A two's-complement integer times the scale factor truncated to a 32-bit integer
// (writing divides by it truncated to 64 bits).
class BitFieldSignedIntDef : public BitFieldValueDef {
  public:
    // Throws std::runtime_error "BitFieldSignedIntDef: field '<name>' bits count is more
    // than 64" or "... bits count should be more than 1".
    BitFieldSignedIntDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                         const Modifiers& modifiers = {});

    [[nodiscard]] FieldKind fieldKind() const override { return FieldKind::SignedInt; }
    [[nodiscard]] std::int64_t read(ConstBitBuffer buffer) const;
    // Writes value / multiplier with the sign of `value` (a small negative value that
    // divides to 0 still counts as negative).
    void write(BitBuffer buffer, std::int64_t value) const;
    void writeDefault(BitBuffer& buffer) const override;
    char* writeValueText(std::uint64_t raw, char* dst) const override;

  private:
    [[nodiscard]] std::int64_t valueOf(std::uint64_t raw) const;

    std::int32_t readMultiplier_;
    std::int64_t writeDivisor_;
};

}  // namespace ZeltNavMsg

#endif
