#ifndef ZELTNAVMSG_RECORDS_UNITS_H
#define ZELTNAVMSG_RECORDS_UNITS_H

#include <string_view>

#include "zeltnavmsg/NavMessageDecoder.h"

// One vocabulary of units for the records of all formats. The listings spell units
// as each format's tables do ("seconds", "s", "semi-circles", "pi", "meters^(-2)");
// a record gives the document's unit in one spelling, and the factor that turns the
// listing's number into it (1 but for nanoseconds, which records give in seconds).

namespace ZeltNavMsg::Records {

struct RecordUnits {
    std::string_view units;
    double factor = 1.0;
};

// The record units of a listing's units text. A text that describes one part of a
// field split over two pages ("4 MSB here, ...") has no units: that part is a raw
// count. Throws std::logic_error for a text the vocabulary does not know, so that a
// new table entry cannot slip through without a unit.
[[nodiscard]] RecordUnits recordUnits(std::string_view listingUnits);

// Units the listing leaves out of a field that has them: top, ISCs, week numbers...
// Empty when the field has none there either.
[[nodiscard]] std::string_view omittedUnits(MessageFormat format, std::string_view name);

}  // namespace ZeltNavMsg::Records

#endif
