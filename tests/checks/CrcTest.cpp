#include "checks/Crc.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "support/RealData.h"

namespace ZeltNavMsg::Checks {
namespace {

// Any alignment and length gives the register of feeding the same bits one by one.
TEST(Crc, BitsAtAnyOffsetMatchBitByBit) {
    std::mt19937 rng(7);
    std::vector<std::uint8_t> data(40);
    for (auto& b : data) {
        b = static_cast<std::uint8_t>(rng());
    }
    for (std::size_t first = 0; first < 24; ++first) {
        for (std::size_t count = 0; first + count <= data.size() * 8; count += 7) {
            std::uint32_t expected = 0;
            for (std::size_t bit = first; bit < first + count; ++bit) {
                expected = Crc24Q::feedBit(expected, (data[bit / 8] >> (7 - bit % 8)) & 1U);
            }
            ASSERT_EQ(Crc24Q::ofBits(data.data(), first, count), expected)
                << "first " << first << " count " << count;
        }
    }
}

// Real B-CNAV2 frames: the CRC over bits 0-263 is the one broadcast in bits 264-287.
TEST(Crc, RealBeidouCNav2FramesCarryTheirCrc24Q) {
    for (const Testing::RealMessage& m : Testing::loadRealData("beidou_cnav2.tsv")) {
        std::vector<std::uint8_t> bytes;
        for (std::size_t i = 0; i + 1 < m.hex.size(); i += 2) {
            bytes.push_back(static_cast<std::uint8_t>(std::stoul(m.hex.substr(i, 2), nullptr, 16)));
        }
        const std::uint32_t broadcast = (std::uint32_t{bytes[33]} << 16) |
                                        (std::uint32_t{bytes[34]} << 8) | bytes[35];
        EXPECT_EQ(Crc24Q::ofBits(bytes.data(), 0, 264), broadcast) << m.where;
    }
}

}  // namespace
}  // namespace ZeltNavMsg::Checks
