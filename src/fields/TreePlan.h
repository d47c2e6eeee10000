#ifndef ZELTNAVMSG_FIELDS_TREEPLAN_H
#define ZELTNAVMSG_FIELDS_TREEPLAN_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "bits/BigEndian.h"
#include "bits/BitBuffer.h"
#include "bits/BitRange.h"
#include "fields/BitFieldValueDef.h"
#include "fields/BitStructDef.h"
#include "text/NumberText.h"
#include "text/PaddedText.h"
#include "text/TextBuffer.h"

// A definition tree digested for its listing and its records, the way the 300-bit
// tables are (legacy/ListingPlan.h): built once from the tree, then only read. The
// walk over the tree happens here, once per layout: which members are present (a
// variant when its container id is its structure's active one, hidden members only
// for the records), where the line breaks fall, each line's TABs and label, each
// field's bits as 8-byte windows and how its number is written. A layout is one
// choice of variant in every structure that has variants; the tree's own
// activeContainerId picks it for a message, and the listing and the records then
// walk its flat list of lines without recursion.

namespace ZeltNavMsg::Describe {

// Up to 64 bits from one window: (loadBigEndian64(bits + byte) << shift) >> (64 - length).
struct PlannedPiece {
    std::uint32_t byte = 0;
    std::uint8_t shift = 0;
    std::uint8_t length = 0;  // 1 ... 64 - shift
};

enum class LineKind : std::uint8_t {
    Heading,  // a structure's name: listing only
    Value,    // a listed field: listing and records
    Hidden,   // a field the listing skips, or one part of at most 64 bits of it: records only
};

// How a value line writes its number.
enum class ValueText : std::uint8_t {
    Unsigned,    // raw x integer multiplier, "%lu"
    Signed,      // two's complement x integer multiplier (wrapping), "%ld"
    Real,        // raw x scale, "%g"
    SignedReal,  // two's complement x scale, "%g"
    Flag,        // "1" or "0"
    Field,       // as the definition writes it (any other class or number format)
};

struct TreeLine {
    // What the listing writes before the value: the line ends owed to what came
    // before, the level's TABs and the heading or "name: "; for "\n" (index 0) and
    // "\r\n" (1) line ends, each with Text::kCopySlack readable bytes after it.
    const char* prefix[2] = {nullptr, nullptr};
    std::uint16_t prefixLength[2] = {0, 0};
    LineKind kind = LineKind::Heading;
    ValueText text = ValueText::Field;
    bool rawHexOnly = false;
    std::uint8_t hexDigits = 0;
    std::int32_t width = 0;  // bits of the value
    std::uint32_t firstPiece = 0;
    std::uint32_t pieceCount = 0;  // 0: the definition's own readRaw (a listed field over 64 bits)
    double scale = 1.0;
    std::uint64_t multiplier = 1;  // Signed: the bits of a signed multiplier
    const char* units = nullptr;   // " units", with Text::kCopySlack readable bytes after it
    std::uint16_t unitsLength = 0;
    std::uint32_t slot = 0;                   // the record: index into TreePlan::slots()
    const BitFieldValueDef* field = nullptr;  // null for a heading
};

// One record's bits: a field, or a part of at most 64 bits of a wider hidden one.
struct TreeSlot {
    const BitFieldValueDef* field = nullptr;
    std::vector<BitRange> ranges;  // absolute, most significant first
    std::int32_t width = 0;
    bool listed = false;
};

struct TreeLayout {
    std::uint32_t firstLine = 0;
    std::uint32_t lineCount = 0;
    std::uint32_t recordCount = 0;     // lines that are not headings
    std::uint32_t trailingBreaks = 0;  // line ends after the last line
    std::size_t room = 0;              // characters the listing may take, slack included
    // Container ids of the variant structures listed, outermost first.
    std::vector<std::int32_t> variants;
};

class TreePlan {
  public:
    // The plan of `def` listed at indentation `level`, read from frames of
    // `frameBits` bits. Buffers handed to the plan hold at least readableBytes().
    TreePlan(const BitFieldDef& def, std::uint32_t level, std::int32_t frameBits);
    TreePlan(const TreePlan&) = delete;
    TreePlan& operator=(const TreePlan&) = delete;
    ~TreePlan();

    [[nodiscard]] std::int32_t frameBits() const noexcept { return frameBits_; }
    // The frame's bytes, and at least 8 so that every window lies inside.
    [[nodiscard]] std::size_t readableBytes() const noexcept { return readableBytes_; }

    // The layout of the frame: the variants its structures' activeContainerId name.
    [[nodiscard]] const TreeLayout& layout(ConstBitBuffer frame) const;
    [[nodiscard]] std::span<const TreeLayout> layouts() const noexcept { return layouts_; }
    [[nodiscard]] std::span<const TreeLine> lines(const TreeLayout& layout) const noexcept {
        return std::span<const TreeLine>(lines_).subspan(layout.firstLine, layout.lineCount);
    }
    [[nodiscard]] std::span<const TreeSlot> slots() const noexcept { return slots_; }

    // The raw bits of a value or hidden line, segments joined, right-aligned.
    [[nodiscard]] std::uint64_t read(const TreeLine& line, ConstBitBuffer frame) const noexcept {
        if (line.pieceCount == 1) {  // most fields
            return readPiece(pieces_[line.firstPiece], frame.data());
        }
        return readPieces(line, frame);
    }

    // Appends the listing of the frame (readableBytes() of it) with `out`'s line end:
    // one line per listed member, no line end after the last.
    void appendText(ConstBitBuffer frame, Text::TextBuffer& out) const;

    static std::uint64_t readPiece(const PlannedPiece& piece, const std::uint8_t* bits) noexcept {
        return (Bits::loadBigEndian64(bits + piece.byte) << piece.shift) >> (64 - piece.length);
    }

  private:
    class Builder;

    [[nodiscard]] std::uint64_t readPieces(const TreeLine& line,
                                           ConstBitBuffer frame) const noexcept;

    // A structure whose variant is asked for: its outcomes are the container ids of
    // its members (`ids`), then any other value; `next` holds, for each, the next
    // selector's index or, negated minus one, the layout's.
    struct Selector {
        const BitStructDef* def = nullptr;
        std::vector<std::int32_t> ids;
        std::vector<std::int32_t> next;
    };

    std::int32_t frameBits_;
    std::size_t readableBytes_ = 8;
    std::vector<TreeLine> lines_;
    std::vector<PlannedPiece> pieces_;
    std::vector<TreeLayout> layouts_;
    std::vector<Selector> selectors_;  // the first asks first; none: one layout
    std::vector<TreeSlot> slots_;
    std::string text_;  // prefixes of all lines, each followed by Text::kCopySlack bytes
};

// The value line of one field alone, as the plan writes it (no prefix, no slot).
[[nodiscard]] TreeLine valueLine(const BitFieldValueDef& field);

// Writes what a value line shows after its label for the raw bits `raw`: the value
// and its units, followed by ", Raw hex:" and the raw digits where they say more than
// the value (or the digits alone for a raw-hex-only field). `p` has maxValueRoom(line)
// characters of room; returns the end.
char* writeValue(char* p, const TreeLine& line, std::uint64_t raw) noexcept;
[[nodiscard]] std::size_t maxValueRoom(const TreeLine& line) noexcept;

// The plan of a format's tree, built on first use: `Root` returns the tree, whose
// type's kBits is the frame length. The same object wherever it is asked for.
template <auto Root>
const TreePlan& treePlanOf() {
    using Def = std::remove_cvref_t<decltype(Root())>;
    static const TreePlan plan(Root(), 0, Def::kBits);
    return plan;
}

}  // namespace ZeltNavMsg::Describe

#endif
