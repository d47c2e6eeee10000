// Hex text to bytes: trimming, digit checks, odd lengths.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "api/HexInput.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::DecodingError;
using ZeltNavMsg::Detail::HexStringToBytes;

struct BytesCase {
    std::string hex;
    std::vector<std::uint8_t> bytes;
    std::int32_t sizeBits;
};

TEST(HexInput, ParsesDigits) {
    const BytesCase cases[] = {
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
    for (const BytesCase& c : cases) {
        std::int32_t sizeBits = -1;
        EXPECT_EQ(HexStringToBytes(c.hex, sizeBits), c.bytes) << c.hex;
        EXPECT_EQ(sizeBits, c.sizeBits) << c.hex;
    }
}

struct BadCase {
    std::string hex;
    std::string message;
};

TEST(HexInput, NamesTheFirstBadCharacter) {
    const BadCase cases[] = {
        {"8B 0F", "Can't parse symbol as hex digit:  "},
        {"0x8B", "Can't parse symbol as hex digit: x"},
        {"zz", "Can't parse symbol as hex digit: z"},
        {"12g4h", "Can't parse symbol as hex digit: g"},
        {"-1", "Can't parse symbol as hex digit: -"},
        {"AB\xC3\xA9", "Can't parse symbol as hex digit: \xC3\xA9"},  // a whole UTF-8 character
        {"AB\xE2\x82\xAC!", "Can't parse symbol as hex digit: \xE2\x82\xAC"},
        {"AB\xFF\xFE", "Can't parse symbol as hex digit: \xFF"},  // no character: one byte
        {"AB\xC3", "Can't parse symbol as hex digit: \xC3"},      // cut-off sequence
        {"12\t34", "Can't parse symbol as hex digit: \t"},
        {"\xA0"
         "12",
         "Can't parse symbol as hex digit: \xA0"},  // not ASCII white space
    };
    for (const BadCase& c : cases) {
        std::int32_t sizeBits = 0;
        try {
            (void)HexStringToBytes(c.hex, sizeBits);
            ADD_FAILURE() << "no error for " << c.hex;
        } catch (const DecodingError& e) {
            EXPECT_EQ(std::string(e.what()), c.message);
        }
    }
}

TEST(HexInput, NulByteIsABadCharacter) {
    const std::string hex(
        "12\0"
        "34",
        5);
    std::int32_t sizeBits = 0;
    EXPECT_THROW((void)HexStringToBytes(hex, sizeBits), DecodingError);
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
