#ifndef ZELTNAVMSG_TESTS_SUPPORT_REALDATA_H
#define ZELTNAVMSG_TESTS_SUPPORT_REALDATA_H

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Real broadcast messages logged by receivers, with field values decoded by
// independent decoders (tests/data/real-data/*.tsv). Columns, TAB-separated:
// format, satellite, subframe, page, hex, then field=value[ unit] pairs.

namespace ZeltNavMsg::Testing {

struct RealMessage {
    int lineNumber = 0;
    std::string format;
    std::string satellite;
    std::int32_t subframe = 0;
    std::int32_t page = 0;
    std::string hex;
    std::map<std::string, std::string> truth;  // field -> value text, unit included

    // The numeric value of a ground-truth field (its unit dropped), if present.
    [[nodiscard]] std::optional<double> number(const std::string& field) const;
    // "file:line" for failure messages.
    std::string where;
};

// Every message of `fileName` (e.g. "gps_lnav.tsv").
std::vector<RealMessage> loadRealData(std::string_view fileName);

// Whether `printed` (a "%g" text) shows `truth` to six significant digits: within
// half a unit of the sixth digit, with a little room for the decimal scale constants.
bool sameToSixDigits(double printed, double truth);

// Fields of a legacy listing, keyed by name: the text after "name:" split into the
// optional "0x.." raw part, the value word and the units.
struct LegacyLine {
    std::string hex;    // without "0x"; empty when not printed
    std::string value;  // first word after the hex part; empty when not printed
    std::string units;  // the rest of the line
};
std::multimap<std::string, LegacyLine> parseLegacyListing(std::string_view text);

// The value of the only line named `name`; fails the test when absent or repeated.
std::optional<LegacyLine> onlyLine(const std::multimap<std::string, LegacyLine>& lines,
                                   const std::string& name);

// An expected-listing file of tests/data/listings: its input and its lines.
struct ExpectedListing {
    std::string hex;
    std::vector<std::string> lines;
};
ExpectedListing loadExpectedListing(std::string_view relativePath);

// Splits a text at "\r\n" (the library's line end) into lines.
std::vector<std::string> splitLines(std::string_view text);

}  // namespace ZeltNavMsg::Testing

#endif
