#include "legacy/SubframeIf.h"

#include <algorithm>
#include <cstring>

#include "text/NumberText.h"

namespace ZeltNavMsg::Legacy {

namespace {

constexpr std::size_t kNameColumns = 20;
// Every piece of a line is formatted into a 64-byte buffer; a longer one is cut.
constexpr std::size_t kMaxPiece = 63;

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

// The name right-aligned in 20 columns and a colon ("%20s:").
void appendName(Text::TextBuffer& out, const char* name) {
    const std::size_t length = std::strlen(name);
    const std::size_t pad = length < kNameColumns ? kNameColumns - length : 0;
    std::size_t piece = std::min(pad + length + 1, kMaxPiece);
    char* p = out.reserve(piece);
    const std::size_t spaces = std::min(pad, piece);
    std::memset(p, ' ', spaces);
    p += spaces;
    piece -= spaces;
    const std::size_t copied = std::min(length, piece);
    std::memcpy(p, name, copied);
    p += copied;
    if (piece > copied) {
        *p++ = ':';
    }
    out.commit(p);
}

std::int32_t signExtend(std::uint32_t value, std::int32_t width) {
    if (width > 0 && width < 32 && ((value >> (width - 1)) & 1U)) {
        value |= ~((1U << width) - 1U);
    }
    return static_cast<std::int32_t>(value);
}

}  // namespace

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

void SubframeIf::DescribeFields(Text::TextBuffer& out, const subframe_t& sf, bool rawPass) const {
    std::int32_t group = 0;
    std::int32_t recordLayout = -1;
    bool layoutKnown = false;
    for (const SubframeFieldInfo& field : fields()) {
        if (field.name == nullptr) {
            continue;
        }
        if (((field.flags & kRawPass) != 0) != rawPass ||
            (field.flags & (kNeverPrinted | kReserved)) != 0) {
            continue;
        }
        // A subframe without pages is matched by its number alone; a paged entry
        // needs the layout of the record's page.
        if (field.layoutId != 0 && !(field.subframe == sf.subframe && field.page == 0)) {
            if (!layoutKnown) {
                recordLayout = GetLayoutId(sf);
                layoutKnown = true;
            }
            if (recordLayout != field.layoutId) {
                continue;
            }
        }
        if (field.group != group) {
            out.newline();
            group = field.group;
        }

        const RawField raw = extractField(field, sf.data);
        appendName(out, field.name);

        // Room for " 0x" and the hex digits, then a blank and a number.
        char* p = out.reserve(static_cast<std::size_t>(std::max(raw.width, 0)) / 4 + 8 + 32);
        if ((field.flags & kNoHex) == 0 && raw.width > 1) {
            *p++ = ' ';
            *p++ = '0';
            *p++ = 'x';
            p = Text::writeHex(p, raw.value, (raw.width + 3) / 4);
        }
        const bool printInteger = (field.flags & kValueOnlyIfOneBit) == 0 || raw.width == 1;
        switch (field.valueType) {
            case kUnsigned:
                if (printInteger) {
                    *p++ = ' ';
                    p = Text::writeUnsigned(p, raw.value);
                }
                break;
            case kSigned:
                if (printInteger) {
                    *p++ = ' ';
                    p = Text::writeSigned(p, signExtend(raw.value, raw.width));
                }
                break;
            case kUnsignedScaled:
                *p++ = ' ';
                p = Text::writeG(p, static_cast<double>(raw.value) * field.scale);
                break;
            case kSignedScaled:
                *p++ = ' ';
                p = Text::writeG(
                    p, static_cast<double>(signExtend(raw.value, raw.width)) * field.scale);
                break;
            default:
                break;
        }
        out.commit(p);
        if (field.valueType == kUnsigned && (field.flags & kShowCharacter) != 0 && raw.width <= 8) {
            // " '%c'" appended as a C string: a NUL character ends the piece.
            const auto c = static_cast<char>(raw.value & 0xFFU);
            out.append(" '");
            if (c == '\n') {
                out.newline();  // the line-end conversion turns this one too
                out.append('\'');
            } else if (c != '\0') {
                out.append(c);
                out.append('\'');
            }
        }
        if (field.units != nullptr) {
            out.append(' ');
            out.append(field.units);
        }
        out.newline();
    }
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

    const std::size_t rawStart = out.size();
    DescribeFields(out, sf, true);
    const std::size_t rawEnd = out.size();

    subframe_t decoded = sf;
    if (mode == DecodingMode::DecodeWords) {
        GetCoder().Decode(decoded);
    }
    DescribeFields(out, decoded, false);
    if (rawEnd > rawStart && out.size() > rawEnd) {
        out.insert(rawEnd, out.lineEnd());
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
