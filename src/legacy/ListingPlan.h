#ifndef ZELTNAVMSG_LEGACY_LISTINGPLAN_H
#define ZELTNAVMSG_LEGACY_LISTINGPLAN_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "legacy/Subframe.h"
#include "legacy/SubframeFieldInfo.h"

// A field table digested for printing. Everything about an entry's line that does
// not depend on the bits is worked out once, at compile time for the built-in
// tables: the name already right-aligned, the units with their blank, the hex digit
// count, which number is printed, and each segment as a byte offset and two shifts.
// Entries that are never printed are dropped, and the rest are cut into runs of
// neighbours that share their selection, so a subframe tests each run once.

namespace ZeltNavMsg::Legacy {

// Bits are read from a copy of the record's data followed by zero bytes, so that a
// 64-bit big-endian load at any segment's byte stays inside it.
inline constexpr std::size_t kPaddedDataBytes = 48;
// A segment that lies before bit 1 or after the data reads as zero from here.
inline constexpr std::uint8_t kZeroBytes = 40;

// Up to 32 bits: (loadBigEndian64(byte) << shift) >> (64 - length).
struct PlannedSegment {
    std::uint8_t byte = kZeroBytes;
    std::uint8_t shift = 0;
    std::uint8_t length = 0;  // 1 ... 32
};

// The number printed after the optional hex part.
enum class PlannedValue : std::uint8_t {
    None,
    Unsigned,           // " %lu"
    Signed,             // " %ld" of the sign-extended value
    ScaledUnsigned,     // " %g" of value x scale
    ScaledSigned,       // " %g" of the sign-extended value x scale
    UnsignedCharacter,  // " %lu", then " '%c'" of the low byte
    Character,          // " '%c'" of the low byte alone
};

struct PlannedLine {
    // Every piece of a line is formatted into a 64-byte buffer, so "%20s:" keeps at
    // most 63 characters, and " 0x%0*X" at most 60 digits.
    static constexpr std::size_t kMaxPiece = 63;
    static constexpr int kMaxShownHexDigits = 60;
    // Hex digits are counted up to this many: beyond 60 only zeros survive the cut.
    static constexpr int kMaxHexDigits = 68;
    static constexpr std::size_t kShortUnits = 32;
    // The label is copied in blocks of this many characters.
    static constexpr std::size_t kLabelBlock = 32;

    // "%20s:" of the name, then " 0x" when the line has a hex part: one copy.
    char label[3 * kLabelBlock] = {};
    char units[kShortUnits] = {};     // " " and the units, when that fits
    const char* longUnits = nullptr;  // the units text when " units" does not fit
    double scale = 0.0;
    std::int32_t width = 0;  // sum of the eight segment lengths
    std::int32_t group = 0;
    std::uint16_t unitsLength = 0;  // of " units"; 0 without units
    std::uint8_t labelLength = 0;   // " 0x" included
    std::uint8_t nameLength = 0;    // "%20s:" alone
    std::uint8_t hexDigits = 0;     // 0: no hex part
    std::uint8_t shownHexDigits = 0;
    PlannedValue value = PlannedValue::None;
    std::uint8_t segmentCount = 0;
    std::uint16_t entry = 0;  // index of the table entry
    std::uint16_t lineRoom = 0;
    PlannedSegment segments[SubframeFieldInfo::kMaxSegments] = {};

    // Room the line takes in the output buffer, what the writers store past the text
    // included: a line end before it (a change of group), the label's blocks, the hex
    // digits (16 bytes stored up to 16 digits), a blank and a number ("%g" stores 16
    // bytes), a quoted character with a line end inside, the units and the line end
    // (two bytes stored each).
    [[nodiscard]] constexpr std::size_t room() const { return lineRoom; }
};

// Neighbouring lines printed under the same condition.
struct PlannedRun {
    std::int32_t layoutId = 0;
    std::int32_t subframe = 0;
    std::int32_t page = 0;
    std::uint16_t first = 0;
    std::uint16_t count = 0;
    bool rawPass = false;
    bool printed = true;     // false for parity and reserved entries, which only records show
    std::uint32_t room = 0;  // of its lines
};

// Which runs a subframe and layout select, as bit masks over at most 64 runs: those
// of layout 0 (every subframe), those of the subframe without a page, and those of
// the layout. A table whose runs do not fit the masks is scanned instead.
struct RunIndex {
    static constexpr std::int32_t kSubframes = 8;  // subframe numbers 0 ... 7

    bool indexed = false;
    std::uint64_t rawPass = 0;
    std::uint64_t printed = 0;
    std::uint64_t bySubframe[kSubframes] = {};  // runs of subframe s without a page
    std::span<const std::uint64_t> byLayout;    // by layout id

    // The runs the selection rule (SubframeIf::selected) takes for the record's
    // subframe number and layout.
    [[nodiscard]] constexpr std::uint64_t selected(std::int32_t subframe,
                                                   std::int32_t layoutId) const noexcept {
        std::uint64_t runs = byLayout[0];
        if (subframe >= 0 && subframe < kSubframes) {
            runs |= bySubframe[subframe];
        }
        if (layoutId > 0 && static_cast<std::size_t>(layoutId) < byLayout.size()) {
            runs |= byLayout[static_cast<std::size_t>(layoutId)];
        }
        return runs;
    }
};

// The plan of one signal's table, as SubframeIf reads it.
struct ListingPlan {
    std::span<const PlannedLine> lines;
    std::span<const PlannedRun> runs;
    RunIndex index;
};

namespace Planning {

constexpr std::size_t length(const char* text) {
    std::size_t n = 0;
    while (text[n] != '\0') {
        ++n;
    }
    return n;
}

constexpr PlannedSegment segment(std::int64_t first, std::int64_t length) {
    if (first < 1) {
        return {kZeroBytes, 0, static_cast<std::uint8_t>(length > 32 ? 32 : length)};
    }
    if (length > 32) {  // only the last 32 bits can survive the 32-bit accumulator
        first += length - 32;
        length = 32;
    }
    const std::int64_t index = first - 1;
    if (index >= std::int64_t{8} * subframe_t::kDataBytes) {
        return {kZeroBytes, 0, static_cast<std::uint8_t>(length)};
    }
    return {static_cast<std::uint8_t>(index / 8), static_cast<std::uint8_t>(index % 8),
            static_cast<std::uint8_t>(length)};
}

}  // namespace Planning

// The printing plan of one table entry. The caller has already decided that the
// entry is printed at all.
constexpr PlannedLine planLine(const SubframeFieldInfo& field) {
    PlannedLine line;

    const std::size_t nameLength = Planning::length(field.name);
    const std::size_t pad = nameLength < 20 ? 20 - nameLength : 0;
    std::size_t n = 0;
    for (; n < pad && n < PlannedLine::kMaxPiece; ++n) {
        line.label[n] = ' ';
    }
    for (std::size_t i = 0; i < nameLength && n < PlannedLine::kMaxPiece; ++i) {
        line.label[n++] = field.name[i];
    }
    if (n < PlannedLine::kMaxPiece) {
        line.label[n++] = ':';
    }
    line.nameLength = static_cast<std::uint8_t>(n);

    if (field.units != nullptr) {
        const std::size_t unitsLength = Planning::length(field.units);
        line.unitsLength = static_cast<std::uint16_t>(1 + unitsLength);
        if (1 + unitsLength <= PlannedLine::kShortUnits) {
            line.units[0] = ' ';
            for (std::size_t i = 0; i < unitsLength; ++i) {
                line.units[1 + i] = field.units[i];
            }
        } else {
            line.longUnits = field.units;
        }
    }

    std::int32_t width = 0;
    for (const std::int32_t segmentLength : field.segmentLength) {
        width += segmentLength;
    }
    line.width = width;
    line.group = field.group;
    line.scale = field.scale;

    const std::int32_t count = field.segmentCount < 0 ? 0
                               : field.segmentCount > SubframeFieldInfo::kMaxSegments
                                   ? SubframeFieldInfo::kMaxSegments
                                   : field.segmentCount;
    for (std::int32_t s = 0; s < count; ++s) {
        if (field.segmentLength[s] > 0) {
            line.segments[line.segmentCount++] =
                Planning::segment(field.segmentStart[s], field.segmentLength[s]);
        }
    }

    if ((field.flags & kNoHex) == 0 && width > 1) {
        const std::int64_t digits = (std::int64_t{width} + 3) / 4;
        line.hexDigits = static_cast<std::uint8_t>(
            digits > PlannedLine::kMaxHexDigits ? PlannedLine::kMaxHexDigits : digits);
        line.shownHexDigits = static_cast<std::uint8_t>(
            digits > PlannedLine::kMaxShownHexDigits ? PlannedLine::kMaxShownHexDigits : digits);
        line.label[n++] = ' ';
        line.label[n++] = '0';
        line.label[n++] = 'x';
    }
    line.labelLength = static_cast<std::uint8_t>(n);
    const bool integerShown = (field.flags & kValueOnlyIfOneBit) == 0 || width == 1;
    switch (field.valueType) {
        case kUnsigned:
            line.value = integerShown ? PlannedValue::Unsigned : PlannedValue::None;
            if ((field.flags & kShowCharacter) != 0 && width <= 8) {  // " '%c'" follows
                line.value =
                    integerShown ? PlannedValue::UnsignedCharacter : PlannedValue::Character;
            }
            break;
        case kSigned:
            line.value = integerShown ? PlannedValue::Signed : PlannedValue::None;
            break;
        case kUnsignedScaled:
            line.value = PlannedValue::ScaledUnsigned;
            break;
        case kSignedScaled:
            line.value = PlannedValue::ScaledSigned;
            break;
        default:
            break;
    }
    const std::size_t labelBlocks =
        (n + PlannedLine::kLabelBlock - 1) / PlannedLine::kLabelBlock * PlannedLine::kLabelBlock;
    const std::size_t unitsRoom =
        line.longUnits != nullptr ? line.unitsLength : PlannedLine::kShortUnits;
    line.lineRoom = static_cast<std::uint16_t>(
        2 + (labelBlocks > 0 ? labelBlocks : PlannedLine::kLabelBlock) +
        (line.hexDigits > 16 ? line.hexDigits : 16) + 1 + 16 + 5 + unitsRoom + 2);
    return line;
}

// Whether an entry ever prints: it has a name and is neither parity nor reserved.
constexpr bool isPrinted(const SubframeFieldInfo& field) {
    return field.name != nullptr && (field.flags & (kNeverPrinted | kReserved)) == 0;
}

// Storage of a table's plan; N is the table's entry count, an upper bound of both.
template <std::size_t N>
struct ListingPlanData {
    std::array<PlannedLine, N> lines{};
    std::array<PlannedRun, N> runs{};
    std::size_t lineCount = 0;
    std::size_t runCount = 0;
    RunIndex index;
    std::array<std::uint64_t, N + 1> byLayout{};  // layout ids 0 ... N

    [[nodiscard]] constexpr ListingPlan plan() const {
        RunIndex view = index;
        view.byLayout = std::span<const std::uint64_t>(byLayout.data(), byLayout.size());
        return {std::span<const PlannedLine>(lines.data(), lineCount),
                std::span<const PlannedRun>(runs.data(), runCount), view};
    }
};

template <std::size_t N>
constexpr ListingPlanData<N> planListing(const std::array<SubframeFieldInfo, N>& table) {
    static_assert(N <= 0xFFFF, "run indices are 16 bits");
    ListingPlanData<N> data;
    for (std::size_t i = 0; i < N; ++i) {
        const SubframeFieldInfo& field = table[i];
        if (field.name == nullptr) {
            continue;
        }
        // Parity and reserved entries are planned too, in runs of their own that the
        // listing skips: the records account for every bit of a subframe.
        const bool printed = isPrinted(field);
        const bool rawPass = (field.flags & kRawPass) != 0;
        PlannedRun* run = data.runCount == 0 ? nullptr : &data.runs[data.runCount - 1];
        if (run == nullptr || run->rawPass != rawPass || run->printed != printed ||
            run->layoutId != field.layoutId || run->subframe != field.subframe ||
            run->page != field.page) {
            run = &data.runs[data.runCount++];
            *run = {field.layoutId,
                    field.subframe,
                    field.page,
                    static_cast<std::uint16_t>(data.lineCount),
                    0,
                    rawPass,
                    printed};
        }
        PlannedLine& line = data.lines[data.lineCount++];
        line = planLine(field);
        line.entry = static_cast<std::uint16_t>(i);
        ++run->count;
        run->room += line.lineRoom;
    }

    // The masks, when every run fits them.
    bool fits = data.runCount <= 64;
    for (std::size_t r = 0; r < data.runCount && fits; ++r) {
        const PlannedRun& run = data.runs[r];
        fits = run.layoutId >= 0 && static_cast<std::size_t>(run.layoutId) <= N &&
               (run.page != 0 || (run.subframe >= 0 && run.subframe < RunIndex::kSubframes));
    }
    data.index.indexed = fits;
    for (std::size_t r = 0; r < data.runCount && fits; ++r) {
        const PlannedRun& run = data.runs[r];
        const std::uint64_t bit = std::uint64_t{1} << r;
        data.byLayout[static_cast<std::size_t>(run.layoutId)] |= bit;
        if (run.page == 0) {
            data.index.bySubframe[run.subframe] |= bit;
        }
        if (run.rawPass) {
            data.index.rawPass |= bit;
        }
        if (run.printed) {
            data.index.printed |= bit;
        }
    }
    return data;
}

}  // namespace ZeltNavMsg::Legacy

#endif
