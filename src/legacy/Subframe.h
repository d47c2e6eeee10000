#ifndef ZELTNAVMSG_LEGACY_SUBFRAME_H
#define ZELTNAVMSG_LEGACY_SUBFRAME_H

#include <cstdint>

namespace ZeltNavMsg::Legacy {

// One 300-bit subframe of ten 30-bit words as handed to the legacy interfaces.
// Bit 1 (the tables count from 1) is the most significant bit of data[0], the first
// transmitted bit. 38 bytes leave room for 304 bits.
struct subframe_t {
    static constexpr int kDataBytes = 38;

    std::int32_t layoutId = 0;  // from the interface's GetLayoutId; 0 = unknown layout
    std::int32_t subframe = 0;  // subframe number as given (1-5)
    std::int32_t page = 0;      // page number as given (0 or less = no page)
    std::int32_t bitCount = 0;  // valid bits in data
    std::uint8_t data[kDataBytes] = {};
};

}  // namespace ZeltNavMsg::Legacy

#endif
