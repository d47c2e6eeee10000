#ifndef ZELTNAVMSG_DECODEDMESSAGE_H
#define ZELTNAVMSG_DECODEDMESSAGE_H

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "zeltnavmsg/Export.h"
#include "zeltnavmsg/NavMessageDecoder.h"

// Every field of one decoded message as data: NavMessageDecoder::DecodeFields fills a
// DecodedMessage from the same walk that makes the listing. Values are those the
// interface documents define, in one vocabulary of units; where the listing departs
// from a document, the record corrects it and keeps the listing's text beside it.

namespace ZeltNavMsg {

// A run of `count` bits from `first`, as positions in the input: 0 is the first
// transmitted bit (the most significant bit of the first hex digit).
struct BitSegment {
    std::int32_t first;
    std::int32_t count;
};

// How a field's raw bits read as a value.
enum class ValueKind : std::uint8_t {
    Unsigned = 0,
    Signed = 1,     // two's complement (or sign-magnitude where the document says so)
    Real = 2,       // scaled number
    Flag = 3,       // one bit
    Character = 4,  // an 8-bit character code of a text message; value() is the code
};

// What a field's bits are for. The fields of a message other than Word cover every bit
// of its layout exactly once.
enum class FieldRole : std::uint8_t {
    Data = 0,      // a parameter of the message
    Reserved = 1,  // reserved or spare bits, or bits no layout of the format defines
    Check = 2,     // parity, BCH parity or CRC bits
    Word = 3,      // a whole 30-bit LNAV word as received; overlaps the fields above
};

// The unchanging description of a field: owned by the library, valid for the life of
// the process, the same object for every message of the same layout.
struct FieldInfo {
    std::string_view path;             // enclosing structures and the name, joined by '.'
    std::string_view name;             // as the listing prints it
    std::string_view units;            // "s", "m", "semicircles", ...; empty for a pure number
    std::span<const BitSegment> bits;  // most significant segment first
    std::int32_t bitCount = 0;
    ValueKind kind = ValueKind::Unsigned;
    FieldRole role = FieldRole::Data;
    // The value differs from what the listing prints (scale, sign, units or bits),
    // following the library's table of corrections.
    bool corrected = false;
    // The listing prints the field on a line of its own.
    bool listed = false;
    // The library's own data about the field (its listing line, its JSON and CSV
    // text); not for hosts.
    const void* detail = nullptr;
};

// One field of one message. Copying it copies three words; nothing is allocated.
class DecodedField {
  public:
    DecodedField() = default;
    DecodedField(const FieldInfo& info, std::uint64_t raw, double value) noexcept
        : info_(&info), raw_(raw), value_(value) {}

    [[nodiscard]] const FieldInfo& info() const noexcept { return *info_; }
    [[nodiscard]] std::string_view path() const noexcept { return info_->path; }
    [[nodiscard]] std::string_view name() const noexcept { return info_->name; }
    [[nodiscard]] std::string_view units() const noexcept { return info_->units; }
    [[nodiscard]] std::span<const BitSegment> bits() const noexcept { return info_->bits; }
    [[nodiscard]] std::int32_t bitCount() const noexcept { return info_->bitCount; }
    [[nodiscard]] ValueKind kind() const noexcept { return info_->kind; }
    [[nodiscard]] FieldRole role() const noexcept { return info_->role; }
    [[nodiscard]] bool corrected() const noexcept { return info_->corrected; }
    // The field's bits as one number, segments joined in order, right-aligned.
    [[nodiscard]] std::uint64_t raw() const noexcept { return raw_; }
    // The engineering value in units(); exact for integers up to 2^53.
    [[nodiscard]] double value() const noexcept { return value_; }

  private:
    const FieldInfo* info_ = nullptr;
    std::uint64_t raw_ = 0;
    double value_ = 0.0;
};

// Outcome of one integrity check.
enum class CheckStatus : std::uint8_t {
    Pass = 0,
    Fail = 1,        // computed and broadcast check bits differ
    Corrected = 2,   // a single bit error, corrected (BeiDou BCH); the records use the fix
    Incomplete = 3,  // the input ends before the bits the check covers
};

// One parity word, BCH codeword or CRC-covered block of a message.
struct CheckResult {
    std::string_view name;             // "word 3 parity", "codeword 4 BCH", ...
    std::span<const BitSegment> bits;  // the bits it covers, check bits included
    CheckStatus status = CheckStatus::Pass;
    std::int32_t checkBits = 0;      // width of computed/received
    std::uint32_t computed = 0;      // check bits computed from the data bits
    std::uint32_t received = 0;      // check bits as broadcast
    std::int32_t correctedBit = -1;  // input position of the corrected bit, or -1

    [[nodiscard]] bool ok() const noexcept { return status == CheckStatus::Pass; }
};

namespace Records {
class MessageWriter;
}

// One decoded message. Decoding into the same object again reuses its storage, so a
// host that decodes many messages allocates nothing once it has seen the largest.
class ZELTNAVMSG_API DecodedMessage {
  public:
    [[nodiscard]] MessageFormat format() const noexcept { return format_; }
    // As given by the caller.
    [[nodiscard]] std::int32_t subframe() const noexcept { return subframe_; }
    [[nodiscard]] std::int32_t page() const noexcept { return page_; }
    // Bits given in the input (four per hex digit).
    [[nodiscard]] std::int32_t bitCount() const noexcept { return bitCount_; }
    // The layout the bits were decoded with, e.g. "Subframe 4 page 18: ionosphere and
    // UTC" or "Message type 30: clock, ionosphere and group delays".
    [[nodiscard]] std::string_view layout() const noexcept { return layout_; }
    // Every field in listing order, reserved and check bits included.
    [[nodiscard]] std::span<const DecodedField> fields() const noexcept { return fields_; }
    [[nodiscard]] std::span<const CheckResult> checks() const noexcept { return checks_; }
    // Every check passed (a message without checks is ok).
    [[nodiscard]] bool ok() const noexcept;

    // The first field whose path, or else whose name, is `key`; nullptr if none.
    [[nodiscard]] const DecodedField* find(std::string_view key) const noexcept;
    // What the listing prints on the field's line after "name: " (for the bits the
    // record was decoded from); empty for a field the listing does not print.
    [[nodiscard]] std::string listingText(const DecodedField& field) const;

  private:
    friend class Records::MessageWriter;

    MessageFormat format_ = MessageFormat::GpsLNav;
    std::int32_t subframe_ = 0;
    std::int32_t page_ = 0;
    std::int32_t bitCount_ = 0;
    std::string layout_;
    std::vector<DecodedField> fields_;
    std::vector<CheckResult> checks_;
    // The bits the fields were read from (frame bits, or the decoded 300-bit subframe)
    // and, for the 300-bit formats, the subframe as received.
    std::array<std::uint8_t, 112> bits_{};
    std::array<std::uint8_t, 48> received_{};
};

}  // namespace ZeltNavMsg

#endif
