#ifndef ZELTNAVMSG_PYTHON_ARGUMENTS_H
#define ZELTNAVMSG_PYTHON_ARGUMENTS_H

// What the Python functions share: the enumerations as Python classes, and the
// conversion of their arguments and results.

#include <pybind11/pybind11.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "zeltnavmsg/NavMessageDecoder.h"

namespace ZeltNavMsg::Python {

namespace py = pybind11;

template <typename Enum>
struct Enumerator {
    std::string_view name;
    Enum value;
};

// The enumerators by their C++ names. The Python enumerations are made from these rows,
// and a format given as a string is one of these names.
inline constexpr Enumerator<MessageFormat> kMessageFormats[] = {
    {"GpsLNav", MessageFormat::GpsLNav},
    {"GpsCNav2", MessageFormat::GpsCNav2},
    {"CNav", MessageFormat::CNav},
    {"GlonassFdma", MessageFormat::GlonassFdma},
    {"GalileoINav", MessageFormat::GalileoINav},
    {"GalileoFNav", MessageFormat::GalileoFNav},
    {"BeidouD1", MessageFormat::BeidouD1},
    {"BeidouD2", MessageFormat::BeidouD2},
    {"BeidouCNav1", MessageFormat::BeidouCNav1},
    {"BeidouCNav2", MessageFormat::BeidouCNav2},
    {"QzssLNav", MessageFormat::QzssLNav},
    {"Irnss", MessageFormat::Irnss},
    {"Sbas", MessageFormat::Sbas},
};

inline constexpr Enumerator<SignalType> kSignalTypes[] = {
    {"GpsL1CA", SignalType::GpsL1CA},       {"GpsL1P", SignalType::GpsL1P},
    {"GpsL1CAP", SignalType::GpsL1CAP},     {"GpsL1C", SignalType::GpsL1C},
    {"GpsL2P", SignalType::GpsL2P},         {"GpsL2C", SignalType::GpsL2C},
    {"GpsL5", SignalType::GpsL5},           {"GlonassL1", SignalType::GlonassL1},
    {"GlonassL2", SignalType::GlonassL2},   {"GalileoE1", SignalType::GalileoE1},
    {"GalileoE5a", SignalType::GalileoE5a}, {"GalileoE5b", SignalType::GalileoE5b},
    {"GalileoE6", SignalType::GalileoE6},   {"BeidouB1I", SignalType::BeidouB1I},
    {"BeidouB2I", SignalType::BeidouB2I},   {"BeidouB3I", SignalType::BeidouB3I},
    {"BeidouB1C", SignalType::BeidouB1C},   {"BeidouB2a", SignalType::BeidouB2a},
    {"QzssL1CA", SignalType::QzssL1CA},     {"QzssL2C", SignalType::QzssL2C},
    {"QzssL5", SignalType::QzssL5},         {"IrnssL5", SignalType::IrnssL5},
    {"SbasL1", SignalType::SbasL1},         {"SbasL5", SignalType::SbasL5},
};

// Row i holds the value i, so that a value indexes the rows and the Python members.
template <typename Enum, std::size_t N>
constexpr bool valuesRunFromZero(const Enumerator<Enum> (&rows)[N]) {
    for (std::size_t i = 0; i < N; ++i) {
        if (static_cast<std::size_t>(rows[i].value) != i) {
            return false;
        }
    }
    return true;
}
static_assert(valuesRunFromZero(kMessageFormats));
static_assert(valuesRunFromZero(kSignalTypes));

// The enum.IntEnum classes of the module and their members by value.
struct Enumerations {
    py::object messageFormat;
    py::tuple formats;
    py::object signalType;
    py::tuple signals;

    [[nodiscard]] py::object member(MessageFormat format) const {
        return formats[static_cast<std::size_t>(format)];
    }
    [[nodiscard]] py::object member(SignalType signal) const {
        return signals[static_cast<std::size_t>(signal)];
    }
};
// Builds them with the module name `moduleName`, so that members pickle by that name.
Enumerations makeEnumerations(const char* moduleName);

// A format argument: a MessageFormat member, one of its values, or an enumerator name.
// ValueError for other names and values, TypeError for other types.
MessageFormat toFormat(py::handle arg);

// An integer argument named `what` (anything with __index__); OverflowError outside
// the 32 bits of the C++ interface.
std::int32_t toInt32(py::handle arg, const char* what);

// An input line number: None (0, none) or 1 or more; ValueError below 1, OverflowError
// beyond 64 bits.
std::int64_t toLine(py::handle arg);

// The hex text of a str (as UTF-8) or bytes. Both are immutable, so the view stays
// valid, with the interpreter lock released, for as long as the caller holds `arg`.
std::string_view toHex(py::handle arg);

// A str argument named `what` in the library's 8-bit text, one byte per character
// (Latin-1): TypeError for another type, UnicodeEncodeError beyond U+00FF.
std::string toLatin1(py::handle arg, const char* what);

// The library's 8-bit text as str, one character per byte: a listing is ASCII except
// where a text message's 8-bit character codes are printed as they are.
py::str latin1Text(std::string_view text);

}  // namespace ZeltNavMsg::Python

#endif
