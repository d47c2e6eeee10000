#ifndef ZELTNAVMSG_FIELDS_BITSTRUCTDEF_H
#define ZELTNAVMSG_FIELDS_BITSTRUCTDEF_H

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "bits/BinArray.h"
#include "fields/BitFieldDef.h"

namespace ZeltNavMsg {

class BitFieldUnsignedIntDef;

// A structure: fields, nested structures and arrays, held as sub-objects of the
// subclass that declares them and listed here in order. Members with a container id
// form variants, of which the one named by activeContainerId() is present.
class BitStructDef : public BitFieldDef {
  public:
    BitStructDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                 const Modifiers& modifiers);

    [[nodiscard]] FieldKind fieldKind() const override { return FieldKind::Struct; }
    // Writes every child's default unless the structure has NoDefaults; all variants
    // are written, later ones over earlier ones.
    void writeDefault(BitBuffer& buffer) const override;
    // Which variant is present: -1 (the default) selects none.
    [[nodiscard]] virtual std::int32_t activeContainerId(ConstBitBuffer buffer) const;

    [[nodiscard]] std::span<const BitFieldDef* const> children() const noexcept {
        return children_;
    }

    using BitFieldDef::makeReadableDescription;
    // Description of `def` over the N bits of `bits`, at level 0.
    template <int N>
    [[nodiscard]] static std::string makeReadableDescription(const BitStructDef& def,
                                                             const BinArray<N>& bits) {
        return def.BitFieldDef::makeReadableDescription(bits.buffer(), 0);
    }

  private:
    friend class BitFieldDef;
    void addChild(const BitFieldDef* child);
    void removeChild(const BitFieldDef* child) noexcept;

    std::vector<const BitFieldDef*> children_;
};

// A structure whose variant is the unsigned value of one of its own fields.
class SelectedByFieldDef : public BitStructDef {
  public:
    using BitStructDef::BitStructDef;
    [[nodiscard]] std::int32_t activeContainerId(ConstBitBuffer buffer) const override;

  protected:
    // The selecting field; set by the subclass once that field is constructed.
    void selectBy(const BitFieldUnsignedIntDef& field) noexcept { selector_ = &field; }

  private:
    const BitFieldUnsignedIntDef* selector_ = nullptr;
};

}  // namespace ZeltNavMsg

#endif
