#include "legacy/SubframeIf.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "bits/BigEndian.h"
#include "text/NumberText.h"

namespace ZeltNavMsg::Legacy {

namespace {

std::uint32_t readSegment(const std::uint8_t* data, std::int32_t first, std::int32_t length) {
    if (length <= 0 || first < 1) {
        return 0;
    }
    if (length > 32) {  // only the last 32 bits can survive the accumulator
        first += length - 32;
        length = 32;
    }
    const std::int32_t firstIndex = first - 1;
    const std::int32_t lastIndex = firstIndex + length - 1;
    const std::int32_t lastByte = std::min(lastIndex / 8, subframe_t::kDataBytes - 1);
    std::uint64_t bits = 0;
    for (std::int32_t b = firstIndex / 8; b <= lastIndex / 8; ++b) {
        bits = (bits << 8) | (b <= lastByte ? data[b] : 0U);
    }
    bits >>= 7 - lastIndex % 8;
    return static_cast<std::uint32_t>(bits & ((std::uint64_t{1} << length) - 1));
}

std::int32_t signExtend(std::uint32_t value, std::int32_t width) {
    if (width > 0 && width < 32 && ((value >> (width - 1)) & 1U)) {
        value |= ~((1U << width) - 1U);
    }
    return static_cast<std::int32_t>(value);
}

// The entry's raw value: its segments joined most significant first, of which a
// 32-bit accumulator keeps the last 32 bits.
std::uint32_t readValue(const PlannedLine& line, const std::uint8_t* bits) noexcept {
    const auto read = [bits](const PlannedSegment& segment) {
        return (Bits::loadBigEndian64(bits + segment.byte) << segment.shift) >>
               (64 - segment.length);
    };
    if (line.segmentCount == 1) {  // most fields
        return static_cast<std::uint32_t>(read(line.segments[0]));
    }
    std::uint64_t value = 0;
    for (std::uint8_t s = 0; s < line.segmentCount; ++s) {
        value = (value << line.segments[s].length) | read(line.segments[s]);
    }
    return static_cast<std::uint32_t>(value);
}

// The output's line end, held in registers through a run.
struct LineEnd {
    char chars[2];
    std::size_t size;

    explicit LineEnd(const Text::TextBuffer& out) noexcept
        : chars{out.lineEnd()[0], out.lineEnd().size() > 1 ? out.lineEnd()[1] : '\0'},
          size(out.lineEnd().size()) {}
    char* put(char* p) const noexcept {
        std::memcpy(p, chars, 2);
        return p + size;
    }
};

// Writes the line at `p`, where line.room() characters may be stored, and returns
// its end.
[[gnu::always_inline]] inline char* writeLine(char* p, const PlannedLine& line,
                                              const std::uint8_t* bits,
                                              const LineEnd lineEnd) noexcept {
    // The label and " 0x" in blocks: most take one.
    std::memcpy(p, line.label, PlannedLine::kLabelBlock);
    if (line.labelLength > PlannedLine::kLabelBlock) [[unlikely]] {
        std::memcpy(p + PlannedLine::kLabelBlock, line.label + PlannedLine::kLabelBlock,
                    sizeof line.label - PlannedLine::kLabelBlock);
    }
    p += line.labelLength;

    const std::uint32_t value = readValue(line, bits);
    if (line.hexDigits != 0) {
        // A hex piece longer than the 63 characters of its buffer is cut; the digit
        // count covers the 32-bit value (ceil(width / 4), at least 9 above 32 bits).
        Text::writeHexDigits(p, value, line.hexDigits);
        p += line.shownHexDigits;
    }
    switch (line.value) {
        case PlannedValue::None:
            break;
        case PlannedValue::Unsigned:
            *p++ = ' ';
            p = Text::writeUnsigned(p, value);
            break;
        case PlannedValue::Signed:
            *p++ = ' ';
            p = Text::writeSigned(p, signExtend(value, line.width));
            break;
        case PlannedValue::ScaledUnsigned:
            *p++ = ' ';
            p = Text::writeG(p, static_cast<double>(value) * line.scale);
            break;
        case PlannedValue::ScaledSigned:
            *p++ = ' ';
            p = Text::writeG(p, static_cast<double>(signExtend(value, line.width)) * line.scale);
            break;
        case PlannedValue::UnsignedCharacter:
        case PlannedValue::Character: {
            if (line.value == PlannedValue::UnsignedCharacter) {
                *p++ = ' ';
                p = Text::writeUnsigned(p, value);
            }
            // " '%c'" appended as a C string: a NUL character ends the piece, and a line
            // feed is a line end like any other.
            const auto c = static_cast<char>(value & 0xFFU);
            *p++ = ' ';
            *p++ = '\'';
            if (c == '\n') {
                p = lineEnd.put(p);
                *p++ = '\'';
            } else if (c != '\0') {
                *p++ = c;
                *p++ = '\'';
            }
            break;
        }
    }
    if (line.longUnits == nullptr) [[likely]] {  // " units" or nothing, as one block
        std::memcpy(p, line.units, PlannedLine::kShortUnits);
    } else {
        *p = ' ';
        std::memcpy(p + 1, line.longUnits, line.unitsLength - 1U);
    }
    return lineEnd.put(p + line.unitsLength);
}

}  // namespace

void appendLineValue(const PlannedLine& line, const std::uint8_t* bits, Text::TextBuffer& out) {
    char* const p = out.reserve(line.room());
    const char* end = writeLine(p, line, bits, LineEnd(out)) - out.lineEnd().size();
    const char* value = p + line.nameLength;
    if (value < end && *value == ' ') {
        ++value;
    }
    const auto length = static_cast<std::size_t>(std::max<std::ptrdiff_t>(end - value, 0));
    std::memmove(p, value, length);
    out.commit(p + length);
}

RawField extractField(const SubframeFieldInfo& field, const std::uint8_t* data) noexcept {
    std::int32_t width = 0;
    for (std::int32_t length : field.segmentLength) {
        width += length;
    }
    std::uint32_t value = 0;
    const std::int32_t count = std::clamp(field.segmentCount, 0, SubframeFieldInfo::kMaxSegments);
    for (std::int32_t s = 0; s < count; ++s) {
        const std::int32_t length = field.segmentLength[s];
        if (length <= 0) {
            continue;
        }
        const std::uint32_t bits = readSegment(data, field.segmentStart[s], length);
        value = length >= 32 ? bits : (value << length) + bits;
    }
    return {value, width};
}

void SubframeIf::DescribeFields(Text::TextBuffer& out, const subframe_t& sf,
                                const std::uint8_t* bits, std::int32_t layoutId,
                                bool rawPass) const {
    std::int32_t group = 0;
    if (plan_ == nullptr) {
        for (const SubframeFieldInfo& field : fields()) {
            if (isPrinted(field) && ((field.flags & kRawPass) != 0) == rawPass &&
                selected(sf, layoutId, field.layoutId, field.subframe, field.page)) {
                const PlannedLine line = planLine(field);
                char* p = out.reserve(line.room());
                if (line.group != group) {
                    p = out.putLineEnd(p);
                    group = line.group;
                }
                out.commit(writeLine(p, line, bits, LineEnd(out)));
            }
        }
        return;
    }

    // Each run's lines are written straight into room taken from `out` once.
    const LineEnd lineEnd(out);
    forEachRun(sf, layoutId, rawPass, false, [&](const PlannedRun& run) {
        char* p = out.reserve(run.room);
        std::int32_t runGroup = group;
        for (const PlannedLine& line : plan_->lines.subspan(run.first, run.count)) {
            if (line.group != runGroup) {
                p = lineEnd.put(p);
                runGroup = line.group;
            }
            p = writeLine(p, line, bits, lineEnd);
        }
        group = runGroup;
        out.commit(p);
    });
}

void SubframeIf::describe(Text::TextBuffer& out, const subframe_t& sf, DecodingMode mode) const {
    char* p = out.reserve(48);
    static constexpr char kSubframe[] = "Subframe: ";
    static constexpr char kPage[] = " Page: ";
    std::memcpy(p, kSubframe, sizeof kSubframe - 1);
    p = Text::writeSigned(p + sizeof kSubframe - 1, sf.subframe);
    if (sf.page > 0) {
        std::memcpy(p, kPage, sizeof kPage - 1);
        p = Text::writeSigned(p + sizeof kPage - 1, sf.page);
    }
    out.commit(p);
    out.newline();

    const std::int32_t layoutId = GetLayoutId(sf);
    std::uint8_t bits[kPaddedDataBytes] = {};
    std::memcpy(bits, sf.data, sizeof sf.data);
    const std::size_t rawStart = out.size();
    DescribeFields(out, sf, bits, layoutId, true);

    // An empty line parts the passes when both print something: put it in now and
    // take it back if the decoded pass prints nothing.
    const std::size_t rawEnd = out.size();
    if (rawEnd > rawStart) {
        out.newline();
    }
    const std::size_t decodedStart = out.size();
    subframe_t decoded = sf;
    if (mode == DecodingMode::DecodeWords) {
        GetCoder().Decode(decoded);
    }
    std::memcpy(bits, decoded.data, sizeof decoded.data);
    DescribeFields(out, decoded, bits, layoutId, false);
    if (out.size() == decodedStart) {
        out.truncate(rawEnd);
    }
}

std::string& SubframeIf::MakeReadableDescription(std::string& out, const subframe_t& sf,
                                                 DecodingMode mode) const {
    Text::TextBuffer text;
    describe(text, sf, mode);
    out.assign(text.view());
    return out;
}

}  // namespace ZeltNavMsg::Legacy
