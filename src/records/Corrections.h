#ifndef ZELTNAVMSG_RECORDS_CORRECTIONS_H
#define ZELTNAVMSG_RECORDS_CORRECTIONS_H

#include <cstdint>
#include <span>
#include <string_view>

#include "zeltnavmsg/DecodedMessage.h"

// Where the listing departs from the interface documents, the records follow the
// documents. Each departure is one row here, with the reason; the listing's own
// tables and trees stay as they are.

namespace ZeltNavMsg::Records {

enum class CorrectionKind : std::uint8_t {
    Scale,        // value = raw (as the listing reads it) x scale, in `units`
    Unsigned,     // the document's field is unsigned: value = raw x scale, in `units`
    Semicircles,  // an angle the listing multiplies by pi: value = raw x scale / pi
    IcdErd,       // LNAV NMCT ERDs: 6-bit two's complement x 0.3 m on the document's bits
    QzssLayout,   // QZSS subframes 4 and 5: the layout the SV ID names, not the page's
};

struct Correction {
    std::uint32_t formats;   // bit 1 << MessageFormat of each format it applies to
    std::string_view field;  // the field's name, or the end of its path ("SISAIoc.top")
    CorrectionKind kind;
    double scale;
    std::string_view units;
    ValueKind valueKind;
    std::string_view why;
};

[[nodiscard]] std::span<const Correction> corrections() noexcept;

// The correction of a field, if any. `listingUnits` and `listingScale` let the angle
// rule recognise a scale of 2^n x pi.
[[nodiscard]] const Correction* findCorrection(MessageFormat format, std::string_view path,
                                               std::string_view name, std::string_view listingUnits,
                                               double listingScale) noexcept;

// Whether QZSS subframes 4 and 5 are corrected; and the QZSS layout id the SV ID of
// subframe 4 or 5 names (0 when the SV ID names none this library knows).
[[nodiscard]] bool correctsQzssLayout() noexcept;
[[nodiscard]] std::int32_t qzssLayoutOfSvId(std::int32_t svId) noexcept;

// The document's bits of ERD number `k` (1-30) of the NMCT page, counted from 1 in
// the 300-bit subframe: 6 bits of the data bit stream after the SV ID and the
// availability indicator, split where a word's parity intervenes.
struct TableSegment {
    std::int32_t first;
    std::int32_t length;
};
struct ErdBits {
    TableSegment segments[2];
    std::int32_t count;
};
[[nodiscard]] ErdBits icdErdBits(std::int32_t k) noexcept;

}  // namespace ZeltNavMsg::Records

#endif
