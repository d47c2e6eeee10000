#ifndef ZELTNAVMSG_PYTHON_RECORDS_H
#define ZELTNAVMSG_PYTHON_RECORDS_H

#include <pybind11/pybind11.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "python/Arguments.h"
#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/RecordOutput.h"

namespace ZeltNavMsg::Python {

// A Message: the C++ record and what is known of the message's origin (an input line,
// or a receiver log's satellite, signal and time tag). Its field and check objects are
// made on first use.
struct MessageObject {
    DecodedMessage message;
    std::string sat;          // Latin-1, as the library writes text; "" for none
    std::int64_t line = 0;    // 0 for none
    std::string_view signal;  // a log's signal name (the library's constant text); "" for none
    bool hasTime = false;     // a log's receiver time tag
    std::int32_t week = 0;
    double tow = 0.0;
    RecordOptions options;
    py::object fields;  // tuple of Field, made on first use
    py::object checks;  // tuple of Check, made on first use

    [[nodiscard]] RecordContext context() const {
        RecordContext c;
        c.line = line;
        c.sat = sat;
        c.signal = signal;
        c.hasTime = hasTime;
        c.week = week;
        c.tow = tow;
        return c;
    }
    // What navmsg --output json|csv writes: data fields, or all with --all-fields.
    [[nodiscard]] bool shown(const DecodedField& field) const {
        return options.allFields || field.role() == FieldRole::Data;
    }
};

// decode_fields() and its classes Message, Field and Check (Records.cpp).
void bindRecords(py::module_& m, const Enumerations& enums);

}  // namespace ZeltNavMsg::Python

#endif
