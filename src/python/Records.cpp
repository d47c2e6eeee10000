// decode_fields(): every field of a message as Python objects. A Message keeps the C++
// record and what is known of its origin (satellite, input line, a log's signal and
// time); its field and check objects are made on first use, so a caller that wants only
// to_dict(), the verdict or a field by name pays for that alone.

#include "python/Records.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/RecordOutput.h"

namespace ZeltNavMsg::Python {

namespace {

std::string_view kindName(ValueKind kind) {
    switch (kind) {
        case ValueKind::Unsigned:
            return "unsigned";
        case ValueKind::Signed:
            return "signed";
        case ValueKind::Real:
            return "real";
        case ValueKind::Flag:
            return "flag";
        case ValueKind::Character:
            return "character";
    }
    return "unsigned";
}

std::string_view roleName(FieldRole role) {
    switch (role) {
        case FieldRole::Data:
            return "data";
        case FieldRole::Reserved:
            return "reserved";
        case FieldRole::Check:
            return "check";
        case FieldRole::Word:
            return "word";
    }
    return "data";
}

std::string_view statusName(CheckStatus status) {
    switch (status) {
        case CheckStatus::Pass:
            return "pass";
        case CheckStatus::Fail:
            return "fail";
        case CheckStatus::Corrected:
            return "corrected";
        case CheckStatus::Incomplete:
            return "incomplete";
    }
    return "fail";
}

py::tuple segments(std::span<const BitSegment> bits) {
    py::tuple tuple(bits.size());
    for (std::size_t i = 0; i < bits.size(); ++i) {
        tuple[i] = py::make_tuple(bits[i].first, bits[i].count);
    }
    return tuple;
}

py::object steal(PyObject* object) {
    if (object == nullptr) {
        throw py::error_already_set();
    }
    return py::reinterpret_steal<py::object>(object);
}

// A character as its one-character str (the byte as a Latin-1 code point); a real
// value as float, a flag as bool; an integer kind as int (exact: the value is a whole
// number held exactly by the double).
py::object fieldValue(const DecodedField& field) {
    const double value = field.value();
    switch (field.kind()) {
        case ValueKind::Character:
            return steal(PyUnicode_FromOrdinal(static_cast<int>(field.raw() & 0xFF)));
        case ValueKind::Flag:
            return py::bool_(value != 0.0);
        case ValueKind::Unsigned:
        case ValueKind::Signed:
            if (std::isfinite(value) && std::trunc(value) == value) {
                return steal(PyLong_FromDouble(value));
            }
            break;
        case ValueKind::Real:
            break;
    }
    return py::float_(value);
}

// The raw bits as the JSON and CSV write them: upper-case hex, a digit per four bits.
py::str rawHex(const DecodedField& field) {
    char text[20];
    const int n = std::snprintf(text, sizeof text, "%0*llX", (field.bitCount() + 3) / 4,
                                static_cast<unsigned long long>(field.raw()));
    return {text, static_cast<std::size_t>(n)};
}

py::object correctedBit(const CheckResult& check) {
    return check.correctedBit < 0 ? py::object(py::none()) : py::int_(check.correctedBit);
}

MessageObject& messageOf(py::handle object) {
    if (!py::isinstance<MessageObject>(object)) {
        throw py::type_error(
            "to_dataframe takes Message objects (from decode_fields or read_log), not " +
            std::string(py::str(py::type::handle_of(object).attr("__name__"))));
    }
    return object.cast<MessageObject&>();
}

const py::object& fieldTuple(MessageObject& o) {
    if (!o.fields) {
        py::list list;
        for (const DecodedField& field : o.message.fields()) {
            if (o.shown(field)) {
                list.append(py::cast(field));
            }
        }
        o.fields = py::tuple(list);
    }
    return o.fields;
}

const py::object& checkTuple(MessageObject& o) {
    if (!o.checks) {
        const std::span<const CheckResult> checks = o.message.checks();
        py::tuple tuple(checks.size());
        for (std::size_t i = 0; i < checks.size(); ++i) {
            tuple[i] = py::cast(checks[i]);
        }
        o.checks = std::move(tuple);
    }
    return o.checks;
}

// The rows of to_dataframe(): one list per CSV column, one item per field shown. The
// columns of a receiver log (signal, week, tow) follow when a message comes from one,
// as navmsg log adds them to its CSV.
py::tuple fieldColumns(py::handle messages, const Enumerations& enums) {
    py::list line, sat, format, subframe, page, path, name, value, units, raw, ok;
    py::list signal, week, tow;
    bool log = false;
    for (py::handle item : py::iter(messages)) {
        const MessageObject& o = messageOf(item);
        log = log || !o.signal.empty();
        // The message's own cells, once for all its rows.
        const py::object none = py::none();
        const py::object cells[] = {
            o.line > 0 ? py::object(py::int_(o.line)) : none,
            latin1Text(o.sat),
            enums.member(o.message.format()).attr("name"),
            py::int_(o.message.subframe()),
            py::int_(o.message.page()),
            py::bool_(o.message.ok()),
            o.signal.empty() ? none : py::str(o.signal.data(), o.signal.size()),
            o.hasTime ? py::object(py::int_(o.week)) : none,
            o.hasTime ? py::object(py::float_(o.tow)) : none};
        for (const DecodedField& field : o.message.fields()) {
            if (!o.shown(field)) {
                continue;
            }
            line.append(cells[0]);
            sat.append(cells[1]);
            format.append(cells[2]);
            subframe.append(cells[3]);
            page.append(cells[4]);
            path.append(py::str(field.path().data(), field.path().size()));
            name.append(py::str(field.name().data(), field.name().size()));
            value.append(field.kind() == ValueKind::Character ? fieldValue(field)
                                                              : py::float_(field.value()));
            units.append(py::str(field.units().data(), field.units().size()));
            raw.append(rawHex(field));
            ok.append(cells[5]);
            signal.append(cells[6]);
            week.append(cells[7]);
            tow.append(cells[8]);
        }
    }
    if (log) {
        return py::make_tuple(line, sat, format, subframe, page, path, name, value, units, raw, ok,
                              signal, week, tow);
    }
    return py::make_tuple(line, sat, format, subframe, page, path, name, value, units, raw, ok);
}

}  // namespace

void bindRecords(py::module_& m, const Enumerations& enums) {
    py::class_<DecodedField>(m, "Field",
                             "One field of a decoded message: its bits, raw number and value.")
        .def_property_readonly("path", &DecodedField::path)
        .def_property_readonly("name", &DecodedField::name)
        .def_property_readonly("kind", [](const DecodedField& f) { return kindName(f.kind()); })
        .def_property_readonly("role", [](const DecodedField& f) { return roleName(f.role()); })
        .def_property_readonly("value", &fieldValue)
        .def_property_readonly("units", &DecodedField::units)
        .def_property_readonly("raw", &DecodedField::raw)
        .def_property_readonly("bits", [](const DecodedField& f) { return segments(f.bits()); })
        .def_property_readonly("corrected", &DecodedField::corrected)
        .def("__repr__", [](const DecodedField& f) {
            return py::str("Field({!r}, {!r}, {!r})").format(f.path(), fieldValue(f), f.units());
        });

    py::class_<CheckResult>(m, "Check", "One parity word, BCH codeword or CRC of a message.")
        .def_property_readonly("name", [](const CheckResult& c) { return c.name; })
        .def_property_readonly("ok", &CheckResult::ok)
        .def_property_readonly("status", [](const CheckResult& c) { return statusName(c.status); })
        .def_property_readonly("bits", [](const CheckResult& c) { return segments(c.bits); })
        .def_readonly("check_bits", &CheckResult::checkBits)
        .def_readonly("computed", &CheckResult::computed)
        .def_readonly("received", &CheckResult::received)
        .def_property_readonly("corrected_bit", &correctedBit)
        .def("__repr__", [](const CheckResult& c) {
            return py::str("Check({!r}, {!r})").format(c.name, statusName(c.status));
        });

    // The record as navmsg writes it, read back by Python's own JSON parser: the same
    // keys, order and values by construction, with no second copy of the rules.
    const py::object loads = py::module_::import("json").attr("loads");

    py::class_<MessageObject>(m, "Message", "Every field of one decoded message.")
        .def_property_readonly(
            "format", [enums](const MessageObject& o) { return enums.member(o.message.format()); })
        .def_property_readonly("subframe",
                               [](const MessageObject& o) { return o.message.subframe(); })
        .def_property_readonly("page", [](const MessageObject& o) { return o.message.page(); })
        .def_property_readonly("bit_count",
                               [](const MessageObject& o) { return o.message.bitCount(); })
        .def_property_readonly("layout", [](const MessageObject& o) { return o.message.layout(); })
        .def_property_readonly("sat", [](const MessageObject& o) { return latin1Text(o.sat); })
        .def_property_readonly("line",
                               [](const MessageObject& o) {
                                   return o.line > 0 ? py::object(py::int_(o.line))
                                                     : py::object(py::none());
                               })
        .def_property_readonly("ok", [](const MessageObject& o) { return o.message.ok(); })
        .def_property_readonly("fields", &fieldTuple)
        .def_property_readonly("checks", &checkTuple)
        .def("__getitem__",
             [](const MessageObject& o, std::string_view key) {
                 const DecodedField* field = o.message.find(key);
                 if (field == nullptr) {
                     throw py::key_error(std::string(key));
                 }
                 return *field;
             })
        .def("to_dict",
             [loads](const MessageObject& o) {
                 std::string json;
                 {
                     const py::gil_scoped_release unlocked;
                     AppendJsonRecord(json, o.message, o.context(), o.options);
                 }
                 return loads(steal(PyUnicode_DecodeASCII(
                     json.data(), static_cast<Py_ssize_t>(json.size()), nullptr)));
             })
        .def("__repr__", [enums](const MessageObject& o) {
            return py::str("<Message {} subframe {} page {}: {!r}, {}>")
                .format(enums.member(o.message.format()).attr("name"), o.message.subframe(),
                        o.message.page(), o.message.layout(), o.message.ok() ? "ok" : "not ok");
        });

    m.def(
        "decode_fields",
        [](py::handle format, py::handle subframe, py::handle page, py::handle hex,
           py::handle allFields, py::handle sat, py::handle line) {
            const MessageFormat f = toFormat(format);
            const std::int32_t s = toInt32(subframe, "subframe");
            const std::int32_t p = toInt32(page, "page");
            const std::string_view digits = toHex(hex);
            auto object = std::make_unique<MessageObject>();
            const int all = PyObject_IsTrue(allFields.ptr());
            if (all < 0) {
                throw py::error_already_set();
            }
            object->options.allFields = all != 0;
            object->sat = toLatin1(sat, "sat");
            object->line = toLine(line);
            {
                const py::gil_scoped_release unlocked;
                NavMessageDecoder::DecodeFields(f, s, p, digits, object->message);
            }
            return object;
        },
        py::arg("format"), py::arg("subframe"), py::arg("page"), py::arg("hex"), py::kw_only(),
        py::arg("all_fields") = false, py::arg("sat") = "", py::arg("line") = py::none(),
        "decode_fields(format, subframe, page, hex, *, all_fields=False, sat='', line=None)"
        " -> Message\n\n"
        "Every field of one message as data, with the same input checks and errors as\n"
        "decode(). Reserved, parity, CRC and whole-word fields are left out unless\n"
        "all_fields is true; sat and line are what to_dict() and to_dataframe() say of\n"
        "the message's origin, as navmsg batch does.");

    m.def(
        "_field_columns", [enums](py::handle messages) { return fieldColumns(messages, enums); },
        py::arg("messages"),
        "_field_columns(messages) -> tuple\n\nThe columns to_dataframe() is made of.");
}

}  // namespace ZeltNavMsg::Python
