// decode_fields(): every field of a message as Python objects. The Message keeps the
// C++ record; its field list is made on first use, so a caller that reads a few fields
// by name, or only the checks, pays for those alone.

#include "python/Records.h"

#include <pybind11/stl.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "zeltnavmsg/DecodedMessage.h"

namespace ZeltNavMsg::Python {

namespace {

struct MessageObject {
    DecodedMessage message;
    py::object fields;  // list of Field, made on first use
};

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

py::list segments(std::span<const BitSegment> bits) {
    py::list list;
    for (const BitSegment& s : bits) {
        list.append(py::make_tuple(s.first, s.count));
    }
    return list;
}

// A real field's value as float; a flag as bool; every other kind as int, which the
// double holds exactly (the integer fields are narrower than 53 bits).
py::object fieldValue(const DecodedField& field) {
    switch (field.kind()) {
        case ValueKind::Real:
            return py::float_(field.value());
        case ValueKind::Flag:
            return py::bool_(field.raw() != 0);
        default:
            return py::int_(static_cast<long long>(field.value()));
    }
}

py::dict fieldDict(const DecodedField& field) {
    py::dict d;
    d["path"] = field.path();
    d["name"] = field.name();
    d["kind"] = kindName(field.kind());
    d["role"] = roleName(field.role());
    d["value"] = fieldValue(field);
    d["units"] = field.units();
    d["raw"] = field.raw();
    d["bits"] = segments(field.bits());
    return d;
}

py::object correctedBit(const CheckResult& check) {
    return check.correctedBit < 0 ? py::object(py::none()) : py::int_(check.correctedBit);
}

py::dict checkDict(const CheckResult& check) {
    py::dict d;
    d["name"] = check.name;
    d["status"] = statusName(check.status);
    d["bits"] = segments(check.bits);
    d["check_bits"] = check.checkBits;
    d["computed"] = check.computed;
    d["received"] = check.received;
    d["corrected_bit"] = correctedBit(check);
    return d;
}

py::object fieldList(MessageObject& object) {
    if (!object.fields) {
        py::list list;
        for (const DecodedField& field : object.message.fields()) {
            list.append(py::cast(field));
        }
        object.fields = std::move(list);
    }
    return object.fields;
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
        .def("to_dict", &fieldDict)
        .def("__repr__", [](const DecodedField& f) {
            return py::str("Field({!r}, {!r}, {!r})").format(f.path(), fieldValue(f), f.units());
        });

    py::class_<CheckResult>(m, "Check", "One parity word, BCH codeword or CRC of a message.")
        .def_property_readonly("name", [](const CheckResult& c) { return c.name; })
        .def_property_readonly("status", [](const CheckResult& c) { return statusName(c.status); })
        .def_property_readonly("ok", &CheckResult::ok)
        .def_property_readonly("bits", [](const CheckResult& c) { return segments(c.bits); })
        .def_readonly("check_bits", &CheckResult::checkBits)
        .def_readonly("computed", &CheckResult::computed)
        .def_readonly("received", &CheckResult::received)
        .def_property_readonly("corrected_bit", &correctedBit)
        .def("to_dict", &checkDict);

    py::class_<MessageObject>(m, "Message", "Every field of one decoded message.")
        .def_property_readonly(
            "format", [enums](const MessageObject& o) { return enums.member(o.message.format()); })
        .def_property_readonly("subframe",
                               [](const MessageObject& o) { return o.message.subframe(); })
        .def_property_readonly("page", [](const MessageObject& o) { return o.message.page(); })
        .def_property_readonly("bit_count",
                               [](const MessageObject& o) { return o.message.bitCount(); })
        .def_property_readonly("layout", [](const MessageObject& o) { return o.message.layout(); })
        .def_property_readonly("ok", [](const MessageObject& o) { return o.message.ok(); })
        .def_property_readonly("fields", &fieldList)
        .def_property_readonly("checks",
                               [](const MessageObject& o) {
                                   py::list list;
                                   for (const CheckResult& c : o.message.checks()) {
                                       list.append(py::cast(c));
                                   }
                                   return list;
                               })
        .def("__len__", [](const MessageObject& o) { return o.message.fields().size(); })
        .def("__getitem__",
             [](const MessageObject& o, std::string_view key) {
                 const DecodedField* field = o.message.find(key);
                 if (field == nullptr) {
                     throw py::key_error(std::string(key));
                 }
                 return *field;
             })
        .def("to_dict", [enums](const MessageObject& o) {
            py::dict d;
            d["format"] = enums.member(o.message.format()).attr("name");
            d["subframe"] = o.message.subframe();
            d["page"] = o.message.page();
            d["layout"] = o.message.layout();
            d["ok"] = o.message.ok();
            py::list fields;
            for (const DecodedField& f : o.message.fields()) {
                fields.append(fieldDict(f));
            }
            d["fields"] = fields;
            py::list checks;
            for (const CheckResult& c : o.message.checks()) {
                checks.append(checkDict(c));
            }
            d["checks"] = checks;
            return d;
        });

    m.def(
        "decode_fields",
        [](py::handle format, py::handle subframe, py::handle page, py::handle hex) {
            const MessageFormat f = toFormat(format);
            const std::int32_t s = toInt32(subframe, "subframe");
            const std::int32_t p = toInt32(page, "page");
            const std::string_view digits = toHex(hex);
            auto object = std::make_unique<MessageObject>();
            {
                const py::gil_scoped_release unlocked;
                NavMessageDecoder::DecodeFields(f, s, p, digits, object->message);
            }
            return object;
        },
        py::arg("format"), py::arg("subframe"), py::arg("page"), py::arg("hex"),
        "decode_fields(format, subframe, page, hex) -> Message\n\n"
        "Every field of one message as data, with the same input checks and errors as\n"
        "decode().");
}

}  // namespace ZeltNavMsg::Python
