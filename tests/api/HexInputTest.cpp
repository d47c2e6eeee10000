// Hex text to bytes, many digits at a time: trimming, odd lengths, every byte value at
// every alignment, a bad character anywhere. The error messages are checked through
// Decode (tests/robustness).

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "api/HexInput.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::DecodingError;
using ZeltNavMsg::Detail::HexStringToBytes;

TEST(HexInput, ParsesDigits) {
    const struct {
        std::string hex;
        std::vector<std::uint8_t> bytes;
        std::int32_t sizeBits;
    } cases[] = {
        {"8B0F", {0x8B, 0x0F}, 16},
        {"  8B0F ", {0x8B, 0x0F}, 16},
        {"\t\n\v\f\r8b0f\r\n", {0x8B, 0x0F}, 16},
        {"abc", {0xAB, 0xC0}, 12},  // the odd last digit is a high nibble
        {"0123456789abcdefABCDEF",
         {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF, 0xAB, 0xCD, 0xEF},
         88},
        {"F", {0xF0}, 4},
        {"", {}, 0},
        {"   ", {}, 0},
    };
    for (const auto& c : cases) {
        std::int32_t sizeBits = -1;
        EXPECT_EQ(HexStringToBytes(c.hex, sizeBits), c.bytes) << c.hex;
        EXPECT_EQ(sizeBits, c.sizeBits) << c.hex;
    }
}

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

TEST(HexInput, PartialConversionKeepsTheRest) {
    std::uint8_t bytes[3] = {0x11, 0x22, 0x33};
    ZeltNavMsg::Detail::hexDigitsToBytes("ABC", bytes, 3);
    EXPECT_EQ(bytes[0], 0xAB);
    EXPECT_EQ(bytes[1], 0xC0);
    EXPECT_EQ(bytes[2], 0x33);
    ZeltNavMsg::Detail::hexDigitsToBytes("FFFFFFFF", bytes, 2);  // stops at the buffer's end
    EXPECT_EQ(bytes[1], 0xFF);
    EXPECT_EQ(bytes[2], 0x33);
}

}  // namespace
