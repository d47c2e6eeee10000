#include "bits/BitsNumberingSchemeConvertor.h"

#include <stdexcept>

namespace ZeltNavMsg {

namespace {
// Index arithmetic wraps like the 32-bit indices it works on; the result is checked.
std::int32_t wrap(std::int64_t v) {
    return static_cast<std::int32_t>(v);
}
}  // namespace

void BitsNumberingSchemeConvertor::convert(std::vector<BitRange>& ranges) const {
    if (scheme_ == BitsNumberingScheme::FromFirstBitZeroBased) {
        return;
    }
    using Init = BitRange::InitializationType;
    const std::int64_t t = totalBits_;
    for (BitRange& range : ranges) {
        const std::int64_t f = range.firstBitIndex();
        const std::int64_t l = range.lastBitIndex();
        switch (scheme_) {
            case BitsNumberingScheme::FromFirstBitOneBased:
                range = BitRange(Init::FirstAndLastBit, wrap(f - 1), wrap(l - 1));
                break;
            case BitsNumberingScheme::FromLastBitZeroBased:
                range = BitRange(Init::FirstAndLastBit, wrap(t - 1 - l), wrap(t - 1 - f));
                break;
            case BitsNumberingScheme::FromLastBitOneBased:
                range = BitRange(Init::FirstAndLastBit, wrap(t - l), wrap(t - f));
                break;
            default:
                throw std::runtime_error(
                    "BitsNumberingSchemeConvertor: Unknown bits numbering scheme");
        }
    }
}

}  // namespace ZeltNavMsg
