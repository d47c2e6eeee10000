// MessageEncoder: field values back to broadcast bits, as the C++ MessageEncoder makes
// them, with its EncodingError as a subclass of the module's DecodingError. The calls
// keep the interpreter lock: each takes microseconds, and the lock is what keeps two
// threads from changing one encoder at once.

#include "python/Encoding.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "python/Records.h"
#include "zeltnavmsg/MessageEncoder.h"

namespace ZeltNavMsg::Python {

namespace {

std::string typeName(py::handle arg) {
    return py::str(py::type::handle_of(arg).attr("__name__"));
}

std::string_view toKey(py::handle key) {
    if (!PyUnicode_Check(key.ptr())) {
        throw py::type_error("key must be str, not " + typeName(key));
    }
    Py_ssize_t size = 0;
    const char* text = PyUnicode_AsUTF8AndSize(key.ptr(), &size);
    if (text == nullptr) {
        throw py::error_already_set();
    }
    return {text, static_cast<std::size_t>(size)};
}

std::unique_ptr<MessageEncoder> makeEncoder(py::handle start, py::handle subframe, py::handle page,
                                            py::handle hex) {
    if (py::isinstance<MessageObject>(start)) {
        if (!subframe.is_none() || !page.is_none() || !hex.is_none()) {
            throw py::type_error(
                "MessageEncoder of a Message takes no subframe, page or hex: the message has "
                "them");
        }
        return std::make_unique<MessageEncoder>(start.cast<const MessageObject&>().message);
    }
    const MessageFormat format = toFormat(start);
    const std::int32_t s = subframe.is_none() ? 0 : toInt32(subframe, "subframe");
    const std::int32_t p = page.is_none() ? 0 : toInt32(page, "page");
    if (hex.is_none()) {
        return std::make_unique<MessageEncoder>(format, s, p);
    }
    return std::make_unique<MessageEncoder>(format, s, p, toHex(hex));
}

// A value in the field's units: a number, or for a character field its one character
// (up to U+00FF), as navmsg encode --set takes it.
void setValue(MessageEncoder& encoder, const FieldInfo& field, py::handle value) {
    if (PyUnicode_Check(value.ptr())) {
        if (field.kind != ValueKind::Character) {
            throw py::type_error(std::string(field.path) +
                                 ": a str is the value of a character field only");
        }
        const Py_ssize_t length = PyUnicode_GetLength(value.ptr());
        const Py_UCS4 code = length == 1 ? PyUnicode_ReadChar(value.ptr(), 0) : 0;
        if (length != 1 || code > 0xFF) {
            throw py::value_error(std::string(field.path) + ": " + std::string(py::repr(value)) +
                                  " is not one character from U+0000 to U+00FF");
        }
        encoder.set(field, static_cast<double>(code));
        return;
    }
    const double number = PyFloat_AsDouble(value.ptr());
    if (number == -1.0 && PyErr_Occurred() != nullptr) {
        if (!PyErr_ExceptionMatches(PyExc_TypeError)) {
            throw py::error_already_set();  // an int beyond a double's range: OverflowError
        }
        PyErr_Clear();
        throw py::type_error(std::string(field.path) + ": the value must be a number, not " +
                             typeName(value));
    }
    encoder.set(field, number);
}

std::uint64_t toRaw(py::handle raw) {
    const auto number = py::reinterpret_steal<py::object>(PyNumber_Index(raw.ptr()));
    if (!number) {
        PyErr_Clear();
        throw py::type_error("raw must be an int, not " + typeName(raw));
    }
    const unsigned long long value = PyLong_AsUnsignedLongLong(number.ptr());
    if (PyErr_Occurred() != nullptr) {
        PyErr_Clear();
        PyErr_SetString(
            PyExc_OverflowError,
            ("raw " + std::string(py::str(number)) + " does not fit in 64 unsigned bits").c_str());
        throw py::error_already_set();
    }
    return value;
}

// The hex text, with input bits flipped after the checks are made (damage on purpose).
std::string hexOf(const MessageEncoder& encoder, bool keepChecks, py::handle flips) {
    std::string hex = encoder.hex(keepChecks ? CheckBits::Keep : CheckBits::Recompute);
    for (py::handle item : py::iter(flips)) {
        const std::int32_t bit = toInt32(item, "bit");
        if (bit < 0 || bit >= encoder.bitCount()) {
            throw py::index_error("bit " + std::to_string(bit) +
                                  " is outside the message: bits 0 to " +
                                  std::to_string(encoder.bitCount() - 1));
        }
        char& digit = hex[static_cast<std::size_t>(bit / 4)];
        const int value = (digit <= '9' ? digit - '0' : digit - 'a' + 10) ^ (8 >> (bit % 4));
        digit = "0123456789abcdef"[value];
    }
    return hex;
}

}  // namespace

void bindEncoding(py::module_& m, const Enumerations& enums) {
    const py::object decodingError = m.attr("DecodingError");
    py::exception<EncodingError>& encodingError =
        py::register_exception<EncodingError>(m, "EncodingError", decodingError);
    encodingError.attr("__module__") = decodingError.attr("__module__");
    encodingError.doc() =
        "A field the encoder cannot set as asked: no such field in the layout, a value "
        "outside its range, a raw value wider than the field, a whole LNAV word.";

    py::class_<MessageEncoder>(
        m, "MessageEncoder",
        "One message being built from field values: set fields by path or name, then hex().")
        .def(py::init(&makeEncoder), py::arg("start"), py::arg("subframe") = py::none(),
             py::arg("page") = py::none(), py::arg("hex") = py::none())
        .def_property_readonly(
            "format", [enums](const MessageEncoder& e) { return enums.member(e.format()); })
        .def_property_readonly("subframe", &MessageEncoder::subframe)
        .def_property_readonly("page", &MessageEncoder::page)
        .def_property_readonly("bit_count", &MessageEncoder::bitCount)
        .def(
            "set",
            [](MessageEncoder& e, py::handle key, py::handle value, py::handle part) {
                setValue(e, e.field(toKey(key), toInt32(part, "part")), value);
            },
            py::arg("key"), py::arg("value"), py::arg("part") = 0)
        .def(
            "set_raw",
            [](MessageEncoder& e, py::handle key, py::handle raw, py::handle part) {
                const FieldInfo& field = e.field(toKey(key), toInt32(part, "part"));
                e.setRaw(field, toRaw(raw));
            },
            py::arg("key"), py::arg("raw"), py::arg("part") = 0)
        .def("hex", &hexOf, py::kw_only(), py::arg("keep_checks") = false,
             py::arg("flip") = py::tuple())
        .def("message", [](MessageEncoder& e) {
            auto o = std::make_unique<MessageObject>();
            o->message = e.message();
            return o;
        });
}

}  // namespace ZeltNavMsg::Python
