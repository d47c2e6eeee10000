#include "fields/ReadableDescription.h"

#include <algorithm>
#include <vector>

#include "fields/TreePlan.h"

namespace ZeltNavMsg::Describe {

void appendText(const BitFieldDef& def, ConstBitBuffer buffer, std::uint32_t level,
                Text::TextBuffer& out) {
    const TreePlan plan(def, level, buffer.bitsCount());
    // The plan reads whole 8-byte windows: give it a copy of the buffer's bytes with
    // zeros up to its readable size.
    const auto given = static_cast<std::size_t>((buffer.bitsCount() + 7) / 8);
    std::vector<std::uint8_t> bytes(std::max(given, plan.readableBytes()), 0);
    std::copy_n(buffer.data(), given, bytes.begin());
    plan.appendText(ConstBitBuffer(bytes.data(), buffer.bitsCount()), out);
}

void appendValueText(const BitFieldValueDef& field, std::uint64_t raw, Text::TextBuffer& out) {
    const TreeLine line = valueLine(field);
    char* p = out.reserve(maxValueRoom(line));
    out.commit(writeValue(p, line, raw));
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
