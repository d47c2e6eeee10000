#ifndef ZELTNAVMSG_PYTHON_RECORDS_H
#define ZELTNAVMSG_PYTHON_RECORDS_H

#include <pybind11/pybind11.h>

#include "python/Arguments.h"

namespace ZeltNavMsg::Python {

// decode_fields() and its classes Message, Field and Check (Records.cpp; built with
// ZELTNAVMSG_PYTHON_RECORDS).
void bindRecords(py::module_& m, const Enumerations& enums);

}  // namespace ZeltNavMsg::Python

#endif
