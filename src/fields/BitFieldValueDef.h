#ifndef ZELTNAVMSG_FIELDS_BITFIELDVALUEDEF_H
#define ZELTNAVMSG_FIELDS_BITFIELDVALUEDEF_H

#include <cstdint>
#include <string>
#include <vector>

#include "bits/NumberFormat.h"
#include "fields/BitFieldDef.h"

namespace ZeltNavMsg {

// A leaf of the tree: an unsigned, signed, real or flag value.
class BitFieldValueDef : public BitFieldDef {
  public:
    // Room for any value text: 20 digits and a sign, or a "%g" text.
    static constexpr std::size_t kMaxValueText = 32;

    [[nodiscard]] NumberFormat numberFormat() const noexcept { return numberFormat_; }

    // The value as the description prints it.
    [[nodiscard]] std::string valueToString(ConstBitBuffer buffer) const;
    // The same text written at `dst` (kMaxValueText characters of room); returns its end.
    virtual char* writeValueText(ConstBitBuffer buffer, char* dst) const = 0;

    // The field's bits as one unsigned number, ranges concatenated (low 64 bits).
    [[nodiscard]] std::uint64_t readRaw(ConstBitBuffer buffer) const noexcept;
    // Stores the low bits of `raw` in the field's ranges.
    void writeRaw(BitBuffer buffer, std::uint64_t raw) const noexcept;

  protected:
    // Throws std::runtime_error "BitFieldValueDef: numberFormat can't be UnknownNumberFormat".
    BitFieldValueDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                     NumberFormat numberFormat, const Modifiers& modifiers);

    // Throws "<Kind>: field '<name>' <what>" as a std::runtime_error.
    [[noreturn]] void fail(const char* kind, const char* what) const;

  private:
    NumberFormat numberFormat_;
    bool singleRange_;
};

// Integer multiplier of a scale factor, truncated toward zero. Values the integer
// type cannot hold (and NaN) give its most negative value, or 0 for unsigned.
[[nodiscard]] std::int32_t truncateToInt32(double v) noexcept;
[[nodiscard]] std::int64_t truncateToInt64(double v) noexcept;
[[nodiscard]] std::uint64_t truncateToUInt64(double v) noexcept;

}  // namespace ZeltNavMsg

#endif
