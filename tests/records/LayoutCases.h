#ifndef ZELTNAVMSG_TESTS_RECORDS_LAYOUTCASES_H
#define ZELTNAVMSG_TESTS_RECORDS_LAYOUTCASES_H

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "zeltnavmsg/NavMessageDecoder.h"

// Messages of every layout of every format: each subframe and page of the 300-bit
// formats' tables (QZSS subframes 4 and 5 also by SV ID), each page or message type of
// the frame formats (unknown ones included). Their bits are zero, or random.

namespace ZeltNavMsg::Testing {

struct LayoutCase {
    MessageFormat format;
    std::int32_t subframe;
    std::int32_t page;
    std::string hex;
    std::int32_t layoutBits;  // 300, or the frame length
};

// `rng` null: all other bits zero. Random BeiDou subframes are BCH-encoded, so that
// their words are intact.
std::vector<LayoutCase> layoutCases(std::mt19937* rng);

std::string bytesToHex(const std::vector<std::uint8_t>& bytes, std::size_t digits);

}  // namespace ZeltNavMsg::Testing

#endif
