#ifndef ZELTNAVMSG_FIELDS_READABLEDESCRIPTION_H
#define ZELTNAVMSG_FIELDS_READABLEDESCRIPTION_H

#include <cstdint>

#include "bits/BitBuffer.h"
#include "fields/BitFieldDef.h"
#include "text/TextBuffer.h"

namespace ZeltNavMsg {
class BitFieldValueDef;
}

namespace ZeltNavMsg::Describe {

// Appends the readable description of `def` to `out`: one line per visible member,
// indented by one TAB per level, "name: value units" with ", Raw hex:" and the raw
// digits where they differ from the value; lines separated by out's line end ("\n" or
// "\r\n"), no line end after the last. Plans the tree on each call: the formats' own
// trees have their plans made once (TreePlan.h, treePlanOf).
void appendText(const BitFieldDef& def, ConstBitBuffer buffer, std::uint32_t level,
                Text::TextBuffer& out);

// Appends what a value field's line shows after its label, for the raw bits `raw`.
void appendValueText(const BitFieldValueDef& field, std::uint64_t raw, Text::TextBuffer& out);

}  // namespace ZeltNavMsg::Describe

#endif
