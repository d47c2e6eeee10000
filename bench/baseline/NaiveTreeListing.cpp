#include "baseline/NaiveTreeListing.h"

#include <algorithm>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "fields/BitFieldValueDef.h"

namespace ZeltNavMsg::Baseline {

namespace {

struct Frame {
    std::vector<std::uint8_t> bytes;  // for the selectors, which read a buffer
    std::vector<int> bits;
};

std::uint64_t rawOf(const BitFieldDef& field, const Frame& frame) {
    std::uint64_t raw = 0;
    for (const BitRange& r : field.ranges()) {
        for (int i = r.firstBitIndex(); i <= r.lastBitIndex(); ++i) {
            raw = (raw << 1) | static_cast<std::uint64_t>(frame.bits[static_cast<std::size_t>(i)]);
        }
    }
    return raw;
}

std::string valueText(const BitFieldValueDef& field, std::uint64_t raw) {
    const int width = field.totalBitsCount();
    const bool negative = width < 64 && ((raw >> (width - 1)) & 1U) != 0;
    const std::int64_t extended =
        negative ? static_cast<std::int64_t>(raw | ~((std::uint64_t{1} << width) - 1))
                 : static_cast<std::int64_t>(raw);
    char text[64];
    switch (field.fieldKind()) {
        case FieldKind::UnsignedInt:
            std::snprintf(text, sizeof text, "%" PRIu64,
                          raw * static_cast<std::uint64_t>(field.scaleFactor()));
            break;
        case FieldKind::SignedInt:
            std::snprintf(text, sizeof text, "%" PRId64,
                          extended * static_cast<std::int32_t>(field.scaleFactor()));
            break;
        case FieldKind::Bool:
            std::snprintf(text, sizeof text, "%d", static_cast<int>(raw & 1U));
            break;
        default: {  // Double: the formats the schemas use, unsigned (1) and two's complement (2)
            const bool isUnsigned = field.numberFormat() == NumberFormat::UnsignedNumberFormat;
            const double v = isUnsigned ? static_cast<double>(raw) : static_cast<double>(extended);
            std::snprintf(text, sizeof text, "%g", v * field.scaleFactor());
            break;
        }
    }
    return text;
}

void describe(const BitFieldDef& def, const Frame& frame, int level, std::string& text) {
    const std::string tabs(static_cast<std::size_t>(level), '\t');
    if (!def.isStruct()) {
        const auto& field = static_cast<const BitFieldValueDef&>(def);
        const std::uint64_t raw = rawOf(field, frame);
        char hex[64];
        const int digits = std::min((field.totalBitsCount() + 3) / 4, 17);
        std::snprintf(hex, sizeof hex, "%0*" PRIX64, digits, raw);
        const std::string value = valueText(field, raw);
        std::string tail;
        if (!field.hasFlag(RawHexOnly)) {
            tail = value + (field.units().empty() ? "" : " " + field.units());
        }
        if (value != hex) {
            tail += tail.empty() ? hex : std::string(", Raw hex:") + hex;
        }
        text += tabs + field.name() + ": " + tail;
        return;
    }
    const auto& structure = static_cast<const BitStructDef&>(def);
    std::string own = def.hasFlag(Transparent) ? "" : tabs + def.name();
    const int childLevel = def.hasFlag(Transparent) ? level : level + 1;
    const ConstBitBuffer buffer(frame.bytes.data(), static_cast<std::int32_t>(frame.bits.size()));
    for (const BitFieldDef* child : structure.children()) {
        if (child->hasFlag(Hidden)) {
            continue;
        }
        if (child->containerId() >= 0 &&
            structure.activeContainerId(buffer) != child->containerId()) {
            continue;
        }
        if (!own.empty()) {
            own += "\r\n";
        }
        describe(*child, frame, childLevel, own);
    }
    text += own;
}

}  // namespace

std::string naiveTreeListing(const BitStructDef& root, int frameBits, std::string_view hex) {
    Frame frame;
    frame.bits.assign(static_cast<std::size_t>(frameBits), 0);
    for (std::size_t i = 0; i < hex.size() && 4 * i < frame.bits.size(); ++i) {
        const char c = hex[i];
        const int digit = c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
        for (std::size_t b = 0; b < 4 && 4 * i + b < frame.bits.size(); ++b) {
            frame.bits[4 * i + b] = (digit >> (3 - b)) & 1;
        }
    }
    frame.bytes.assign((frame.bits.size() + 7) / 8, 0);
    for (std::size_t i = 0; i < frame.bits.size(); ++i) {
        frame.bytes[i / 8] =
            static_cast<std::uint8_t>(frame.bytes[i / 8] | (frame.bits[i] << (7 - i % 8)));
    }
    std::string text;
    describe(root, frame, 0, text);
    return text;
}

}  // namespace ZeltNavMsg::Baseline
