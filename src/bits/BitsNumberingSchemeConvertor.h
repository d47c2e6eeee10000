#ifndef ZELTNAVMSG_BITS_BITSNUMBERINGSCHEMECONVERTOR_H
#define ZELTNAVMSG_BITS_BITSNUMBERINGSCHEMECONVERTOR_H

#include <cstdint>
#include <vector>

#include "bits/BitRange.h"

namespace ZeltNavMsg {

// Numbering in which a message document writes bit indices.
enum class BitsNumberingScheme : std::uint32_t {
    FromFirstBitZeroBased = 0,  // internal numbering
    FromFirstBitOneBased = 1,
    FromLastBitZeroBased = 2,
    FromLastBitOneBased = 3,
};

// Turns ranges written in a document's numbering into the internal one, for a
// message of `totalBits` bits. Ranges counted from the last bit are mirrored so
// that the internal first index is the lower one.
class BitsNumberingSchemeConvertor {
  public:
    BitsNumberingSchemeConvertor(BitsNumberingScheme scheme, std::int32_t totalBits) noexcept
        : scheme_(scheme), totalBits_(totalBits) {}

    // Converts every range in place, in order, checking each as a new BitRange; the
    // ranges before a failing one stay converted. Throws std::runtime_error
    // "BitsNumberingSchemeConvertor: Unknown bits numbering scheme" for an unknown
    // scheme as soon as there is a range to convert.
    void convert(std::vector<BitRange>& ranges) const;

  private:
    BitsNumberingScheme scheme_;
    std::int32_t totalBits_;
};

}  // namespace ZeltNavMsg

#endif
