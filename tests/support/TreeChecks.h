#ifndef ZELTNAVMSG_TESTS_SUPPORT_TREECHECKS_H
#define ZELTNAVMSG_TESTS_SUPPORT_TREECHECKS_H

#include <string>

#include "fields/BitStructDef.h"

namespace ZeltNavMsg::Testing {

// Checks, for `def` and every structure below it, that its members tile it exactly:
// every bit of the structure belongs to exactly one member, for the always-present
// members together with each variant in turn. A hidden always-present member that
// spans exactly the bits of the variants (a raw placeholder for the page data) is
// left out when a variant is counted. Failures name the structure's path.
void expectTiled(const BitStructDef& def, const std::string& path = "");

}  // namespace ZeltNavMsg::Testing

#endif
