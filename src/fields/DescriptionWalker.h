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

// The one walk over a definition tree and a bit buffer. It decides what is present:
// a variant member only when its container id is the structure's active one, hidden
// members never in the listing. A sink turns what it is given into an output form:
// the listing's text lines, or field records.
//
// Sink interface:
//   void heading(const BitStructDef&, std::uint32_t level)   non-transparent structure
//   void lineBreak()                                         between two parts of a structure
//   void value(const ValueLine&)                             one visible value field
// and, for a sink whose `kVisitsHidden` is true (records account for every bit):
//   void hidden(const BitFieldDef&, ConstBitBuffer)          a hidden member, value or
//                                                            structure, not a stand-in
//                                                            for a variant that is present

namespace ZeltNavMsg::Describe {

struct ValueLine {
    const BitFieldValueDef& field;
    std::uint32_t level;
    std::uint64_t raw;  // the field's bits, as readRaw gives them
};

template <class Sink>
concept VisitsHidden = Sink::kVisitsHidden;

template <class Sink>
bool walk(const BitFieldDef& def, ConstBitBuffer buffer, std::uint32_t level, Sink& sink);

namespace Detail {

// A hidden member that shares bits with a variant stands in for the variants (the
// message data of a page or message type); it is not there when one of them is.
inline bool standsInForPresentVariant(const BitStructDef& def, const BitFieldDef& hidden,
                                      std::int32_t active) {
    if (active < 0) {
        return false;
    }
    const auto overlaps = [](const BitFieldDef& a, const BitFieldDef& b) {
        for (const BitRange& x : a.ranges()) {
            for (const BitRange& y : b.ranges()) {
                if (x.firstBitIndex() <= y.lastBitIndex() &&
                    y.firstBitIndex() <= x.lastBitIndex()) {
                    return true;
                }
            }
        }
        return false;
    };
    return std::any_of(def.children().begin(), def.children().end(), [&](const BitFieldDef* child) {
        return child->containerId() == active && overlaps(*child, hidden);
    });
}

}  // namespace Detail

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
            if constexpr (VisitsHidden<Sink>) {
                if (!activeKnown) {
                    active = def.activeContainerId(buffer);
                    activeKnown = true;
                }
                if (!Detail::standsInForPresentVariant(def, *child, active)) {
                    sink.hidden(*child, buffer);
                }
            }
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
bool walk(const BitFieldDef& def, ConstBitBuffer buffer, std::uint32_t level, Sink& sink) {
    if (def.isStruct()) {
        return walkStruct(static_cast<const BitStructDef&>(def), buffer, level, sink);
    }
    const auto& field = static_cast<const BitFieldValueDef&>(def);
    sink.value(ValueLine{field, level, field.readRaw(buffer)});
    return true;
}

}  // namespace ZeltNavMsg::Describe

#endif
