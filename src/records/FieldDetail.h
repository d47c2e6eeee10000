#ifndef ZELTNAVMSG_RECORDS_FIELDDETAIL_H
#define ZELTNAVMSG_RECORDS_FIELDDETAIL_H

#include <string>

#include "records/MessageWriter.h"

namespace ZeltNavMsg::Records {

// What FieldInfo::detail points at: the listing line of the field, its value rule
// (the encoder runs it backwards), and the parts of its JSON and CSV text that do not
// depend on the bits, made once with the plan.
struct FieldDetail {
    ListingSource listing;
    // value = the number `rule.format` reads from the raw bits x `rule.scale`, in the
    // record's units, corrections included; rule.width is the record's bit count.
    ValueRule rule;
    MessageFormat format = MessageFormat::GpsLNav;  // of the plan that made the field
    // {"path":...,"name":...,"kind":"...","value":   (and with "role" after "kind")
    std::string jsonHead;
    std::string jsonHeadWithRole;
    std::string jsonMid;   // ,"units":"...","raw":"
    std::string jsonTail;  // ","bits":[[first,count],...]}
    std::string csvNames;  // path,name,
    std::string csvUnits;  // ,units,
};

// Writes the shortest text that reads back as `v` (std::to_chars without a
// precision), at most 32 characters; returns its end.
char* writeShortest(char* p, double v) noexcept;

// Fills the text parts of `detail` for the field `info` (complete, bits included).
void describeForOutput(const FieldInfo& info, FieldDetail& detail);

}  // namespace ZeltNavMsg::Records

#endif
