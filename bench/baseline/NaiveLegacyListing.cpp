#include "baseline/NaiveLegacyListing.h"

#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <vector>

namespace ZeltNavMsg::Baseline {

namespace {

using Legacy::subframe_t;
using Legacy::SubframeFieldInfo;

int hexValue(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    throw std::invalid_argument("naiveLegacyListing: not a hex digit");
}

// Bit `bit` of the record, counted from 1 at the most significant bit of data[0].
unsigned bitAt(const subframe_t& sf, int bit) {
    const int index = bit - 1;
    if (index < 0 || index >= 8 * subframe_t::kDataBytes) {
        return 0;
    }
    return (sf.data[index / 8] >> (7 - index % 8)) & 1U;
}

// One piece formatted by snprintf into a 64-byte scratch buffer, appended as a C string.
template <class... Args>
void print(std::string& out, const char* format, Args... args) {
    char piece[64];
    if (std::snprintf(piece, sizeof piece, format, args...) > 0) {
        out += piece;  // a NUL character ends it
    }
}

std::string describeFields(const Legacy::SubframeIf& signal, const subframe_t& sf, bool rawPass) {
    std::string out;
    int group = 0;
    for (const SubframeFieldInfo& field : signal.fields()) {
        if (field.name == nullptr || ((field.flags & 0x04U) != 0) != rawPass ||
            (field.flags & 0x22U) != 0) {
            continue;
        }
        if (field.layoutId != 0 && !(field.subframe == sf.subframe && field.page == 0) &&
            signal.GetLayoutId(sf) != field.layoutId) {
            continue;
        }
        if (field.group != group) {
            out += "\n";
            group = field.group;
        }
        int width = 0;
        for (int length : field.segmentLength) {
            width += length;
        }
        std::uint64_t accumulator = 0;
        for (int s = 0; s < field.segmentCount; ++s) {
            for (int i = 0; i < field.segmentLength[s]; ++i) {
                accumulator = (accumulator << 1) | bitAt(sf, field.segmentStart[s] + i);
            }
        }
        const auto value = static_cast<std::uint32_t>(accumulator);
        std::int32_t extended = static_cast<std::int32_t>(value);
        if (width > 0 && width < 32 && ((value >> (width - 1)) & 1U) != 0) {
            extended = static_cast<std::int32_t>(value | ~((1U << width) - 1U));
        }

        print(out, "%20s:", field.name);
        if ((field.flags & 0x10U) == 0 && width > 1) {
            print(out, " 0x%0*lX", (width + 3) / 4, static_cast<unsigned long>(value));
        }
        const bool integerShown = (field.flags & 0x08U) == 0 || width == 1;
        if (field.valueType == 0 && integerShown) {
            print(out, " %lu", static_cast<unsigned long>(value));
        }
        if (field.valueType == 0 && (field.flags & 0x40U) != 0 && width <= 8) {
            print(out, " '%c'", static_cast<int>(value & 0xFFU));
        }
        if (field.valueType == 1 && integerShown) {
            print(out, " %ld", static_cast<long>(extended));
        }
        if (field.valueType == 2 || field.valueType == 3) {
            const double raw =
                field.valueType == 2 ? static_cast<double>(value) : static_cast<double>(extended);
            print(out, " %g", raw * field.scale);
        }
        if (field.units != nullptr) {
            out += " ";
            out += field.units;
        }
        out += "\n";
    }
    return out;
}

}  // namespace

std::string naiveLegacyListing(const Legacy::SubframeIf& signal, std::int32_t subframe,
                               std::int32_t page, std::string_view hex) {
    std::vector<std::uint8_t> bytes((hex.size() + 1) / 2);
    for (std::size_t i = 0; i < hex.size(); ++i) {
        bytes[i / 2] |= static_cast<std::uint8_t>(hexValue(hex[i]) << (i % 2 == 0 ? 4 : 0));
    }
    if (bytes.size() > static_cast<std::size_t>(subframe_t::kDataBytes)) {
        throw std::length_error("naiveLegacyListing: more than 38 bytes");
    }

    subframe_t sf;
    sf.subframe = subframe;
    sf.page = page;
    sf.layoutId = signal.GetLayoutId(sf);
    sf.bitCount = static_cast<std::int32_t>(hex.size() * 4);
    std::memcpy(sf.data, bytes.data(), bytes.size());

    std::string text;
    print(text, "Subframe: %d", static_cast<int>(sf.subframe));
    if (sf.page > 0) {
        print(text, " Page: %d", static_cast<int>(sf.page));
    }
    text += "\n";
    const std::string rawPass = describeFields(signal, sf, true);
    text += rawPass;
    subframe_t decoded = sf;
    signal.GetCoder().Decode(decoded);
    const std::string decodedPass = describeFields(signal, decoded, false);
    if (!rawPass.empty() && !decodedPass.empty()) {
        text += "\n";
    }
    text += decodedPass;

    std::string converted;
    for (const char c : text) {
        if (c == '\n') {
            converted += "\r\n";
        } else {
            converted += c;
        }
    }
    return converted;
}

}  // namespace ZeltNavMsg::Baseline
