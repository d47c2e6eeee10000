#ifndef ZELTNAVMSG_FIELDS_BITFIELDVALUEDEF_H
#define ZELTNAVMSG_FIELDS_BITFIELDVALUEDEF_H

#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "bits/BigEndian.h"
#include "bits/NumberFormat.h"
#include "fields/BitFieldDef.h"
#include "text/PaddedText.h"

namespace ZeltNavMsg {

// A leaf of the tree: an unsigned, signed, real or flag value.
class BitFieldValueDef : public BitFieldDef {
  public:
    // Room for any value text: 20 digits and a sign, or a "%g" text.
    static constexpr std::size_t kMaxValueText = 32;

    [[nodiscard]] NumberFormat numberFormat() const noexcept { return numberFormat_; }

    // The value as the description prints it.
    [[nodiscard]] std::string valueToString(ConstBitBuffer buffer) const;
    // The same text for the field's raw bits `raw` (as readRaw gives them), written at
    // `dst` (kMaxValueText characters of room); returns its end.
    virtual char* writeValueText(std::uint64_t raw, char* dst) const = 0;

    // The field's bits as one unsigned number, ranges concatenated (low 64 bits).
    [[nodiscard]] std::uint64_t readRaw(ConstBitBuffer buffer) const noexcept {
        // One unaligned 8-byte load when the field is a single run of at most 57 bits
        // whose 8 bytes all lie inside the buffer.
        if (windowed_ && firstByte_ + 8 <= (buffer.bitsCount() + 7) / 8) {
            return (Bits::loadBigEndian64(buffer.data() + firstByte_) << windowShift_) >>
                   (64 - totalBitsCount());
        }
        return readRawSlow(buffer);
    }
    // Stores the low bits of `raw` in the field's ranges.
    void writeRaw(BitBuffer buffer, std::uint64_t raw) const noexcept;

    // What the listing prints after the value: a blank and the units (empty without
    // units), copied in chunks.
    [[nodiscard]] const Text::PaddedText& unitsSuffix() const noexcept { return unitsSuffix_; }
    // Hex digits of the raw part: ceil(bits / 4), at most 17.
    [[nodiscard]] int hexDigits() const noexcept { return hexDigits_; }

  protected:
    // Throws std::runtime_error "BitFieldValueDef: numberFormat can't be UnknownNumberFormat".
    BitFieldValueDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                     NumberFormat numberFormat, const Modifiers& modifiers);

    // Throws "<Kind>: field '<name>' <what>" as a std::runtime_error.
    [[noreturn]] void fail(const char* kind, const char* what) const;

  private:
    [[nodiscard]] std::uint64_t readRawSlow(ConstBitBuffer buffer) const noexcept;

    NumberFormat numberFormat_;
    bool singleRange_;
    bool windowed_;
    std::int32_t firstByte_ = 0;
    std::int32_t windowShift_ = 0;
    int hexDigits_;
    Text::PaddedText unitsSuffix_;
};

// Integer multiplier of a scale factor, truncated toward zero. Values the integer
// type cannot hold (and NaN) give its most negative value, or 0 for unsigned.
[[nodiscard]] std::int32_t truncateToInt32(double v) noexcept;
[[nodiscard]] std::int64_t truncateToInt64(double v) noexcept;
[[nodiscard]] std::uint64_t truncateToUInt64(double v) noexcept;

}  // namespace ZeltNavMsg

#endif
