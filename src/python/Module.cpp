// The compiled part of the zeltnavmsg package: the listing, the name look-ups, the
// table of systems, signals and formats, the enumerations and the library's error. Each
// further feature binds itself from a source of its own (Records.cpp: decode_fields;
// LogReading.cpp: read_log; Encoding.cpp: MessageEncoder).

#include <pybind11/pybind11.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "api/FormatNames.h"
#include "python/Arguments.h"
#include "python/Encoding.h"
#include "python/LogReading.h"
#include "python/Records.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

namespace py = pybind11;
using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Python::Enumerations;

// The public package re-exports these names, so they live in its namespace.
constexpr const char* kPackage = "zeltnavmsg";

py::str decode(py::handle format, py::handle subframe, py::handle page, py::handle hex) {
    using namespace ZeltNavMsg::Python;
    const MessageFormat f = toFormat(format);
    const std::int32_t s = toInt32(subframe, "subframe");
    const std::int32_t p = toInt32(page, "page");
    const std::string_view digits = toHex(hex);
    std::string text;
    {
        const py::gil_scoped_release unlocked;
        text = NavMessageDecoder::Decode(f, s, p, digits);
    }
    return latin1Text(text);
}

// Asks the library itself, as `navmsg formats` does: 76 zero digits fit every format.
bool formatDecodes(MessageFormat format) {
    try {
        (void)NavMessageDecoder::Decode(format, 1, 0, std::string(76, '0'));
        return true;
    } catch (const ZeltNavMsg::DecodingError&) {
        return false;
    }
}

// Per system: (letter, name, ((signal name, SignalType), ...),
// ((format name, MessageFormat, is default, decodes), ...)).
py::list formatTable(const Enumerations& enums) {
    namespace Names = ZeltNavMsg::Names;
    py::list systems;
    for (const auto& [letter, system] : Names::kSystemNames) {
        py::list signals;
        for (const Names::SignalName& row : Names::kSignalNames) {
            if (row.letter == letter) {
                signals.append(py::make_tuple(row.name, enums.member(row.signal)));
            }
        }
        py::list formats;
        for (const Names::FormatName& row : Names::kFormatNames) {
            if (row.letter != letter) {
                continue;
            }
            bool isDefault = false;
            for (const Names::DefaultFormat& d : Names::kDefaultFormats) {
                isDefault = isDefault || (d.letter == letter && d.name == row.name);
            }
            formats.append(py::make_tuple(row.name, enums.member(row.format), isDefault,
                                          formatDecodes(row.format)));
        }
        systems.append(
            py::make_tuple(std::string(1, letter), system, py::tuple(signals), py::tuple(formats)));
    }
    return systems;
}

}  // namespace

PYBIND11_MODULE(_zeltnavmsg, m) {
    py::options options;
    options.disable_function_signatures();
    m.doc() = "Readable listings of GNSS navigation messages (compiled part of zeltnavmsg).";
    m.attr("__version__") = ZELTNAVMSG_VERSION;

    py::exception<ZeltNavMsg::DecodingError>& decodingError =
        py::register_exception<ZeltNavMsg::DecodingError>(m, "DecodingError", PyExc_ValueError);
    decodingError.attr("__module__") = kPackage;
    decodingError.doc() =
        "The library's refusal: an unknown satellite system, signal or format name, a "
        "character that is not a hex digit, a format that is not decoded.";

    const Enumerations enums = ZeltNavMsg::Python::makeEnumerations(kPackage);
    m.attr("MessageFormat") = enums.messageFormat;
    m.attr("SignalType") = enums.signalType;

    m.def("decode", &decode, py::arg("format"), py::arg("subframe"), py::arg("page"),
          py::arg("hex"),
          "decode(format, subframe, page, hex) -> str\n\n"
          "The listing of one message given as hex text (first digit = first four bits\n"
          "sent); lines end with \"\\r\\n\". `format` is a MessageFormat or its name.");
    m.def(
        "message_format",
        [enums](std::string_view sat, std::string_view name) {
            return enums.member(NavMessageDecoder::GetMessageFormatFromString(sat, name));
        },
        py::arg("sat"), py::arg("name"),
        "message_format(sat, name) -> MessageFormat\n\n"
        "The format named `name` for satellite `sat`: ('G05', 'CNAV2') -> GpsCNav2.");
    m.def(
        "signal_type",
        [enums](std::string_view sat, std::string_view name) {
            return enums.member(NavMessageDecoder::GetSignalTypeFromString(sat, name));
        },
        py::arg("sat"), py::arg("name"),
        "signal_type(sat, name) -> SignalType\n\n"
        "The signal named `name` for satellite `sat`: ('C11', 'B2a') -> BeidouB2a.");
    m.def("default_format", &NavMessageDecoder::GetDefaultMessageFormatString, py::arg("sat"),
          "default_format(sat) -> str\n\n"
          "The name of the default format of the satellite's system: 'LNAV', 'D1' or 'IRNSS'.");
    m.def(
        "_formats", [enums] { return formatTable(enums); },
        "_formats() -> list\n\nThe rows zeltnavmsg.formats() is made of.");

    ZeltNavMsg::Python::bindRecords(m, enums);
    ZeltNavMsg::Python::bindLogReading(m, enums);
    ZeltNavMsg::Python::bindEncoding(m, enums);
}
