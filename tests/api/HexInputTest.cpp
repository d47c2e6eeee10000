// Hex text to bytes, many digits at a time: every byte value at every alignment, a bad
// character anywhere. Trimming, odd lengths, input longer than a frame and the error
// messages are checked through Decode (tests/robustness).

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "api/HexInput.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::DecodingError;
using ZeltNavMsg::Detail::HexStringToBytes;

TEST(HexInput, EveryByteValueAtEveryAlignment) {
    for (std::size_t lead = 0; lead < 8; ++lead) {
        for (const char* digits : {"0123456789ABCDEF", "0123456789abcdef"}) {
            std::string hex(2 * lead, '7');
            std::vector<std::uint8_t> expected(lead, 0x77);
            for (unsigned value = 0; value < 256; ++value) {
                hex += digits[value >> 4];
                hex += digits[value & 15];
                expected.push_back(static_cast<std::uint8_t>(value));
            }
            std::int32_t sizeBits = 0;
            EXPECT_EQ(HexStringToBytes(hex, sizeBits), expected) << lead << " " << digits;
        }
    }
}

// Every length, odd ones included: the last steps overlap the ones before, and an odd
// last digit fills a high nibble.
TEST(HexInput, EveryLength) {
    const std::string digits = "0123456789abcdefFEDCBA9876543210";
    for (std::size_t length = 1; length <= 100; ++length) {
        std::string hex;
        std::vector<std::uint8_t> expected((length + 1) / 2, 0);
        for (std::size_t i = 0; i < length; ++i) {
            const std::size_t d = (7 * i + length) % digits.size();
            const std::size_t value = d < 16 ? d : 31 - d;
            hex += digits[d];
            expected[i / 2] =
                static_cast<std::uint8_t>(expected[i / 2] | (value << (i % 2 == 0 ? 4 : 0)));
        }
        std::int32_t sizeBits = 0;
        EXPECT_EQ(HexStringToBytes(hex, sizeBits), expected) << hex;
        EXPECT_EQ(sizeBits, static_cast<std::int32_t>(4 * length));
    }
}

TEST(HexInput, FindsABadCharacterAnywhere) {
    for (const char bad :
         {'/', ':', '@', 'G', '`', 'g', ' ', '\0', '\x80', '\xFF', '\x10', '\xB0'}) {
        for (std::size_t length = 1; length <= 80; ++length) {
            for (std::size_t at = 0; at < length; ++at) {
                std::string hex(length, 'a');
                hex[at] = bad;
                if (bad == ' ' && (at == 0 || at + 1 == length)) {
                    continue;  // trimmed
                }
                std::int32_t sizeBits = 0;
                EXPECT_THROW((void)HexStringToBytes(hex, sizeBits), DecodingError)
                    << static_cast<int>(bad) << " at " << at << " of " << length;
            }
        }
    }
}

}  // namespace
