#ifndef ZELTNAVMSG_PYTHON_ENCODING_H
#define ZELTNAVMSG_PYTHON_ENCODING_H

#include <pybind11/pybind11.h>

#include "python/Arguments.h"

namespace ZeltNavMsg::Python {

// MessageEncoder and EncodingError, a DecodingError (Encoding.cpp). Needs the Message
// class of bindRecords().
void bindEncoding(py::module_& m, const Enumerations& enums);

}  // namespace ZeltNavMsg::Python

#endif
