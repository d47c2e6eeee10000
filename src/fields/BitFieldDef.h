#ifndef ZELTNAVMSG_FIELDS_BITFIELDDEF_H
#define ZELTNAVMSG_FIELDS_BITFIELDDEF_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "bits/BitBuffer.h"
#include "bits/BitRange.h"
#include "fields/FieldKind.h"
#include "text/TextBuffer.h"

namespace ZeltNavMsg {

class BitStructDef;
class Modifiers;

// What a definition is declared with; built on the stack by each constructor from
// the defaults and its modifiers, then copied into the definition.
struct FieldParams {
    std::string text;
    std::string units;
    double defaultValue = 0.0;
    double scaleFactor = 1.0;
    std::int32_t bitsNumbering = 0;
    std::int32_t order = 0;
    std::uint32_t flags = 0;
    std::int32_t containerId = -1;
};

// A node of a message's definition tree: a named run of bits of its parent
// structure. A tree describes bits and never holds decoded values; every read takes
// the buffer. Definitions are sub-objects of their parent and are neither copied
// nor moved: the parent's children list points at them.
class BitFieldDef {
  public:
    class ParamModifier {
      public:
        constexpr ParamModifier() = default;
        constexpr ParamModifier(const ParamModifier&) = default;
        ParamModifier& operator=(const ParamModifier&) = delete;
        constexpr virtual ~ParamModifier() = default;
        virtual void apply(FieldParams& params) const = 0;
    };

    BitFieldDef(const BitFieldDef&) = delete;
    BitFieldDef& operator=(const BitFieldDef&) = delete;
    // Leaves the parent's children list: a definition whose constructor fails after
    // registering must not stay listed.
    virtual ~BitFieldDef();

    [[nodiscard]] virtual FieldKind fieldKind() const = 0;
    // Writes the definition's default value(s) into `buffer`.
    virtual void writeDefault(BitBuffer& buffer) const = 0;
    // The readable description at indentation level `indentLevel`, lines joined by "\n".
    [[nodiscard]] std::string makeReadableDescription(ConstBitBuffer buffer,
                                                      std::uint32_t indentLevel) const;

    [[nodiscard]] const BitStructDef* parent() const noexcept { return parent_; }
    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    // Absolute, zero-based ranges in the whole message, concatenated in order.
    [[nodiscard]] std::span<const BitRange> ranges() const noexcept { return ranges_; }
    [[nodiscard]] std::int32_t totalBitsCount() const noexcept { return totalBits_; }
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    [[nodiscard]] const std::string& units() const noexcept { return units_; }
    [[nodiscard]] double defaultValue() const noexcept { return defaultValue_; }
    [[nodiscard]] double scaleFactor() const noexcept { return scaleFactor_; }
    [[nodiscard]] std::int32_t bitsNumbering() const noexcept { return bitsNumbering_; }
    [[nodiscard]] std::int32_t order() const noexcept { return order_; }
    [[nodiscard]] std::uint32_t flags() const noexcept { return flags_; }
    [[nodiscard]] bool hasFlag(FieldFlags flag) const noexcept { return (flags_ & flag) != 0; }
    [[nodiscard]] std::int32_t containerId() const noexcept { return containerId_; }
    [[nodiscard]] bool isStruct() const noexcept { return isStruct_; }
    // The names of the enclosing structures and this one, joined by '.': the root and
    // transparent structures, which the listing shows no heading for, take no part.
    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    // Position of the definition in its tree's declaration order (the root is 0), and
    // how many definitions the tree has: an index for tables built beside the tree.
    [[nodiscard]] std::int32_t serial() const noexcept { return serial_; }
    [[nodiscard]] std::int32_t treeSize() const noexcept { return treeSize_; }

  protected:
    // Applies the modifiers in order, registers with `parent` (sorted by order, stable),
    // converts the ranges from the parent's numbering scheme and shifts them by the
    // parent's first bit. A top-level definition (no parent) keeps its ranges as given.
    BitFieldDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                const Modifiers& modifiers, bool isStruct);

  private:
    BitStructDef* parent_;
    std::string name_;
    std::vector<BitRange> ranges_;
    std::string text_;
    std::string units_;
    double defaultValue_;
    double scaleFactor_;
    std::int32_t bitsNumbering_;
    std::int32_t order_;
    std::uint32_t flags_;
    std::int32_t containerId_;
    std::int32_t totalBits_ = 0;
    std::string path_;
    std::string childPrefix_;  // what members' paths start with
    std::int32_t serial_ = 0;
    std::int32_t treeSize_ = 1;  // counted on the root only
    bool isStruct_;
};

// Up to ten parameter modifiers of a definition, applied in order: later ones
// override units, scale and container id; flags accumulate. The modifiers are the
// caller's temporaries and live until the definition is constructed.
class Modifiers {
  public:
    static constexpr std::size_t kMax = 10;

    template <typename... M>
    requires(sizeof...(M) <= kMax && (std::is_base_of_v<BitFieldDef::ParamModifier, M> && ...))
        Modifiers(const M&... modifiers)
    noexcept  // NOLINT(google-explicit-constructor)
        : items_{&modifiers...}, count_(sizeof...(M)) {}

    void applyTo(FieldParams& params) const {
        for (std::size_t i = 0; i < count_; ++i) {
            items_[i]->apply(params);
        }
    }

  private:
    std::array<const BitFieldDef::ParamModifier*, kMax> items_{};
    std::size_t count_;
};

// One range of `count` bits from `first`, relative to the enclosing structure.
[[nodiscard]] std::vector<BitRange> bits(std::int32_t first, std::int32_t count);

}  // namespace ZeltNavMsg

#endif
