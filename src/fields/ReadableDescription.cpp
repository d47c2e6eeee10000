#include "fields/ReadableDescription.h"

#include "fields/DescriptionWalker.h"

namespace ZeltNavMsg::Describe {

namespace {

class TextSink {
  public:
    explicit TextSink(Text::TextBuffer& out) noexcept : out_(out) {}

    void heading(const BitStructDef& def, std::uint32_t level) {
        out_.appendRepeated('\t', level);
        out_.append(def.name());
    }

    void lineBreak() { out_.newline(); }

    void value(const ValueLine& line) {
        out_.appendRepeated('\t', line.level);
        out_.append(line.field.name());
        out_.append(": ");
        if (line.showValue) {
            out_.append(line.value);
            if (!line.field.units().empty()) {
                out_.append(' ');
                out_.append(line.field.units());
            }
        }
        if (line.showRawHex) {
            if (line.showValue) {
                out_.append(", Raw hex:");
            }
            out_.append(line.rawHex);
        }
    }

  private:
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
