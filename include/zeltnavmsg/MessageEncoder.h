#ifndef ZELTNAVMSG_MESSAGEENCODER_H
#define ZELTNAVMSG_MESSAGEENCODER_H

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/Export.h"
#include "zeltnavmsg/NavMessageDecoder.h"

// From field values back to broadcast bits. The encoder runs the records' own value
// rules backwards (the same field tables and definition trees, corrections included) and
// protects the result as the format does: LNAV parity with the D30* inversion, BeiDou
// BCH(15,11) and interleaving, CRC-24Q.

namespace ZeltNavMsg {

// A field the encoder cannot set as asked: no such field, a value outside its range, a
// raw value wider than the field, a whole LNAV word. A DecodingError, so that one
// handler catches every refusal of the library.
class ZELTNAVMSG_API EncodingError : public DecodingError {
  public:
    explicit EncodingError(const std::string& message);
    ~EncodingError() override;
    EncodingError(const EncodingError&) = default;
    EncodingError& operator=(const EncodingError&) = default;
    EncodingError(EncodingError&&) = default;
    EncodingError& operator=(EncodingError&&) = default;
};

// What the encoder does with the bits that protect the message.
enum class CheckBits : std::uint8_t {
    // Computed from the data: LNAV parity of each word (D29*/D30* chained from the
    // previous word, data bits inverted after a D30* of 1, bits 23 and 24 of words 2 and 10
    // chosen so that their D29 and D30 are 0); BeiDou BCH parity of all 19 codewords,
    // words 2-10 interleaved; the CRC-24Q of every block of the frame formats.
    Recompute = 0,
    // As given or set, to make a damaged message on purpose. LNAV data bits are still
    // inverted after a D30* of 1 (as kept), so that they decode to the values set.
    Keep = 1,
};

// One message being built: a start (all zeros, hex text or a decoded message), fields set
// by path or name to engineering values or raw bits, then the hex text.
//
// Fields are found as DecodedMessage::find finds them, in the layout the current bits
// have: for the frame formats set the selector ("Page ID", "MesType", "Subframe ID",
// "Message ID") first; the 300-bit formats take their layout from the subframe and page
// (QZSS subframes 4 and 5 from the SV ID). Fields not set keep their bits. Not for
// sharing between threads; any number of encoders may work at once.
class ZELTNAVMSG_API MessageEncoder {
  public:
    // All bits zero. Throws DecodingError for a format that is not decoded.
    MessageEncoder(MessageFormat format, std::int32_t subframe, std::int32_t page);
    // The bits of `hex`, read as NavMessageDecoder::Decode reads them, with its errors; bits
    // not given are zero, bits past the message's length are dropped. A BeiDou codeword
    // with a single error starts corrected, as the records read it (CheckBits::Keep keeps
    // the error unless the bit is set).
    MessageEncoder(MessageFormat format, std::int32_t subframe, std::int32_t page,
                   std::string_view hex);
    // The raw bits of every field of `message` (whole LNAV words aside): the message as
    // its records read it.
    explicit MessageEncoder(const DecodedMessage& message);

    [[nodiscard]] MessageFormat format() const noexcept { return format_; }
    [[nodiscard]] std::int32_t subframe() const noexcept { return subframe_; }
    [[nodiscard]] std::int32_t page() const noexcept { return page_; }
    // Bits of one message: 300 (LNAV, D1, D2), 883 (GPS CNAV-2), 878 (B-CNAV1), 288
    // (B-CNAV2), 292 (IRNSS). hex() writes ceil(bitCount / 4) digits.
    [[nodiscard]] std::int32_t bitCount() const noexcept { return frameBits_; }

    // The records of the message as hex() makes it; valid until the next set.
    [[nodiscard]] const DecodedMessage& message();
    // The field `key` names (its path, or else its name) in the current layout; `part`
    // counts the fields of that path (or name) from 0: the records of a field wider than
    // 64 bits, or reserved fields of the same name. Throws EncodingError when none.
    [[nodiscard]] const FieldInfo& field(std::string_view key, std::int32_t part = 0);

    // The field to the raw code nearest `value` in the record's units (a character field's
    // value is its code). Throws EncodingError when the value rounds to a code outside the
    // field's range, naming the field, the range, the LSB and the value.
    void set(std::string_view key, double value) { set(field(key), value); }
    // The field's bits to `raw`, right-aligned; throws EncodingError when it is wider.
    void setRaw(std::string_view key, std::uint64_t raw) { setRaw(field(key), raw); }
    // The same for a field of this format's records (FieldInfo of a DecodedMessage, or
    // field()): without a look-up, so the layout is not checked; a field of another layout
    // writes the bits it has there.
    void set(const FieldInfo& field, double value);
    void setRaw(const FieldInfo& field, std::uint64_t raw);

    // The message as lower-case hex text, as Decode takes it.
    [[nodiscard]] std::string hex(CheckBits checks = CheckBits::Recompute) const;
    // The same into `out` (replaced), reusing its storage.
    void hex(std::string& out, CheckBits checks = CheckBits::Recompute) const;

    // The raw code of `value` for `field`: value / LSB rounded to the nearest integer
    // (halves away from zero), in the field's number format; throws EncodingError as set().
    [[nodiscard]] static std::uint64_t rawOf(const FieldInfo& field, double value);
    // The record's value of raw bits `raw` of `field`.
    [[nodiscard]] static double valueOf(const FieldInfo& field, std::uint64_t raw);

  private:
    static constexpr std::size_t kBytes = 112;

    void encodeInto(std::array<std::uint8_t, kBytes>& bytes, CheckBits checks) const;

    MessageFormat format_;
    std::int32_t subframe_;
    std::int32_t page_;
    std::int32_t frameBits_ = 0;
    // The bits as the records read them, at input positions: LNAV data bits with the
    // D30* inversion undone (parity bits as they are); BeiDou and frames as broadcast.
    std::array<std::uint8_t, kBytes> bits_{};
    // BeiDou: the bits corrected at the start, to be damaged again by CheckBits::Keep.
    std::array<std::uint8_t, kBytes> damage_{};
    bool damaged_ = false;
    bool stale_ = true;  // message_ does not hold the current bits
    DecodedMessage message_;
    std::string scratch_;
};

}  // namespace ZeltNavMsg

#endif
