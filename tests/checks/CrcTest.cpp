#include "checks/Crc.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/BitBytes.h"

namespace ZeltNavMsg::Checks {
namespace {

// Any alignment and length gives the register of feeding the same bits one by one.
TEST(Crc, BitsAtAnyOffsetMatchBitByBit) {
    const std::vector<std::uint8_t> data = Testing::randomBytes(40, 7);
    for (std::size_t first = 0; first < 24; ++first) {
        for (std::size_t count = 0; first + count <= data.size() * 8; count += 7) {
            std::uint32_t expected = 0;
            for (std::size_t bit = first; bit < first + count; ++bit) {
                expected = Crc24Q::feedBit(expected, Testing::bitOf(data.data(), bit));
            }
            ASSERT_EQ(Crc24Q::ofBits(data.data(), first, count), expected)
                << "first " << first << " count " << count;
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg::Checks
