// Message bits packed a word at a time against a bit-by-bit copy.

#include <gtest/gtest.h>

#include <vector>

#include "logs/RecordBits.h"
#include "support/BitBytes.h"

namespace ZeltNavMsg::Testing {
namespace {

// Runs of any length from any bit, after bits of any count: as a bit-by-bit copy.
TEST(MessageBits, AppendAnyRunAfterAnyBits) {
    const std::vector<std::uint8_t> source = randomBytes(240, 9);
    constexpr std::uint32_t kLead = 0xB38F0F1DU;
    for (const unsigned before : {0U, 1U, 6U, 14U, 32U}) {
        for (const std::size_t first : {0U, 3U, 8U, 52U, 1273U}) {
            for (const std::size_t count : {0U, 1U, 9U, 31U, 32U, 33U, 300U, 600U}) {
                Logs::MessageBits bits;
                bits.clear();
                bits.append(kLead, before);
                bits.appendBits(source.data(), first, count);
                ASSERT_EQ(bits.bitCount, before + count);
                for (std::size_t i = 0; i < 8 * bits.bytes.size(); ++i) {
                    const std::uint32_t expected = i < before ? (kLead >> (before - 1 - i)) & 1U
                                                   : i < before + count
                                                       ? bitOf(source.data(), first + i - before)
                                                       : 0U;
                    ASSERT_EQ(bitOf(bits.bytes.data(), i), expected)
                        << before << " " << first << " " << count << ": bit " << i;
                }
            }
        }
    }
}

}  // namespace
}  // namespace ZeltNavMsg::Testing
