#ifndef ZELTNAVMSG_API_FORMATNAMES_H
#define ZELTNAVMSG_API_FORMATNAMES_H

#include <cstddef>
#include <string_view>

#include "zeltnavmsg/NavMessageDecoder.h"

// The names by which hosts and the command line address satellite systems,
// signals and message formats. Header-only constant data: the library's look-ups
// and the CLI's listing read the same rows.

namespace ZeltNavMsg::Names {

// First letter of a satellite name, per system.
inline constexpr std::string_view kSystemLetters = "GRECJIS";

struct SystemName {
    char letter;
    std::string_view name;
};

// The systems by letter, in the order of kSystemLetters, as hosts show them.
inline constexpr SystemName kSystemNames[] = {
    {'G', "GPS"},  {'R', "GLONASS"}, {'E', "Galileo"}, {'C', "BeiDou"},
    {'J', "QZSS"}, {'I', "IRNSS"},   {'S', "SBAS"},
};

static_assert([] {
    std::size_t i = 0;
    for (const SystemName& row : kSystemNames) {
        if (i >= kSystemLetters.size() || kSystemLetters[i++] != row.letter) {
            return false;
        }
    }
    return i == kSystemLetters.size();
}());

struct SignalName {
    char letter;
    std::string_view name;
    SignalType signal;
};

// BeiDou B1I/B2I/B3I are named without their trailing "I".
inline constexpr SignalName kSignalNames[] = {
    {'G', "L1CA", SignalType::GpsL1CA},   {'G', "L1P", SignalType::GpsL1P},
    {'G', "L1CAP", SignalType::GpsL1CAP}, {'G', "L1C", SignalType::GpsL1C},
    {'G', "L2P", SignalType::GpsL2P},     {'G', "L2C", SignalType::GpsL2C},
    {'G', "L5", SignalType::GpsL5},       {'R', "L1", SignalType::GlonassL1},
    {'R', "L2", SignalType::GlonassL2},   {'E', "E1", SignalType::GalileoE1},
    {'E', "E5a", SignalType::GalileoE5a}, {'E', "E5b", SignalType::GalileoE5b},
    {'E', "E6", SignalType::GalileoE6},   {'C', "B1", SignalType::BeidouB1I},
    {'C', "B2", SignalType::BeidouB2I},   {'C', "B3", SignalType::BeidouB3I},
    {'C', "B1C", SignalType::BeidouB1C},  {'C', "B2a", SignalType::BeidouB2a},
    {'J', "L1CA", SignalType::QzssL1CA},  {'J', "L2C", SignalType::QzssL2C},
    {'J', "L5", SignalType::QzssL5},      {'I', "L5", SignalType::IrnssL5},
    {'S', "L1", SignalType::SbasL1},      {'S', "L5", SignalType::SbasL5},
};

struct FormatName {
    char letter;
    std::string_view name;
    MessageFormat format;
};

// The same name means different formats for different systems ("LNAV", "CNAV2");
// "CNAV" is one format for GPS and QZSS.
inline constexpr FormatName kFormatNames[] = {
    {'G', "LNAV", MessageFormat::GpsLNav},      {'G', "CNAV", MessageFormat::CNav},
    {'G', "CNAV2", MessageFormat::GpsCNav2},    {'R', "FDMA", MessageFormat::GlonassFdma},
    {'E', "INAV", MessageFormat::GalileoINav},  {'E', "FNAV", MessageFormat::GalileoFNav},
    {'C', "D1", MessageFormat::BeidouD1},       {'C', "D2", MessageFormat::BeidouD2},
    {'C', "CNAV1", MessageFormat::BeidouCNav1}, {'C', "CNAV2", MessageFormat::BeidouCNav2},
    {'J', "LNAV", MessageFormat::QzssLNav},     {'J', "CNAV", MessageFormat::CNav},
    {'I', "IRNSS", MessageFormat::Irnss},       {'S', "SBAS", MessageFormat::Sbas},
};

struct FormatEnumerator {
    MessageFormat format;
    std::string_view name;
};

// The enumerator names of MessageFormat, in the order of their values. The command
// line accepts them besides the systems' names, for a layout that one system
// broadcasts under another's format and that has no name of its own there.
inline constexpr FormatEnumerator kFormatEnumerators[] = {
    {MessageFormat::GpsLNav, "GpsLNav"},
    {MessageFormat::GpsCNav2, "GpsCNav2"},
    {MessageFormat::CNav, "CNav"},
    {MessageFormat::GlonassFdma, "GlonassFdma"},
    {MessageFormat::GalileoINav, "GalileoINav"},
    {MessageFormat::GalileoFNav, "GalileoFNav"},
    {MessageFormat::BeidouD1, "BeidouD1"},
    {MessageFormat::BeidouD2, "BeidouD2"},
    {MessageFormat::BeidouCNav1, "BeidouCNav1"},
    {MessageFormat::BeidouCNav2, "BeidouCNav2"},
    {MessageFormat::QzssLNav, "QzssLNav"},
    {MessageFormat::Irnss, "Irnss"},
    {MessageFormat::Sbas, "Sbas"},
};

struct DefaultFormat {
    char letter;
    std::string_view name;
};

// Only these systems have a default; GLONASS, Galileo and SBAS deliberately none.
inline constexpr DefaultFormat kDefaultFormats[] = {
    {'G', "LNAV"},
    {'C', "D1"},
    {'J', "LNAV"},
    {'I', "IRNSS"},
};

}  // namespace ZeltNavMsg::Names

#endif
