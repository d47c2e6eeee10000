#include "python/Arguments.h"

#include <limits>
#include <span>
#include <string>

namespace ZeltNavMsg::Python {

namespace {

template <typename Enum>
std::pair<py::object, py::tuple> makeEnum(const py::object& intEnum, const char* name,
                                          std::span<const Enumerator<Enum>> rows,
                                          const char* moduleName) {
    py::list members;
    for (const Enumerator<Enum>& row : rows) {
        members.append(py::make_tuple(row.name, static_cast<std::int32_t>(row.value)));
    }
    py::object type = intEnum(name, members, py::arg("module") = moduleName);
    py::tuple byValue(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        byValue[i] = type(i);
    }
    return {type, byValue};
}

[[noreturn]] void throwPython(PyObject* type, const std::string& message) {
    PyErr_SetString(type, message.c_str());
    throw py::error_already_set();
}

std::string typeName(py::handle arg) {
    return py::str(py::type::handle_of(arg).attr("__name__"));
}

}  // namespace

Enumerations makeEnumerations(const char* moduleName) {
    const py::object intEnum = py::module_::import("enum").attr("IntEnum");
    auto [messageFormat, formats] =
        makeEnum<MessageFormat>(intEnum, "MessageFormat", kMessageFormats, moduleName);
    auto [signalType, signals] =
        makeEnum<SignalType>(intEnum, "SignalType", kSignalTypes, moduleName);
    return {messageFormat, formats, signalType, signals};
}

MessageFormat toFormat(py::handle arg) {
    if (PyUnicode_Check(arg.ptr())) {
        Py_ssize_t size = 0;
        const char* text = PyUnicode_AsUTF8AndSize(arg.ptr(), &size);
        if (text == nullptr) {
            throw py::error_already_set();
        }
        const std::string_view name(text, static_cast<std::size_t>(size));
        for (const Enumerator<MessageFormat>& row : kMessageFormats) {
            if (row.name == name) {
                return row.value;
            }
        }
        throwPython(PyExc_ValueError, "'" + std::string(name) + "' is not a MessageFormat name");
    }
    if (PyIndex_Check(arg.ptr())) {
        const auto value = py::reinterpret_steal<py::object>(PyNumber_Index(arg.ptr()));
        if (!value) {
            throw py::error_already_set();
        }
        int overflow = 0;
        const long long number = PyLong_AsLongLongAndOverflow(value.ptr(), &overflow);
        if (number == -1 && PyErr_Occurred() != nullptr) {
            throw py::error_already_set();
        }
        if (overflow == 0 && number >= 0 &&
            static_cast<unsigned long long>(number) < std::size(kMessageFormats)) {
            return kMessageFormats[static_cast<std::size_t>(number)].value;
        }
        throwPython(PyExc_ValueError,
                    std::string(py::str(value)) + " is not a valid MessageFormat");
    }
    throwPython(PyExc_TypeError,
                "format must be a MessageFormat or its name, not " + typeName(arg));
}

namespace {

// An integer argument from `min` to `max`, the bounds of a C++ type of `bits` bits.
long long toInteger(py::handle arg, const char* what, long long min, long long max, int bits) {
    const auto value = py::reinterpret_steal<py::object>(PyNumber_Index(arg.ptr()));
    if (!value) {
        throwPython(PyExc_TypeError, std::string(what) + " must be an int, not " + typeName(arg));
    }
    int overflow = 0;
    const long long number = PyLong_AsLongLongAndOverflow(value.ptr(), &overflow);
    if (number == -1 && PyErr_Occurred() != nullptr) {
        throw py::error_already_set();
    }
    if (overflow != 0 || number < min || number > max) {
        throwPython(PyExc_OverflowError, std::string(what) + " " + std::string(py::str(value)) +
                                             " does not fit in " + std::to_string(bits) + " bits");
    }
    return number;
}

}  // namespace

std::int32_t toInt32(py::handle arg, const char* what) {
    return static_cast<std::int32_t>(toInteger(arg, what, std::numeric_limits<std::int32_t>::min(),
                                               std::numeric_limits<std::int32_t>::max(), 32));
}

std::int64_t toLine(py::handle arg) {
    if (arg.is_none()) {
        return 0;
    }
    const long long line = toInteger(arg, "line", std::numeric_limits<std::int64_t>::min(),
                                     std::numeric_limits<std::int64_t>::max(), 64);
    if (line < 1) {
        throwPython(PyExc_ValueError, "line must be 1 or more, not " + std::to_string(line));
    }
    return line;
}

std::string toLatin1(py::handle arg, const char* what) {
    if (!PyUnicode_Check(arg.ptr())) {
        throwPython(PyExc_TypeError, std::string(what) + " must be str, not " + typeName(arg));
    }
    const auto bytes = py::reinterpret_steal<py::bytes>(PyUnicode_AsLatin1String(arg.ptr()));
    if (!bytes) {
        throw py::error_already_set();
    }
    return {PyBytes_AS_STRING(bytes.ptr()),
            static_cast<std::size_t>(PyBytes_GET_SIZE(bytes.ptr()))};
}

std::string_view toHex(py::handle arg) {
    if (PyUnicode_Check(arg.ptr())) {
        Py_ssize_t size = 0;
        const char* text = PyUnicode_AsUTF8AndSize(arg.ptr(), &size);
        if (text == nullptr) {
            throw py::error_already_set();
        }
        return {text, static_cast<std::size_t>(size)};
    }
    if (PyBytes_Check(arg.ptr())) {
        return {PyBytes_AS_STRING(arg.ptr()),
                static_cast<std::size_t>(PyBytes_GET_SIZE(arg.ptr()))};
    }
    throwPython(PyExc_TypeError, "hex must be str or bytes, not " + typeName(arg));
}

py::str latin1Text(std::string_view text) {
    PyObject* str =
        PyUnicode_DecodeLatin1(text.data(), static_cast<Py_ssize_t>(text.size()), nullptr);
    if (str == nullptr) {
        throw py::error_already_set();
    }
    return py::reinterpret_steal<py::str>(str);
}

}  // namespace ZeltNavMsg::Python
