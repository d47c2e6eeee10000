#include "records/Units.h"

#include <array>
#include <stdexcept>
#include <string>

namespace ZeltNavMsg::Records {

namespace {

struct UnitsRow {
    std::string_view listing;
    std::string_view units;
    double factor;
};

// clang-format off
constexpr std::array kVocabulary = {
    UnitsRow{"", "", 1.0},
    UnitsRow{"s", "s", 1.0}, UnitsRow{"second", "s", 1.0}, UnitsRow{"seconds", "s", 1.0},
    UnitsRow{"nanosecond", "s", 1e-9}, UnitsRow{"nanoseconds", "s", 1e-9},
    UnitsRow{"nanosecond/second", "s/s", 1e-9},
    UnitsRow{"s/s", "s/s", 1.0}, UnitsRow{"second/second", "s/s", 1.0},
    UnitsRow{"seconds/second", "s/s", 1.0},
    UnitsRow{"s/s^2", "s/s^2", 1.0}, UnitsRow{"s/s2", "s/s^2", 1.0},
    UnitsRow{"seconds/second^2", "s/s^2", 1.0},
    UnitsRow{"s/day", "s/day", 1.0},
    UnitsRow{"m", "m", 1.0}, UnitsRow{"meters", "m", 1.0}, UnitsRow{"m/s", "m/s", 1.0},
    // The square root of the semi-major axis, whatever the listing calls it.
    UnitsRow{"m^1/2", "m^1/2", 1.0}, UnitsRow{"m^-2", "m^1/2", 1.0},
    UnitsRow{"meters^-2", "m^1/2", 1.0}, UnitsRow{"meters^(-2)", "m^1/2", 1.0},
    // Angles in semicircles, as the documents give them; "pi" is the BeiDou and IRNSS
    // tables' name for a semicircle.
    UnitsRow{"pi", "semicircles", 1.0}, UnitsRow{"semi-circles", "semicircles", 1.0},
    UnitsRow{"pi/s", "semicircles/s", 1.0}, UnitsRow{"pi/second", "semicircles/s", 1.0},
    UnitsRow{"semi-circles/second", "semicircles/s", 1.0},
    UnitsRow{"pi/s^2", "semicircles/s^2", 1.0},
    UnitsRow{"rad", "rad", 1.0}, UnitsRow{"radians", "rad", 1.0},
    UnitsRow{"s/pi", "s/semicircle", 1.0}, UnitsRow{"seconds/pi", "s/semicircle", 1.0},
    UnitsRow{"seconds/semi-circle", "s/semicircle", 1.0},
    UnitsRow{"s/pi^2", "s/semicircle^2", 1.0}, UnitsRow{"seconds/pi^2", "s/semicircle^2", 1.0},
    UnitsRow{"seconds/(semi-circles^2)", "s/semicircle^2", 1.0},
    UnitsRow{"s/pi^3", "s/semicircle^3", 1.0}, UnitsRow{"seconds/pi^3", "s/semicircle^3", 1.0},
    UnitsRow{"seconds/(semi-circles^3)", "s/semicircle^3", 1.0},
    UnitsRow{"TECu", "TECU", 1.0},
    UnitsRow{"week", "week", 1.0}, UnitsRow{"weeks", "week", 1.0}, UnitsRow{"WN", "week", 1.0},
    UnitsRow{"day", "day", 1.0}, UnitsRow{"days", "day", 1.0},
    UnitsRow{"arc-seconds", "arcsec", 1.0}, UnitsRow{"arc-sec", "arcsec", 1.0},
    UnitsRow{"arc-seconds/day", "arcsec/day", 1.0}, UnitsRow{"arc-sec/day", "arcsec/day", 1.0},
};

struct OmittedRow {
    MessageFormat format;
    std::string_view name;
    std::string_view units;
};

// Fields the listing prints without units although the document gives them.
constexpr std::array kOmitted = {
    OmittedRow{MessageFormat::GpsLNav, "wn", "week"},
    OmittedRow{MessageFormat::GpsLNav, "wna", "week"},
    OmittedRow{MessageFormat::QzssLNav, "wn", "week"},
    OmittedRow{MessageFormat::QzssLNav, "wna", "week"},
    OmittedRow{MessageFormat::BeidouD1, "wn", "week"},
    OmittedRow{MessageFormat::BeidouD1, "wna", "week"},
    OmittedRow{MessageFormat::BeidouD2, "wna", "week"},
    OmittedRow{MessageFormat::GpsCNav2, "WN", "week"},
    OmittedRow{MessageFormat::GpsCNav2, "top", "s"},
    OmittedRow{MessageFormat::GpsCNav2, "ISC L1CA", "s"},
    OmittedRow{MessageFormat::GpsCNav2, "ISC L2C", "s"},
    OmittedRow{MessageFormat::GpsCNav2, "ISC L5I5", "s"},
    OmittedRow{MessageFormat::GpsCNav2, "ISC L5Q5", "s"},
    OmittedRow{MessageFormat::BeidouCNav1, "SOH", "s"},
    OmittedRow{MessageFormat::BeidouCNav2, "SOW", "s"},
    OmittedRow{MessageFormat::BeidouCNav2, "toa", "s"},
};
// clang-format on

}  // namespace

RecordUnits recordUnits(std::string_view listingUnits) {
    for (const UnitsRow& row : kVocabulary) {
        if (row.listing == listingUnits) {
            return {row.units, row.factor};
        }
    }
    if (listingUnits.find("MSB") != std::string_view::npos ||
        listingUnits.find("LSB") != std::string_view::npos) {
        return {};
    }
    throw std::logic_error("recordUnits: no record units for the listing's units '" +
                           std::string(listingUnits) + "'");
}

std::string_view omittedUnits(MessageFormat format, std::string_view name) {
    for (const OmittedRow& row : kOmitted) {
        if (row.format == format && row.name == name) {
            return row.units;
        }
    }
    return {};
}

}  // namespace ZeltNavMsg::Records
