#include "fields/TreePlan.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <stdexcept>
#include <typeinfo>
#include <unordered_map>

#include "bits/BitUtils.h"
#include "fields/BitFieldBoolDef.h"
#include "fields/BitFieldDoubleDef.h"
#include "fields/BitFieldSignedIntDef.h"
#include "fields/BitFieldUnsignedIntDef.h"

namespace ZeltNavMsg::Describe {

namespace {

// ", Raw hex:" padded to a chunk, so that it goes out as one.
constexpr char kRawHexTag[Text::kCopySlack] = {',', ' ', 'R', 'a', 'w', ' ', 'h', 'e',
                                               'x', ':', 0,   0,   0,   0,   0,   0};
constexpr std::size_t kRawHexTagLength = 10;

std::int64_t signExtend(std::uint64_t raw, std::int32_t width) noexcept {
    const int unused = 64 - width;
    return static_cast<std::int64_t>(raw << unused) >> unused;
}

bool isTwosComplement(NumberFormat f) noexcept {
    return f == NumberFormat::TwosComplementNumberFormat ||
           f == NumberFormat::TwosComplementNumberFormatAlt;
}

// The value text and the raw hex digits read alike (a short field whose digits are
// its value): mostly their lengths differ.
bool sameText(const char* a, std::size_t aLength, const char* b, std::size_t bLength) noexcept {
    if (aLength != bLength) {
        return false;
    }
    for (std::size_t i = 0; i < aLength; ++i) {
        if (a[i] != b[i]) {
            return false;
        }
    }
    return true;
}

}  // namespace

TreeLine valueLine(const BitFieldValueDef& field) {
    TreeLine line;
    line.kind = LineKind::Value;
    line.field = &field;
    line.width = field.totalBitsCount();
    line.rawHexOnly = field.hasFlag(RawHexOnly);
    line.hexDigits = static_cast<std::uint8_t>(field.hexDigits());
    line.units = field.unitsSuffix().view().data();
    line.unitsLength = static_cast<std::uint16_t>(field.unitsSuffix().size());
    line.scale = field.scaleFactor();
    // The exact classes whose text is known here; any other keeps its own writer.
    const std::type_info& type = typeid(field);
    const NumberFormat format = field.numberFormat();
    line.text = ValueText::Field;
    if (line.width > 64) {
        return line;
    }
    if (type == typeid(BitFieldUnsignedIntDef)) {
        line.text = ValueText::Unsigned;
        line.multiplier = truncateToUInt64(field.scaleFactor());
    } else if (type == typeid(BitFieldSignedIntDef) && isTwosComplement(format)) {
        line.text = ValueText::Signed;
        line.multiplier =
            static_cast<std::uint64_t>(std::int64_t{truncateToInt32(field.scaleFactor())});
    } else if (type == typeid(BitFieldDoubleDef) && isUnsignedFormat(format)) {
        line.text = ValueText::Real;
    } else if (type == typeid(BitFieldDoubleDef) && isTwosComplement(format)) {
        line.text = ValueText::SignedReal;
    } else if (type == typeid(BitFieldBoolDef)) {
        line.text = ValueText::Flag;
    }
    return line;
}

std::size_t maxValueRoom(const TreeLine& line) noexcept {
    // What the value's writer may store, then the units (copied in chunks) or the
    // units, the tag and the hex digits (eight or sixteen stored at once).
    std::size_t value = BitFieldValueDef::kMaxValueText;
    switch (line.text) {
        case ValueText::Unsigned:
            value = 20;
            break;
        case ValueText::Signed:
            value = 21;
            break;
        case ValueText::Real:
        case ValueText::SignedReal:
            value = Text::kMaxGLength;
            break;
        case ValueText::Flag:
            value = 1;
            break;
        case ValueText::Field:
            break;
    }
    const std::size_t units = line.unitsLength;
    const std::size_t unitsChunks = (std::max<std::size_t>(units, 1) + Text::kCopySlack - 1) /
                                    Text::kCopySlack * Text::kCopySlack;
    const std::size_t hex = std::max<std::size_t>(line.hexDigits, 16);
    return value +
           std::max(unitsChunks, units + std::max(Text::kCopySlack, kRawHexTagLength + hex));
}

namespace {

// A line's prefix: most are under 32 characters, copied as two chunks at once; the
// text store ends with that much slack.
constexpr std::size_t kPrefixBlock = 2 * Text::kCopySlack;

char* copyPrefix(char* p, const char* prefix, std::size_t length) noexcept {
    std::memcpy(p, prefix, kPrefixBlock);
    for (std::size_t i = kPrefixBlock; i < length; i += Text::kCopySlack) {
        std::memcpy(p + i, prefix + i, Text::kCopySlack);
    }
    return p + length;
}

// writeValue, inlined into the listing's loop.
[[gnu::always_inline]] inline char* putValue(char* p, const TreeLine& line,
                                             std::uint64_t raw) noexcept {
    char* const value = p;
    switch (line.text) {
        case ValueText::Unsigned:
            p = Text::writeUnsigned(p, raw * line.multiplier);
            break;
        case ValueText::Signed:
            p = Text::writeSigned(
                p, static_cast<std::int64_t>(
                       static_cast<std::uint64_t>(signExtend(raw, line.width)) * line.multiplier));
            break;
        case ValueText::Real:
            p = Text::writeG(p, static_cast<double>(raw) * line.scale);
            break;
        case ValueText::SignedReal:
            p = Text::writeG(p, static_cast<double>(signExtend(raw, line.width)) * line.scale);
            break;
        case ValueText::Flag:
            *p++ = (raw & 1U) != 0 ? '1' : '0';
            break;
        case ValueText::Field:
            p = line.field->writeValueText(raw, p);
            break;
    }
    const auto valueLength = static_cast<std::size_t>(p - value);
    if (line.rawHexOnly) {
        const char* const hexEnd = Text::writeHexDigits(p, raw, line.hexDigits);
        if (sameText(value, valueLength, p, static_cast<std::size_t>(hexEnd - p))) {
            return value;
        }
        return Text::writeHexDigits(value, raw, line.hexDigits);
    }
    p = Text::copyChunks(p, line.units, line.unitsLength);
    std::memcpy(p, kRawHexTag, sizeof kRawHexTag);
    char* const hex = p + kRawHexTagLength;
    char* const hexEnd = Text::writeHexDigits(hex, raw, line.hexDigits);
    return sameText(value, valueLength, hex, static_cast<std::size_t>(hexEnd - hex)) ? p : hexEnd;
}

}  // namespace

char* writeValue(char* p, const TreeLine& line, std::uint64_t raw) noexcept {
    return putValue(p, line, raw);
}

// The walk over the tree, once per layout. It mirrors what the listing shows: a
// structure's heading unless transparent (an unnamed one at level 0 writes nothing),
// a line break between two parts of a structure, owed even when the part writes
// nothing, a variant member only when it is the active one, hidden members for the
// records only, unless they stand in for a variant that is present.
class TreePlan::Builder {
  public:
    Builder(TreePlan& plan, const BitFieldDef& def, std::uint32_t level)
        : plan_(plan), def_(def), level_(level) {}

    void run() {
        plan_.readableBytes_ = std::max<std::size_t>(
            {8, (static_cast<std::size_t>(std::max(plan_.frameBits_, 0)) + 7) / 8,
             (static_cast<std::size_t>(extent(def_)) + 7) / 8});
        // Every choice of outcome of every selector met, depth first: after each walk
        // the last selector asked takes its next outcome, or is dropped when it has
        // none left and the one before takes its next.
        do {
            asked_ = 0;
            walkLayout();
            path_.resize(asked_);
            addPath(static_cast<std::int32_t>(plan_.layouts_.size() - 1));
            while (!path_.empty()) {
                Choice& last = path_.back();
                if (++last.outcome <= idsOf(*last.def).size()) {
                    break;
                }
                path_.pop_back();
            }
        } while (!path_.empty());
        for (const Selector& s : plan_.selectors_) {
            if (std::find(s.next.begin(), s.next.end(), kUnset) != s.next.end()) {
                throw std::logic_error("TreePlan: a variant of '" + s.def->name() +
                                       "' was never planned");
            }
        }
        plan_.text_.append(kPrefixBlock, '\0');
        // The text store is complete: point the lines at it.
        for (std::size_t i = 0; i < plan_.lines_.size(); ++i) {
            for (std::size_t e = 0; e < 2; ++e) {
                plan_.lines_[i].prefix[e] = plan_.text_.data() + prefixes_[i][e];
            }
        }
    }

  private:
    static constexpr std::int32_t kUnset = std::numeric_limits<std::int32_t>::max();

    struct Choice {
        const BitStructDef* def;
        std::size_t outcome;  // index into idsOf(*def); its size: any other value
    };
    struct SlotRange {
        std::uint32_t first;
        std::uint32_t count;
    };

    // One past the last bit of any field under `def`.
    static std::int32_t extent(const BitFieldDef& def) {
        std::int32_t end = 0;
        for (const BitRange& r : def.ranges()) {
            end = std::max(end, r.lastBitIndex() + 1);
        }
        if (def.isStruct()) {
            for (const BitFieldDef* child : static_cast<const BitStructDef&>(def).children()) {
                end = std::max(end, extent(*child));
            }
        }
        return end;
    }

    // The container ids of a structure's variant members, in order of appearance.
    const std::vector<std::int32_t>& idsOf(const BitStructDef& def) {
        const auto found = ids_.find(&def);
        if (found != ids_.end()) {
            return found->second;
        }
        std::vector<std::int32_t> ids;
        for (const BitFieldDef* child : def.children()) {
            if (child->containerId() >= 0 &&
                std::find(ids.begin(), ids.end(), child->containerId()) == ids.end()) {
                ids.push_back(child->containerId());
            }
        }
        return ids_.emplace(&def, std::move(ids)).first->second;
    }

    // The active container id this walk takes for `def`.
    std::int32_t choose(const BitStructDef& def) {
        if (asked_ == path_.size()) {
            path_.push_back({&def, 0});
        }
        const Choice& choice = path_[asked_++];
        const std::vector<std::int32_t>& ids = idsOf(def);
        return choice.outcome < ids.size() ? ids[choice.outcome] : -1;
    }

    // Enters the walk's path in the selector tree, ending at layout `layout`.
    void addPath(std::int32_t layout) {
        if (path_.empty()) {
            return;  // nothing to choose: the only layout
        }
        std::vector<Selector>& selectors = plan_.selectors_;
        if (selectors.empty()) {
            selectors.push_back(selectorOf(*path_.front().def));
        }
        std::size_t node = 0;
        for (std::size_t i = 0; i < path_.size(); ++i) {
            const std::size_t outcome = path_[i].outcome;
            if (i + 1 == path_.size()) {
                selectors[node].next[outcome] = -layout - 1;
                break;
            }
            if (selectors[node].next[outcome] == kUnset) {
                selectors.push_back(selectorOf(*path_[i + 1].def));
                selectors[node].next[outcome] = static_cast<std::int32_t>(selectors.size() - 1);
            }
            node = static_cast<std::size_t>(selectors[node].next[outcome]);
        }
    }

    Selector selectorOf(const BitStructDef& def) {
        Selector s;
        s.def = &def;
        s.ids = idsOf(def);
        s.next.assign(s.ids.size() + 1, kUnset);
        return s;
    }

    void walkLayout() {
        TreeLayout& layout = plan_.layouts_.emplace_back();
        layout.firstLine = static_cast<std::uint32_t>(plan_.lines_.size());
        breaks_ = 0;
        walk(def_, level_);
        layout.lineCount = static_cast<std::uint32_t>(plan_.lines_.size()) - layout.firstLine;
        layout.trailingBreaks = breaks_;
        layout.room = kPrefixBlock + 2 * std::size_t{breaks_};
        for (const TreeLine& line : plan_.lines(layout)) {
            if (line.kind != LineKind::Heading) {
                ++layout.recordCount;
            }
            if (line.kind != LineKind::Hidden) {
                layout.room += line.prefixLength[1];
            }
            if (line.kind == LineKind::Value) {
                layout.room += maxValueRoom(line);
            }
        }
        layout.variants = variants_;
        variants_.clear();
    }

    bool walk(const BitFieldDef& def, std::uint32_t level) {
        if (def.isStruct()) {
            return walkStruct(static_cast<const BitStructDef&>(def), level);
        }
        const auto& field = static_cast<const BitFieldValueDef&>(def);
        TreeLine line = valueLine(field);
        const SlotRange slots = slotsOf(field, true);
        line.slot = slots.first;
        setPieces(line, plan_.slots_[slots.first]);
        addLine(line, std::string(level, '\t') + field.name() + ": ");
        return true;
    }

    bool walkStruct(const BitStructDef& def, std::uint32_t level) {
        const bool transparent = def.hasFlag(Transparent);
        bool written = false;
        if (!transparent) {
            if (def.containerId() >= 0) {
                variants_.push_back(def.containerId());
            }
            written = level > 0 || !def.name().empty();
            if (written) {
                TreeLine heading;
                addLine(heading, std::string(level, '\t') + def.name());
            }
        }
        const std::uint32_t childLevel = transparent ? level : level + 1;
        const bool selects = !idsOf(def).empty();
        bool activeKnown = false;
        std::int32_t active = -1;
        const auto activeId = [&] {
            if (!activeKnown) {
                active = selects ? choose(def) : -1;
                activeKnown = true;
            }
            return active;
        };
        for (const BitFieldDef* child : def.children()) {
            if (child->hasFlag(Hidden)) {
                if (!standsInForPresentVariant(def, *child, activeId())) {
                    addHidden(*child);
                }
                continue;
            }
            if (child->containerId() >= 0 && activeId() != child->containerId()) {
                continue;
            }
            if (written) {
                ++breaks_;
            }
            written = walk(*child, childLevel) || written;
        }
        return written;
    }

    // A hidden member that shares bits with a variant stands in for the variants (the
    // message data of a page or message type); it is not there when one of them is.
    static bool standsInForPresentVariant(const BitStructDef& def, const BitFieldDef& hidden,
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
        return std::any_of(def.children().begin(), def.children().end(),
                           [&](const BitFieldDef* child) {
                               return child->containerId() == active && overlaps(*child, hidden);
                           });
    }

    // Every value under a hidden member, in parts of at most 64 bits.
    void addHidden(const BitFieldDef& def) {
        if (def.isStruct()) {
            for (const BitFieldDef* child : static_cast<const BitStructDef&>(def).children()) {
                addHidden(*child);
            }
            return;
        }
        const auto& field = static_cast<const BitFieldValueDef&>(def);
        const SlotRange slots = slotsOf(field, false);
        for (std::uint32_t s = slots.first; s < slots.first + slots.count; ++s) {
            TreeLine line;
            line.kind = LineKind::Hidden;
            line.field = &field;
            line.slot = s;
            line.width = plan_.slots_[s].width;
            setPieces(line, plan_.slots_[s]);
            addLine(line, std::string());
        }
    }

    // The records of a field, made on first meeting: a listed field is one record, a
    // hidden one a record per 64 bits.
    SlotRange slotsOf(const BitFieldValueDef& field, bool listed) {
        const auto found = slots_.find(&field);
        if (found != slots_.end()) {
            return found->second;
        }
        std::vector<TreeSlot>& slots = plan_.slots_;
        const SlotRange range{static_cast<std::uint32_t>(slots.size()), 0};
        if (listed) {
            slots.push_back({&field,
                             std::vector<BitRange>(field.ranges().begin(), field.ranges().end()),
                             field.totalBitsCount(), true});
        } else {
            TreeSlot part{&field, {}, 0, false};
            for (const BitRange& r : field.ranges()) {
                std::int32_t first = r.firstBitIndex();
                std::int32_t left = r.bitsCount();
                while (left > 0) {
                    const std::int32_t take = std::min(left, 64 - part.width);
                    part.ranges.emplace_back(BitRange::InitializationType::FirstBitAndCount, first,
                                             take);
                    part.width += take;
                    first += take;
                    left -= take;
                    if (part.width == 64) {
                        slots.push_back(part);
                        part.ranges.clear();
                        part.width = 0;
                    }
                }
            }
            if (part.width > 0) {
                slots.push_back(part);
            }
        }
        const SlotRange made{range.first, static_cast<std::uint32_t>(slots.size()) - range.first};
        slots_.emplace(&field, made);
        return made;
    }

    // The slot's bits as windows inside readableBytes(); a listed field over 64 bits
    // keeps its own read.
    void setPieces(TreeLine& line, const TreeSlot& slot) {
        line.firstPiece = static_cast<std::uint32_t>(plan_.pieces_.size());
        if (slot.width > 64) {
            line.pieceCount = 0;
            return;
        }
        const auto readable = static_cast<std::int64_t>(plan_.readableBytes_);
        for (const BitRange& r : slot.ranges) {
            std::int64_t first = r.firstBitIndex();
            std::int64_t left = r.bitsCount();
            while (left > 0) {
                const std::int64_t byte = std::min(first / 8, readable - 8);
                const std::int64_t shift = first - 8 * byte;
                const std::int64_t take = std::min(left, 64 - shift);
                if (first < 0 || shift >= 64 || take <= 0) {
                    throw std::logic_error("TreePlan: field '" + line.field->name() +
                                           "' lies outside the frame");
                }
                plan_.pieces_.push_back({static_cast<std::uint32_t>(byte),
                                         static_cast<std::uint8_t>(shift),
                                         static_cast<std::uint8_t>(take)});
                first += take;
                left -= take;
            }
        }
        line.pieceCount = static_cast<std::uint32_t>(plan_.pieces_.size()) - line.firstPiece;
    }

    // Adds a line whose text, after the line ends owed, is `text`.
    void addLine(TreeLine line, const std::string& text) {
        std::array<std::size_t, 2> at{};
        if (line.kind == LineKind::Hidden) {  // not listed: no text, and owes nothing
            at.fill(store(text));
            plan_.lines_.push_back(line);
            prefixes_.push_back(at);
            return;
        }
        for (std::size_t e = 0; e < 2; ++e) {
            std::string prefix;
            for (std::uint32_t b = 0; b < breaks_; ++b) {
                prefix += e == 0 ? "\n" : "\r\n";
            }
            prefix += text;
            line.prefixLength[e] = static_cast<std::uint16_t>(prefix.size());
            at[e] = store(prefix);
        }
        breaks_ = 0;
        plan_.lines_.push_back(line);
        prefixes_.push_back(at);
    }

    // Offset of `text` in the text store, with kCopySlack bytes after it.
    std::size_t store(const std::string& text) {
        const auto found = stored_.find(text);
        if (found != stored_.end()) {
            return found->second;
        }
        const std::size_t at = plan_.text_.size();
        plan_.text_ += text;
        plan_.text_.append(Text::kCopySlack, '\0');
        stored_.emplace(text, at);
        return at;
    }

    TreePlan& plan_;
    const BitFieldDef& def_;
    std::uint32_t level_;
    std::vector<Choice> path_;
    std::size_t asked_ = 0;
    std::uint32_t breaks_ = 0;  // line ends owed to the next line
    std::vector<std::int32_t> variants_;
    std::vector<std::array<std::size_t, 2>> prefixes_;  // by line: offsets in the text store
    std::map<std::string, std::size_t> stored_;
    std::unordered_map<const BitStructDef*, std::vector<std::int32_t>> ids_;
    std::unordered_map<const BitFieldValueDef*, SlotRange> slots_;
};

TreePlan::TreePlan(const BitFieldDef& def, std::uint32_t level, std::int32_t frameBits)
    : frameBits_(frameBits) {
    Builder(*this, def, level).run();
}

TreePlan::~TreePlan() = default;

const TreeLayout& TreePlan::layout(ConstBitBuffer frame) const {
    if (selectors_.empty()) {
        return layouts_.front();
    }
    std::size_t node = 0;
    for (;;) {
        const Selector& s = selectors_[node];
        const std::int32_t id = s.def->activeContainerId(frame);
        std::size_t outcome = 0;
        while (outcome < s.ids.size() && s.ids[outcome] != id) {
            ++outcome;
        }
        const std::int32_t next = s.next[outcome];
        if (next < 0) {
            return layouts_[static_cast<std::size_t>(-(next + 1))];
        }
        node = static_cast<std::size_t>(next);
    }
}

std::uint64_t TreePlan::readPieces(const TreeLine& line, ConstBitBuffer frame) const noexcept {
    if (line.pieceCount == 0) {
        return line.field->readRaw(frame);
    }
    std::uint64_t raw = 0;
    for (std::uint32_t i = line.firstPiece; i < line.firstPiece + line.pieceCount; ++i) {
        const PlannedPiece& piece = pieces_[i];
        raw = (raw << piece.length) | readPiece(piece, frame.data());
    }
    return raw;
}

void TreePlan::appendText(ConstBitBuffer frame, Text::TextBuffer& out) const {
    const std::string_view lineEnd = out.lineEnd();
    if (lineEnd != "\n" && lineEnd != "\r\n") {
        throw std::invalid_argument(R"(TreePlan: line ends are "\n" or "\r\n")");
    }
    const std::size_t e = lineEnd.size() - 1;
    const TreeLayout& l = layout(frame);
    char* p = out.reserve(l.room);
    for (const TreeLine& line : lines(l)) {
        if (line.kind == LineKind::Value) {
            p = copyPrefix(p, line.prefix[e], line.prefixLength[e]);
            p = putValue(p, line, read(line, frame));
        } else if (line.kind == LineKind::Heading) {
            p = copyPrefix(p, line.prefix[e], line.prefixLength[e]);
        }
    }
    for (std::uint32_t b = 0; b < l.trailingBreaks; ++b) {
        p = out.putLineEnd(p);
    }
    out.commit(p);
}

}  // namespace ZeltNavMsg::Describe
