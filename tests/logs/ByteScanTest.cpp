// The loops that see every byte of a log against their plain definitions: every
// length, start and end that the 16- and 32-byte steps and their tails meet.

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "logs/ByteScan.h"
#include "support/BitBytes.h"

namespace ZeltNavMsg::Testing {
namespace {

// CK_A and CK_B as the UBX protocol defines them: 8-bit sums, one byte at a time.
std::pair<std::uint8_t, std::uint8_t> ubxChecksum(const std::uint8_t* p, std::size_t n) {
    std::uint8_t a = 0;
    std::uint8_t b = 0;
    for (std::size_t i = 0; i < n; ++i) {
        a = static_cast<std::uint8_t>(a + p[i]);
        b = static_cast<std::uint8_t>(b + a);
    }
    return {a, b};
}

TEST(ByteScan, ChecksumAsDefinedAtEveryLength) {
    constexpr std::size_t kLongest = 4 + 65535;  // class, id, length and the largest payload
    const std::vector<std::uint8_t> noise = randomBytes(kLongest + 3, 7);
    // All 0xFF: the largest sums, where any carry between lanes would show.
    const std::vector<std::uint8_t> ones(kLongest, 0xFF);
    std::vector<std::size_t> lengths{kLongest - 1, kLongest};
    for (std::size_t n = 0; n <= 100; ++n) {
        lengths.push_back(n);
    }
    for (const std::size_t n : lengths) {
        for (std::size_t offset = 0; offset < 4 && offset + n <= noise.size(); ++offset) {
            const std::uint8_t* p = noise.data() + offset;
            const auto expected = ubxChecksum(p, n);
            for (const Logs::Fletcher8 got :
                 {Logs::fletcher8(p, n), Logs::fletcher8Portable(p, n)}) {
                EXPECT_EQ(got.a & 0xFFU, expected.first) << n << " at " << offset;
                EXPECT_EQ(got.b & 0xFFU, expected.second) << n << " at " << offset;
            }
        }
        if (n <= ones.size()) {
            const auto expected = ubxChecksum(ones.data(), n);
            EXPECT_EQ(Logs::fletcher8(ones.data(), n).b & 0xFFU, expected.second) << n;
            EXPECT_EQ(Logs::fletcher8Portable(ones.data(), n).b & 0xFFU, expected.second) << n;
        }
    }
}

// The first sync pair, or a first sync byte that ends the bytes, or `end`.
std::size_t firstPossibleFrame(const std::vector<std::uint8_t>& data, std::size_t p,
                               std::size_t end) {
    for (; p < end; ++p) {
        const bool ubx = data[p] == 0xB5 && (p + 1 == end || data[p + 1] == 0x62);
        const bool sbf = data[p] == '$' && (p + 1 == end || data[p + 1] == '@');
        if (ubx || sbf) {
            return p;
        }
    }
    return end;
}

TEST(ByteScan, SyncSearchAtEveryStartAndEnd) {
    std::mt19937 random(3);
    // Sync bytes sparse (text) and dense, and their partners alone.
    for (const unsigned density : {2U, 8U, 64U}) {
        std::vector<std::uint8_t> data(200);
        for (std::uint8_t& byte : data) {
            const std::uint8_t kinds[] = {0xB5, 0x62, '$', '@'};
            byte = random() % density == 0 ? kinds[random() % 4] : static_cast<std::uint8_t>('A');
        }
        for (std::size_t end = 0; end <= data.size(); ++end) {
            for (std::size_t p = 0; p <= end; ++p) {
                const std::size_t expected = firstPossibleFrame(data, p, end);
                ASSERT_EQ(Logs::findSync(data.data(), p, end), expected) << p << "-" << end;
                ASSERT_EQ(Logs::findSyncPortable(data.data(), p, end), expected) << p << "-" << end;
            }
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg::Testing
