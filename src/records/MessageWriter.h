#ifndef ZELTNAVMSG_RECORDS_MESSAGEWRITER_H
#define ZELTNAVMSG_RECORDS_MESSAGEWRITER_H

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "bits/NumberFormat.h"
#include "zeltnavmsg/DecodedMessage.h"

namespace ZeltNavMsg {
class BitFieldValueDef;
namespace Legacy {
struct PlannedLine;
}
}  // namespace ZeltNavMsg

namespace ZeltNavMsg::Records {

// What FieldInfo::listing points at: the listing line a record belongs to, so that
// DecodedMessage::listingText writes the very text the listing writes.
struct ListingSource {
    const BitFieldValueDef* treeField = nullptr;      // definition-tree road
    std::int32_t frameBits = 0;                       // its frame length
    const Legacy::PlannedLine* legacyLine = nullptr;  // 300-bit road
    bool rawPass = false;                             // printed from the bits as received
};

// A record's value from its raw bits: the number `format` reads, times `scale`.
struct ValueRule {
    NumberFormat format = NumberFormat::UnsignedNumberFormat;
    double scale = 1.0;
    std::int32_t width = 0;
};

// Fills a DecodedMessage; the only code that writes one.
class MessageWriter {
  public:
    explicit MessageWriter(DecodedMessage& message) noexcept : m_(message) {}

    // Empties the message, keeping its storage, and sets what the caller gave.
    void start(MessageFormat format, std::int32_t subframe, std::int32_t page,
               std::int32_t bitCount) {
        m_.format_ = format;
        m_.subframe_ = subframe;
        m_.page_ = page;
        m_.bitCount_ = bitCount;
        m_.layout_.clear();
        m_.fields_.clear();
        m_.checks_.clear();
        m_.bits_.fill(0);
        m_.received_.fill(0);
    }

    // The bits the records are read from: frame bits, or the decoded subframe padded
    // with zeros; and the 300-bit subframe as received.
    std::uint8_t* bits() noexcept { return m_.bits_.data(); }
    static constexpr std::size_t bitsSize() noexcept { return sizeof(DecodedMessage::bits_); }
    std::uint8_t* received() noexcept { return m_.received_.data(); }
    static constexpr std::size_t receivedSize() noexcept {
        return sizeof(DecodedMessage::received_);
    }

    std::string& layout() noexcept { return m_.layout_; }
    std::vector<CheckResult>& checks() noexcept { return m_.checks_; }

    void add(const FieldInfo& info, std::uint64_t raw, double value) {
        m_.fields_.emplace_back(info, raw, value);
    }
    // Room for `count` more fields, to be written in place.
    DecodedField* extend(std::size_t count) {
        const std::size_t size = m_.fields_.size();
        m_.fields_.resize(size + count);
        return m_.fields_.data() + size;
    }

  private:
    DecodedMessage& m_;
};

}  // namespace ZeltNavMsg::Records

#endif
