#ifndef ZELTNAVMSG_PYTHON_LOGREADING_H
#define ZELTNAVMSG_PYTHON_LOGREADING_H

#include <pybind11/pybind11.h>

#include "python/Arguments.h"

namespace ZeltNavMsg::Python {

// read_log() and its classes LogReader and LogMessage, a Message (LogReading.cpp).
void bindLogReading(py::module_& m, const Enumerations& enums);

}  // namespace ZeltNavMsg::Python

#endif
