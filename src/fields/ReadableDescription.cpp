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
        const BitFieldValueDef& field = line.field;
        constexpr std::size_t kRawHexTag = 10;  // ", Raw hex:"
        const std::size_t room = line.level + field.label().size() + line.value.size() +
                                 field.unitsSuffix().size() + kRawHexTag + line.rawHex.size() +
                                 Text::kCopySlack;
        char* p = out_.reserve(room);
        p = putTabs(p, line.level);
        p = field.label().copyTo(p);
        if (line.showValue) {
            p = Text::copyChunks(p, line.value.data(), line.value.size());
            p = field.unitsSuffix().copyTo(p);
        }
        if (line.showRawHex) {
            if (line.showValue) {
                std::memcpy(p, ", Raw hex:", kRawHexTag);
                p += kRawHexTag;
            }
            p = Text::copyChunks(p, line.rawHex.data(), line.rawHex.size());
        }
        out_.commit(p);
    }

  private:
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

}  // namespace ZeltNavMsg::Describe

namespace ZeltNavMsg {

std::string BitFieldDef::makeReadableDescription(ConstBitBuffer buffer,
                                                 std::uint32_t indentLevel) const {
    Text::TextBuffer out;
    Describe::appendText(*this, buffer, indentLevel, out);
    return out.str();
}

}  // namespace ZeltNavMsg
