#include "records/LayoutNames.h"

#include <array>
#include <charconv>
#include <string_view>

#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"

namespace ZeltNavMsg::Records {

namespace {

struct LayoutName {
    MessageFormat format;
    std::int32_t id;  // table layout id, or the variant's container id
    std::string_view text;
};

using F = MessageFormat;

// clang-format off
constexpr std::array kLegacyLayouts = {
    LayoutName{F::GpsLNav, 2, "clock, health and accuracy"},
    LayoutName{F::GpsLNav, 3, "ephemeris, first part"},
    LayoutName{F::GpsLNav, 4, "ephemeris, second part"},
    LayoutName{F::GpsLNav, 6, "reserved"},
    LayoutName{F::GpsLNav, 7, "special message"},
    LayoutName{F::GpsLNav, 8, "navigation message correction table"},
    LayoutName{F::GpsLNav, 9, "ionosphere and UTC"},
    LayoutName{F::GpsLNav, 10, "A-S flags and health of SVs 25-32"},
    LayoutName{F::GpsLNav, 12, "almanac"},
    LayoutName{F::GpsLNav, 13, "almanac week and health of SVs 1-24"},
    LayoutName{F::QzssLNav, 2, "clock, health and accuracy"},
    LayoutName{F::QzssLNav, 3, "ephemeris, first part"},
    LayoutName{F::QzssLNav, 4, "ephemeris, second part"},
    LayoutName{F::QzssLNav, 6, "reserved"},
    LayoutName{F::QzssLNav, 7, "navigation message correction table"},
    LayoutName{F::QzssLNav, 8, "ionosphere and UTC"},
    LayoutName{F::QzssLNav, 9, "A-S flags and health"},
    LayoutName{F::QzssLNav, 11, "almanac"},
    LayoutName{F::QzssLNav, 12, "almanac week and health"},
    LayoutName{F::BeidouD1, 2, "clock, health and ionosphere"},
    LayoutName{F::BeidouD1, 3, "ephemeris, first part"},
    LayoutName{F::BeidouD1, 4, "ephemeris, second part"},
    LayoutName{F::BeidouD1, 7, "almanac"},
    LayoutName{F::BeidouD1, 8, "health of SVs 1-19"},
    LayoutName{F::BeidouD1, 9, "health of SVs 20-30, almanac week and reference time"},
    LayoutName{F::BeidouD1, 10, "time offsets to GPS, Galileo and GLONASS"},
    LayoutName{F::BeidouD1, 11, "leap seconds and UTC"},
    LayoutName{F::BeidouD1, 12, "almanac"},
    LayoutName{F::BeidouD1, 13, "health of SVs 31-43"},
    LayoutName{F::BeidouD2, 3, "health, week, clock time and group delays"},
    LayoutName{F::BeidouD2, 4, "ionosphere"},
    LayoutName{F::BeidouD2, 5, "clock bias"},
    LayoutName{F::BeidouD2, 6, "clock drift and ephemeris"},
    LayoutName{F::BeidouD2, 7, "ephemeris"},
    LayoutName{F::BeidouD2, 8, "ephemeris"},
    LayoutName{F::BeidouD2, 9, "ephemeris"},
    LayoutName{F::BeidouD2, 10, "ephemeris"},
    LayoutName{F::BeidouD2, 11, "ephemeris"},
    LayoutName{F::BeidouD2, 12, "ephemeris"},
    LayoutName{F::BeidouD2, 13, "integrity and differential corrections"},
    LayoutName{F::BeidouD2, 14, "integrity and differential corrections"},
    LayoutName{F::BeidouD2, 15, "integrity and differential corrections"},
    LayoutName{F::BeidouD2, 17, "ionospheric grid or reserved"},
    LayoutName{F::BeidouD2, 18, "health of SVs 1-19"},
    LayoutName{F::BeidouD2, 19, "health of SVs 20-30, almanac week and reference time"},
    LayoutName{F::BeidouD2, 20, "almanac"},
    LayoutName{F::BeidouD2, 21, "time offsets to GPS, Galileo and GLONASS"},
    LayoutName{F::BeidouD2, 22, "leap seconds and UTC"},
    LayoutName{F::BeidouD2, 23, "almanac"},
    LayoutName{F::BeidouD2, 24, "health of SVs 31-43"},
};

constexpr std::array kTreeLayouts = {
    LayoutName{F::GpsCNav2, 1, "UTC and ionosphere"},
    LayoutName{F::GpsCNav2, 2, "GGTO and EOP"},
    LayoutName{F::GpsCNav2, 3, "reduced almanac"},
    LayoutName{F::GpsCNav2, 4, "midi almanac"},
    LayoutName{F::GpsCNav2, 5, "differential corrections"},
    LayoutName{F::GpsCNav2, 6, "text"},
    LayoutName{F::GpsCNav2, 7, "SV configuration"},
    LayoutName{F::BeidouCNav1, 1, "ionosphere, BDT-UTC and SISAIoc"},
    LayoutName{F::BeidouCNav1, 2, "reduced almanac and SISAIoc"},
    LayoutName{F::BeidouCNav1, 3, "EOP and BGTO"},
    LayoutName{F::BeidouCNav1, 4, "midi almanac and SISAIoc"},
    LayoutName{F::BeidouCNav2, 10, "ephemeris I"},
    LayoutName{F::BeidouCNav2, 11, "ephemeris II"},
    LayoutName{F::BeidouCNav2, 30, "clock, ionosphere and group delays"},
    LayoutName{F::BeidouCNav2, 31, "clock and reduced almanac"},
    LayoutName{F::BeidouCNav2, 32, "clock and EOP"},
    LayoutName{F::BeidouCNav2, 33, "clock, BGTO and reduced almanac"},
    LayoutName{F::BeidouCNav2, 34, "SISAIoc, clock and BDT-UTC"},
    LayoutName{F::BeidouCNav2, 40, "SISAI and midi almanac"},
    // IRNSS subframes 1 and 2, then the message types of subframes 3 and 4.
    LayoutName{F::Irnss, 1, "clock and ephemeris"},
    LayoutName{F::Irnss, 2, "ephemeris"},
    LayoutName{F::Irnss, 5, "ionospheric grid corrections"},
    LayoutName{F::Irnss, 7, "almanac"},
    LayoutName{F::Irnss, 9, "UTC and GPS time offsets"},
    LayoutName{F::Irnss, 11, "EOP and ionosphere"},
    LayoutName{F::Irnss, 14, "differential corrections"},
    LayoutName{F::Irnss, 18, "text"},
    LayoutName{F::Irnss, 26, "UTC and GNSS time offsets"},
};
// clang-format on

template <std::size_t N>
std::string_view find(const std::array<LayoutName, N>& names, MessageFormat format,
                      std::int32_t id) {
    for (const LayoutName& n : names) {
        if (n.format == format && n.id == id) {
            return n.text;
        }
    }
    return "no layout";
}

void appendNumber(std::string& out, std::int64_t n) {
    char digits[24];
    const auto r = std::to_chars(digits, digits + sizeof digits, n);
    out.append(digits, r.ptr);
}

void appendHead(std::string& out, std::string_view first, std::int64_t a,
                std::string_view second = {}, std::int64_t b = 0) {
    out.append(first);
    appendNumber(out, a);
    if (!second.empty()) {
        out.append(second);
        appendNumber(out, b);
    }
    out.append(": ");
}

}  // namespace

void appendLegacyLayout(MessageFormat format, std::int32_t subframe, std::int32_t page,
                        std::int32_t layoutId, std::int32_t svId, std::string& out) {
    const bool paged = page > 0 && (subframe >= 4 || format == MessageFormat::BeidouD2);
    if (paged) {
        appendHead(out, "Subframe ", subframe, " page ", page);
    } else {
        appendHead(out, "Subframe ", subframe);
    }
    out.append(layoutId == 0 ? std::string_view("no layout")
                             : find(kLegacyLayouts, format, layoutId));
    if (svId >= 0) {
        out.append(" (SV ID ");
        appendNumber(out, svId);
        out.append(")");
    }
}

void appendTreeLayout(MessageFormat format, ConstBitBuffer bits,
                      std::span<const std::int32_t> variants, std::string& out) {
    const std::int32_t inner = variants.empty() ? -1 : variants.back();
    switch (format) {
        case F::GpsCNav2:
            appendHead(out, "Subframe 3 page ",
                       static_cast<std::int64_t>(
                           GpsCNav2::gpsCNav2FrameDef().subframe3.pageId.read(bits)));
            break;
        case F::BeidouCNav1:
            appendHead(out, "Subframe 3 page ",
                       static_cast<std::int64_t>(
                           BeidouCNav1::beidouCNav1FrameDef().subframe3.pageId.read(bits)));
            break;
        case F::BeidouCNav2:
            appendHead(
                out, "Message type ",
                static_cast<std::int64_t>(BeidouCNav2::beidouCNav2FrameDef().mesType.read(bits)));
            break;
        case F::Irnss: {
            const Irnss::SubframeDef& def = Irnss::irnssSubframeDef();
            const auto subframe = static_cast<std::int64_t>(def.subframeId.read(bits)) + 1;
            if (subframe <= 2) {
                appendHead(out, "Subframe ", subframe);
            } else {
                appendHead(out, "Subframe ", subframe, " message ",
                           static_cast<std::int64_t>(def.messageData.messageId.read(bits)));
            }
            break;
        }
        default:
            break;
    }
    out.append(find(kTreeLayouts, format, inner));
}

}  // namespace ZeltNavMsg::Records
