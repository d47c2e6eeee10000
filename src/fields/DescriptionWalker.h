#ifndef ZELTNAVMSG_FIELDS_DESCRIPTIONWALKER_H
#define ZELTNAVMSG_FIELDS_DESCRIPTIONWALKER_H

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "bits/BitUtils.h"
#include "fields/BitFieldValueDef.h"
#include "fields/BitStructDef.h"
#include "text/NumberText.h"
#include "text/PaddedText.h"

// The one walk over a definition tree and a bit buffer. It decides what is shown:
// hidden members are skipped, a variant member only when its container id is the
// structure's active one, a value's raw hex only when it says more than the value
// text. A sink turns what it is given into an output form (text lines here; other
// forms, such as records of path, name, value, units and raw hex, can reuse it).
//
// Sink interface:
//   void heading(const BitStructDef&, std::uint32_t level)   non-transparent structure
//   void lineBreak()                                         between two parts of a structure
//   void value(const ValueLine&)                             one visible value field

namespace ZeltNavMsg::Describe {

struct ValueLine {
    const BitFieldValueDef& field;
    std::uint32_t level;
    // Both texts may be read Text::kCopySlack bytes past their end.
    std::string_view value;   // the value text
    std::string_view rawHex;  // upper-case digits, padded to the field's width
    bool showValue;           // false for RawHexOnly
    bool showRawHex;          // the digits differ from the value text
};

template <class Sink>
bool walk(const BitFieldDef& def, ConstBitBuffer buffer, std::uint32_t level, Sink& sink);

// Returns whether anything was written for the structure.
template <class Sink>
bool walkStruct(const BitStructDef& def, ConstBitBuffer buffer, std::uint32_t level, Sink& sink) {
    const bool transparent = def.hasFlag(Transparent);
    bool written = false;
    if (!transparent) {
        sink.heading(def, level);
        // A heading is its level's TABs and the name: at level 0 an unnamed structure
        // writes nothing, and its first member needs no line break before it.
        written = level > 0 || !def.name().empty();
    }
    const std::uint32_t childLevel = transparent ? level : level + 1;
    bool activeKnown = false;
    std::int32_t active = -1;
    for (const BitFieldDef* child : def.children()) {
        if (child->hasFlag(Hidden)) {
            continue;
        }
        if (child->containerId() >= 0) {
            if (!activeKnown) {
                active = def.activeContainerId(buffer);
                activeKnown = true;
            }
            if (active != child->containerId()) {
                continue;
            }
        }
        // The separator is owed to what came before, even if this child writes nothing
        // (an empty transparent structure leaves an empty line).
        if (written) {
            sink.lineBreak();
        }
        written = walk(*child, buffer, childLevel, sink) || written;
    }
    return written;
}

template <class Sink>
bool walkValue(const BitFieldValueDef& def, ConstBitBuffer buffer, std::uint32_t level,
               Sink& sink) {
    // Both texts keep Text::kCopySlack bytes of room after them for chunked copies.
    char value[BitFieldValueDef::kMaxValueText + Text::kCopySlack];
    char hex[24 + Text::kCopySlack];
    const std::uint64_t raw = def.readRaw(buffer);
    const char* valueEnd = def.writeValueText(raw, value);
    const char* hexEnd =
        Text::writeHex(hex, raw & lowBitsMask(def.totalBitsCount()), def.hexDigits());
    const std::string_view valueText(value, static_cast<std::size_t>(valueEnd - value));
    const std::string_view hexText(hex, static_cast<std::size_t>(hexEnd - hex));
    sink.value(
        ValueLine{def, level, valueText, hexText, !def.hasFlag(RawHexOnly), valueText != hexText});
    return true;
}

template <class Sink>
bool walk(const BitFieldDef& def, ConstBitBuffer buffer, std::uint32_t level, Sink& sink) {
    if (def.isStruct()) {
        return walkStruct(static_cast<const BitStructDef&>(def), buffer, level, sink);
    }
    return walkValue(static_cast<const BitFieldValueDef&>(def), buffer, level, sink);
}

}  // namespace ZeltNavMsg::Describe

#endif
