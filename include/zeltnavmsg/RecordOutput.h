#ifndef ZELTNAVMSG_RECORDOUTPUT_H
#define ZELTNAVMSG_RECORDOUTPUT_H

#include <cstdint>
#include <string>
#include <string_view>

#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/Export.h"

// Decoded messages as JSON Lines and CSV, exactly and without a JSON or CSV library:
// numbers are the shortest text that reads back as the same double, raw bits are
// upper-case hex, text is escaped as each format requires.
//
// JSON, one object per message, keys in this order:
//   {"line": N, "sat": "G05", "format": "GpsLNav", "subframe": 1, "page": 0,
//    "layout": "...", "fields": [{"path": "...", "name": "...", "kind": "real",
//    "value": 1.234e-08, "units": "s", "raw": "1A2B", "bits": [[first, count], ...]}, ...],
//    "checks": [{"name": "word 3 parity", "ok": false, "bits": [[60, 30]],
//    "computed": "2A", "received": "2B"}, ...], "ok": true}
// "line" only when the context has one; "signal" and "time" (after "sat") only when
// the context has them. A character field's value is a string. Reserved, check and
// whole-word fields are left out unless allFields is set, which also adds "role".
//
// CSV: one row per field under the header
//   line,sat,format,subframe,page,path,name,value,units,raw,ok
// with RFC 4180 quoting; "ok" is the message's verdict. Records of a receiver log (a
// context with a signal) add ",signal,week,tow" after "ok" (week and tow empty without
// a time tag).

namespace ZeltNavMsg {

// What a record says about where its message came from.
struct RecordContext {
    std::int64_t line = 0;    // input line number; 0 for none
    std::string_view sat;     // satellite name
    std::string_view signal;  // receiver signal; empty for none
    bool hasTime = false;     // receiver time tag: GPS week and time of week
    std::int32_t week = 0;
    double tow = 0.0;
};

struct RecordOptions {
    bool allFields = false;  // reserved, check and whole-word fields too
};

// Appends the shortest text that reads back as `value` (what std::to_chars writes
// without a precision), as the records write their numbers: for a host that adds its
// own fields to a record, or a receiver time to a header line.
ZELTNAVMSG_API void AppendNumber(std::string& out, double value);

// "GpsLNav", "BeidouCNav2", ...: the enumerator's name.
[[nodiscard]] ZELTNAVMSG_API std::string_view MessageFormatName(MessageFormat format) noexcept;

// Appends one JSON object and "\n".
ZELTNAVMSG_API void AppendJsonRecord(std::string& out, const DecodedMessage& message,
                                     const RecordContext& context,
                                     const RecordOptions& options = {});
// Appends {"line": N, "error": {"type": "...", "message": "..."}} and "\n" ("line" only
// when N > 0): a message that failed keeps its place in the stream.
ZELTNAVMSG_API void AppendJsonError(std::string& out, std::int64_t line, std::string_view type,
                                    std::string_view message);

// The header row, "\n" included; with the receiver log columns when `log` is set.
[[nodiscard]] ZELTNAVMSG_API std::string_view CsvHeader(bool log = false) noexcept;
// Appends one row per field, each ended by "\n".
ZELTNAVMSG_API void AppendCsvRows(std::string& out, const DecodedMessage& message,
                                  const RecordContext& context, const RecordOptions& options = {});

}  // namespace ZeltNavMsg

#endif
