#ifndef ZELTNAVMSG_TESTS_SUPPORT_REALDATA_H
#define ZELTNAVMSG_TESTS_SUPPORT_REALDATA_H

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "zeltnavmsg/NavMessageDecoder.h"

namespace ZeltNavMsg::Testing {

// Pi as the interface documents fix it, for ground truth given in radians.
inline constexpr double kPi = 3.1415926535898;

// The rows of a TAB-separated file under tests/data, blank lines and lines starting with
// '#' skipped; `where` is "file:line" for failure messages. A blank inside a cell is
// part of it.
struct DataRow {
    std::vector<std::string> cells;
    std::string where;
};
std::vector<DataRow> loadTable(std::string_view relativePath);

// A real broadcast logged by a receiver, with field values decoded by independent
// decoders: a row of tests/data/real-data/*.tsv (format, satellite, subframe, page, hex,
// then field=value[ unit] cells).
struct RealMessage {
    std::string format;
    std::string satellite;
    std::int32_t subframe = 0;
    std::int32_t page = 0;
    std::string hex;
    std::map<std::string, std::string> truth;  // field -> value text, unit included
    std::string where;
};
std::vector<RealMessage> loadRealData(std::string_view fileName);

// The value lines of a listing, keyed by name: a legacy line by its name, a tree line by
// the headings below the top one and its name, joined by "/" ("Subframe 2/Ephemeris/M0").
struct ListedValue {
    std::string value;  // the first word of the value (a raw-hex-only line's digits)
    std::string hex;    // the raw hex digits, without "0x"; empty when not printed
};
using Listing = std::multimap<std::string, ListedValue>;
Listing parseListing(std::string_view text);
// What Decode lists for a frame format's bits (subframe and page 0).
inline Listing decodeFrame(MessageFormat format, std::string_view hex) {
    return parseListing(NavMessageDecoder::Decode(format, 0, 0, hex));
}

// "a x b y" as {a: prefix + x, b: prefix + y}: ground-truth names and listing keys.
std::map<std::string, std::string> namePairs(std::string_view words,
                                             const std::string& prefix = "");

// The only line at `key`, or a failure naming `where`.
const ListedValue* onlyLine(const Listing& lines, const std::string& key, const std::string& where);
// The only line at `key` shows `truth` to six significant digits (half a unit of the
// sixth, with a little room for the decimal scale constants), or exactly as an integer.
void expectValue(const Listing& lines, const std::string& key, double truth,
                 const std::string& where);
void expectInteger(const Listing& lines, const std::string& key, long long truth,
                   const std::string& where);

// A file of tests/data/listings: the input on its first line, then the expected lines.
struct ExpectedListing {
    std::string hex;
    std::vector<std::string> lines;
};
ExpectedListing loadExpectedListing(std::string_view relativePath);

// A text split at the library's "\r\n" line ends.
std::vector<std::string> splitLines(std::string_view text);
// Line by line, so that a failure names the first line that differs; then the counts.
void expectSameLines(const std::vector<std::string>& got, const std::vector<std::string>& expected);

}  // namespace ZeltNavMsg::Testing

#endif
