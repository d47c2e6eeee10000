#include "fields/ReadableDescription.h"

#include <cstring>

#include "fields/DescriptionWalker.h"

namespace ZeltNavMsg::Describe {

namespace {

// Writes each line with one reservation and chunked copies: every text it copies
// has Text::kCopySlack readable bytes after it, and it reserves that much spare room.
class TextSink {
  public:
    explicit TextSink(Text::TextBuffer& out) noexcept : out_(out) {}

    void heading(const BitStructDef& def, std::uint32_t level) {
        char* p = out_.reserve(level + def.heading().size() + Text::kCopySlack);
        p = putTabs(p, level);
        out_.commit(def.heading().copyTo(p));
    }

    void lineBreak() { out_.newline(); }

    void value(const ValueLine& line) {
        char* p = out_.reserve(line.level + maxValueLine(line.field));
        p = putTabs(p, line.level);
        p = line.field.label().copyTo(p);
        out_.commit(writeValue(p, line.field, line.raw));
    }

    // Room a value line takes, tabs aside: label, value text, units, ", Raw hex:"
    // and the digits, with the slack of chunked copies.
    static std::size_t maxValueLine(const BitFieldValueDef& field) noexcept {
        return field.label().size() + BitFieldValueDef::kMaxValueText + field.unitsSuffix().size() +
               kRawHexTag + 24 + Text::kCopySlack;
    }

    // What the line shows after the label: the value and its units, followed by the
    // raw hex digits when they say more than the value text (or the digits alone for
    // a raw-hex-only field). Returns the end.
    static char* writeValue(char* p, const BitFieldValueDef& field, std::uint64_t raw) {
        // Both texts keep Text::kCopySlack bytes of room after them for chunked copies.
        char value[BitFieldValueDef::kMaxValueText + Text::kCopySlack];
        char hex[24 + Text::kCopySlack];
        const char* valueEnd = field.writeValueText(raw, value);
        const char* hexEnd =
            Text::writeHex(hex, raw & lowBitsMask(field.totalBitsCount()), field.hexDigits());
        const std::string_view valueText(value, static_cast<std::size_t>(valueEnd - value));
        const std::string_view hexText(hex, static_cast<std::size_t>(hexEnd - hex));
        const bool showValue = !field.hasFlag(RawHexOnly);
        if (showValue) {
            p = Text::copyChunks(p, valueText.data(), valueText.size());
            p = field.unitsSuffix().copyTo(p);
        }
        if (valueText != hexText) {
            if (showValue) {
                std::memcpy(p, ", Raw hex:", kRawHexTag);
                p += kRawHexTag;
            }
            p = Text::copyChunks(p, hexText.data(), hexText.size());
        }
        return p;
    }

  private:
    static constexpr std::size_t kRawHexTag = 10;  // ", Raw hex:"

    static char* putTabs(char* p, std::uint32_t level) noexcept {
        static constexpr char kTabs[] = "\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";
        if (level <= Text::kCopySlack) {
            std::memcpy(p, kTabs, Text::kCopySlack);  // trees are a few levels deep
            return p + level;
        }
        std::memset(p, '\t', level);
        return p + level;
    }

    Text::TextBuffer& out_;
};

}  // namespace

void appendText(const BitFieldDef& def, ConstBitBuffer buffer, std::uint32_t level,
                Text::TextBuffer& out) {
    TextSink sink(out);
    walk(def, buffer, level, sink);
}

void appendValueText(const BitFieldValueDef& field, std::uint64_t raw, Text::TextBuffer& out) {
    char* p = out.reserve(TextSink::maxValueLine(field));
    out.commit(TextSink::writeValue(p, field, raw));
}

}  // namespace ZeltNavMsg::Describe

namespace ZeltNavMsg {

std::string BitFieldDef::makeReadableDescription(ConstBitBuffer buffer,
                                                 std::uint32_t indentLevel) const {
    Text::TextBuffer out;
    Describe::appendText(*this, buffer, indentLevel, out);
    return out.str();
}

}  // namespace ZeltNavMsg
