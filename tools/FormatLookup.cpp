#include "FormatLookup.h"

#include "ExitStatus.h"
#include "api/FormatNames.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"

namespace Navmsg {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
namespace Names = ZeltNavMsg::Names;

namespace {

constexpr bool enumeratorsInOrder() {
    int value = 0;
    for (const Names::FormatEnumerator& row : Names::kFormatEnumerators) {
        if (static_cast<int>(row.format) != value++) {
            return false;
        }
    }
    return true;
}
static_assert(enumeratorsInOrder(), "one enumerator name per MessageFormat value, in order");

// Which table a name is found in first does not matter when no name is in both.
constexpr bool enumeratorNamesAreNotFormatNames() {
    for (const Names::FormatEnumerator& e : Names::kFormatEnumerators) {
        for (const Names::FormatName& f : Names::kFormatNames) {
            if (e.name == f.name) {
                return false;
            }
        }
    }
    return true;
}
static_assert(enumeratorNamesAreNotFormatNames());

bool isKnownSystem(std::string_view sat) {
    return !sat.empty() && Names::kSystemLetters.find(sat.front()) != std::string_view::npos;
}

}  // namespace

std::string_view systemName(char letter) {
    for (const auto& row : Names::kSystemNames) {
        if (row.letter == letter) {
            return row.name;
        }
    }
    return {};
}

MessageFormat resolveFormat(std::string_view sat, std::string_view name) {
    if (isKnownSystem(sat)) {
        for (const Names::FormatEnumerator& row : Names::kFormatEnumerators) {
            if (row.name == name) {
                return row.format;
            }
        }
    }
    return NavMessageDecoder::GetMessageFormatFromString(sat, name);
}

std::string defaultFormatName(std::string_view sat) {
    if (isKnownSystem(sat)) {
        const char letter = sat.front();
        bool hasDefault = false;
        for (const Names::DefaultFormat& row : Names::kDefaultFormats) {
            hasDefault = hasDefault || row.letter == letter;
        }
        if (!hasDefault) {
            std::string reason(sat);
            reason.append(": ").append(systemName(letter));
            reason.append(" has no default format; choose one with --format:");
            for (const Names::FormatName& row : Names::kFormatNames) {
                if (row.letter == letter) {
                    reason.append(" ").append(row.name);
                }
            }
            throw UsageError{reason};
        }
    }
    try {
        return NavMessageDecoder::GetDefaultMessageFormatString(sat);
    } catch (const std::exception& e) {
        throw UsageError{e.what()};
    }
}

int messageBits(MessageFormat format) {
    // A legacy subframe is ten 30-bit words.
    constexpr int kSubframeBits = 10 * 30;
    switch (format) {
        case MessageFormat::GpsLNav:
        case MessageFormat::QzssLNav:
        case MessageFormat::BeidouD1:
        case MessageFormat::BeidouD2:
            return kSubframeBits;
        case MessageFormat::GpsCNav2:
            return ZeltNavMsg::GpsCNav2::FrameDef::kBits;
        case MessageFormat::BeidouCNav1:
            return ZeltNavMsg::BeidouCNav1::FrameDef::kBits;
        case MessageFormat::BeidouCNav2:
            return ZeltNavMsg::BeidouCNav2::FrameDef::kBits;
        case MessageFormat::Irnss:
            return ZeltNavMsg::Irnss::SubframeDef::kBits;
        default:
            return 0;
    }
}

}  // namespace Navmsg
