#ifndef ZELTNAVMSG_TESTS_SUPPORT_TREECHECKS_H
#define ZELTNAVMSG_TESTS_SUPPORT_TREECHECKS_H

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "fields/BitStructDef.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace ZeltNavMsg::Testing {

// Checks, for `def` and every structure below it, that its members tile it exactly:
// every bit of the structure belongs to exactly one member, for the always-present
// members together with each variant in turn. A hidden always-present member that
// spans exactly the bits of the variants (a raw placeholder for the page data) is
// left out when a variant is counted. Failures name the structure's path.
void expectTiled(const BitStructDef& def, const std::string& path = "");

// One value line of a definition-tree listing.
struct TreeLine {
    std::string value;   // the first word after "name: "
    std::string units;   // the rest, up to ", Raw hex:"
    std::string rawHex;  // after ", Raw hex:"; empty when the line has no raw part
};

// Value lines of a listing keyed by path: the headings below the top one and the
// line's name, joined by "/" ("Subframe 2/Ephemeris/M0"). A raw-hex-only line's digits
// land in `value` (nothing tells them apart from a value there).
std::multimap<std::string, TreeLine> parseTreeListing(std::string_view text);

// Real-data check on a parsed listing: the only line at `path` shows `truth` to six
// significant digits. Failures name `where`.
void expectTreeValue(const std::multimap<std::string, TreeLine>& lines, const std::string& path,
                     double truth, const std::string& where);

// The lines of Decode(format, 0, 0, hex); checks that the last line has no line end.
std::vector<std::string> decodeTreeLines(MessageFormat format, const std::string& hex);

// Line by line, so that a failure names the first line that differs; then the counts.
void expectSameLines(const std::vector<std::string>& got, const std::vector<std::string>& expected);

}  // namespace ZeltNavMsg::Testing

#endif
