#include "records/Corrections.h"

#include <array>
#include <cmath>

#include "fields/ParamModifiers.h"

namespace ZeltNavMsg::Records {

namespace {

constexpr std::uint32_t bit(MessageFormat f) {
    return std::uint32_t{1} << static_cast<std::uint32_t>(f);
}
constexpr std::uint32_t kLNav = bit(MessageFormat::GpsLNav) | bit(MessageFormat::QzssLNav);
constexpr std::uint32_t kBeidouD = bit(MessageFormat::BeidouD1) | bit(MessageFormat::BeidouD2);
constexpr std::uint32_t kModernAngles = bit(MessageFormat::GpsCNav2) |
                                        bit(MessageFormat::BeidouCNav1) |
                                        bit(MessageFormat::BeidouCNav2);

// clang-format off
constexpr std::array kCorrections = {
    Correction{bit(MessageFormat::GpsLNav), "aodo", CorrectionKind::Scale, 900.0, "s",
               ValueKind::Unsigned,
               "IS-GPS-200 scales the age of data offset by 900 s; the listing prints the count"},
    Correction{kLNav, "ERD", CorrectionKind::IcdErd, 0.3, "m", ValueKind::Real,
               "the NMCT ERDs are 6-bit two's complement x 0.3 m; the listing prints unsigned "
               "codes and splits some as 5 + 7 bits"},
    Correction{kBeidouD, "toc", CorrectionKind::Unsigned, 8.0, "s", ValueKind::Unsigned,
               "BeiDou toc is unsigned (2^3 s); the listing reads it as signed, so a toc of "
               "524288 s or more prints negative"},
    Correction{kBeidouD, "toa", CorrectionKind::Scale, 4096.0, "s", ValueKind::Unsigned,
               "the almanac reference time is 2^12 s per count; the listing prints the count"},
    Correction{bit(MessageFormat::BeidouD2), "toe", CorrectionKind::Scale, 8.0, "s",
               ValueKind::Unsigned,
               "D2 toe is 2^3 s per count; the listing prints the count"},
    Correction{bit(MessageFormat::BeidouCNav2), "TGDB2ap", CorrectionKind::Scale, 0x1p-34, "s",
               ValueKind::Real, "message type 30 group delays are 2^-34 s; the listing prints "
               "the count"},
    Correction{bit(MessageFormat::BeidouCNav2), "ISCB2ad", CorrectionKind::Scale, 0x1p-34, "s",
               ValueKind::Real, "message type 30 group delays are 2^-34 s; the listing prints "
               "the count"},
    Correction{bit(MessageFormat::BeidouCNav2), "TGDB1Cp", CorrectionKind::Scale, 0x1p-34, "s",
               ValueKind::Real, "message type 30 group delays are 2^-34 s; the listing prints "
               "the count"},
    Correction{bit(MessageFormat::BeidouCNav1) | bit(MessageFormat::BeidouCNav2), "SISAIoc.top", CorrectionKind::Scale, 300.0, "s",
               ValueKind::Unsigned,
               "the SISAIoc reference time is 300 s per count; the listing prints the count"},
    Correction{kModernAngles, "", CorrectionKind::Semicircles, 0.0, "", ValueKind::Real,
               "angles are in semicircles in the documents; the listing multiplies them by pi "
               "and keeps the units text \"pi\""},
    Correction{bit(MessageFormat::QzssLNav), "", CorrectionKind::QzssLayout, 0.0, "",
               ValueKind::Unsigned,
               "QZSS names the content of subframes 4 and 5 by the SV ID in word 3, not by the "
               "page; the listing picks its layout by the page"},
};
// clang-format on

bool endsWithField(std::string_view path, std::string_view field) {
    if (path == field) {
        return true;
    }
    return path.size() > field.size() && path.ends_with(field) &&
           path[path.size() - field.size() - 1] == '.';
}

// A scale of 2^n x pi: the value divided by pi is a power of two.
bool isPiScale(double scale) {
    int exponent = 0;
    return std::frexp(scale / kInterfacePi, &exponent) == 0.5;
}

}  // namespace

std::span<const Correction> corrections() noexcept {
    return kCorrections;
}

const Correction* findCorrection(MessageFormat format, std::string_view path, std::string_view name,
                                 std::string_view listingUnits, double listingScale) noexcept {
    for (const Correction& c : kCorrections) {
        if ((c.formats & bit(format)) == 0) {
            continue;
        }
        switch (c.kind) {
            case CorrectionKind::Semicircles:
                if (listingUnits.starts_with("pi") && isPiScale(listingScale)) {
                    return &c;
                }
                break;
            case CorrectionKind::IcdErd:
                if (name.size() > 3 && name.starts_with(c.field)) {
                    return &c;
                }
                break;
            case CorrectionKind::QzssLayout:
                break;
            default:
                if (endsWithField(path, c.field)) {
                    return &c;
                }
                break;
        }
    }
    return nullptr;
}

bool correctsQzssLayout() noexcept {
    for (const Correction& c : kCorrections) {
        if (c.kind == CorrectionKind::QzssLayout) {
            return true;
        }
    }
    return false;
}

std::int32_t qzssLayoutOfSvId(std::int32_t svId) noexcept {
    // SV IDs 1-10: almanac of QZS 1-10; 51: almanac health; 56: ionosphere and UTC.
    // The layout ids are the QZSS table's (src/legacy/QzssL1caInterface.cpp).
    if (svId >= 1 && svId <= 10) {
        return 11;
    }
    if (svId == 51) {
        return 12;
    }
    if (svId == 56) {
        return 8;
    }
    return 0;
}

ErdBits icdErdBits(std::int32_t k) noexcept {
    // Words 3-10 carry 24 data bits each from bit 30 (w - 1) + 1; the ERDs start after
    // data ID (2), SV ID (6) and the availability indicator (2) of word 3.
    const std::int32_t offset = 10 + 6 * (k - 1);  // in the data bits of words 3...
    const std::int32_t word = 3 + offset / 24;
    const std::int32_t inWord = offset % 24;
    const std::int32_t first = 30 * (word - 1) + 1 + inWord;
    if (inWord + 6 <= 24) {
        return {{{first, 6}, {0, 0}}, 1};
    }
    const std::int32_t head = 24 - inWord;
    return {{{first, head}, {30 * word + 1, 6 - head}}, 2};
}

}  // namespace ZeltNavMsg::Records
