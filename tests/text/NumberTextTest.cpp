// The number writers against the C library's printf, which defines their text: "%g" for
// writeG (rounding, ties to even, fixed or exponent form, trailing zeros), "%0*llX" for
// writeHex, "%llu" and "%lld" for writeUnsigned and writeSigned.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "legacy/GpsL1caInterface.h"
#include "legacy/QzssL1caInterface.h"
#include "text/NumberText.h"

namespace {

using ZeltNavMsg::Text::writeG;
using ZeltNavMsg::Text::writeHex;
using ZeltNavMsg::Text::writeSigned;
using ZeltNavMsg::Text::writeUnsigned;

std::string viaWriteG(double v) {
    char text[ZeltNavMsg::Text::kMaxGLength];
    return {text, writeG(text, v)};
}

std::string viaPrintf(double v) {
    char text[64];
    const int n = std::snprintf(text, sizeof text, "%g", v);
    return {text, static_cast<std::size_t>(n)};
}

#define EXPECT_LIKE_PRINTF(v)                                                       \
    do {                                                                            \
        const double value_ = (v);                                                  \
        ASSERT_EQ(viaWriteG(value_), viaPrintf(value_)) << std::hexfloat << value_; \
    } while (false)

TEST(WriteG, EdgesOfEachForm) {
    // clang-format off
    const double cases[] = {
        0.0, -0.0, 1.0, -1.0, 0.5, 10.0, 100000.0, 999999.0, 1e6, -1e6, 1234567.0,
        // The fixed form runs from 1e-4 up to 999999.5 (which rounds to 1e+06).
        1e-4, std::nextafter(1e-4, 0.0), 9.99999e-5, 9.999995e-5, 9.9999949999e-5, 999999.5,
        std::nextafter(999999.5, 0.0), std::nextafter(999999.5, 1e7), 999999.4999999, 99999.95,
        99999.949999, 0.000999999, 9.5, 99.99995,
        // Exact ties at the seventh digit round to even.
        123456.5, 123457.5, 0.1015625, 0.1171875, 1.0000005e6, 2.5e-5, 0.0078125,
        // Integers of a million and more: divided by a power of ten, up to 2^64.
        3801088.0, -5963776.0, 1250000.0, 1250001.0, 1350000.0, 9999995.0, 9999994.0,
        18446744073709549568.0, 18446744073709551616.0, 4503599627370497.0, 1e15 + 5e9,
        // Long exponents, the ends of the exact path, and what it leaves to the library.
        1e-22, 1e-21, 9.99999e-23, 1e-100, 1e100, 1.5e-300, DBL_MAX, DBL_MIN, -DBL_MIN,
        DBL_MIN / 4, std::numeric_limits<double>::denorm_min(),
        std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN(),
    };
    // clang-format on
    for (const double v : cases) {
        EXPECT_LIKE_PRINTF(v);
    }
}

// Random significands at every binary exponent the legacy tables can reach and well
// beyond, both signs; and values of few binary digits, as integer x power-of-two scales
// make them: many of them are exact ties at the seventh significant digit.
TEST(WriteG, RandomAndShortDyadicValues) {
    std::mt19937_64 random(31);
    for (int exponent = -90; exponent <= 40; ++exponent) {
        for (int i = 0; i < 1500; ++i) {
            const double significand =
                1.0 + static_cast<double>(random() >> 12) / 4503599627370496.0;  // [1, 2)
            EXPECT_LIKE_PRINTF(std::ldexp(significand, exponent));
            EXPECT_LIKE_PRINTF(-std::ldexp(significand, exponent));
        }
    }
    for (int shift = -45; shift <= 12; ++shift) {
        for (int j = 1; j < 4096; ++j) {
            EXPECT_LIKE_PRINTF(std::ldexp(j, shift));
        }
        for (int j = 1000001; j < 1000001 + 2000; j += 2) {
            EXPECT_LIKE_PRINTF(std::ldexp(j, shift));
        }
    }
}

// Every scaled entry of the LNAV tables, with the extreme and random raw values.
TEST(WriteG, ScaledTableValues) {
    std::mt19937 random(32);
    using ZeltNavMsg::Legacy::SubframeIf;
    for (const SubframeIf* signal :
         {static_cast<const SubframeIf*>(&ZeltNavMsg::Legacy::GPS_L1CA_Interface),
          static_cast<const SubframeIf*>(&ZeltNavMsg::Legacy::QZSS_L1CA_Interface)}) {
        for (const auto& field : signal->fields()) {
            if (field.valueType < 2) {
                continue;
            }
            for (const double raw : {0.0, 1.0, -1.0, 2147483647.0, -2147483648.0, 4294967295.0}) {
                EXPECT_LIKE_PRINTF(raw * field.scale);
            }
            for (int i = 0; i < 3000; ++i) {
                const auto raw = static_cast<std::int32_t>(random()) >> (random() % 32);
                EXPECT_LIKE_PRINTF(static_cast<double>(raw) * field.scale);
            }
        }
    }
}

// The digit count changes at each power of ten and the arithmetic at 2^32: both sides
// of each, and the ends of both types.
TEST(WriteInteger, EveryDigitCountAndTheEnds) {
    std::vector<std::uint64_t> values = {0, 0xFFFFFFFFU, 0x100000000U, ~std::uint64_t{0}};
    for (std::uint64_t power = 1;; power *= 10) {
        values.insert(values.end(), {power - 1, power, power + 1, 2 * power, 99 * power});
        if (power > ~std::uint64_t{0} / 10) {
            break;
        }
    }
    for (const std::uint64_t v : values) {
        char expected[32];
        char text[32];
        std::snprintf(expected, sizeof expected, "%llu", static_cast<unsigned long long>(v));
        EXPECT_EQ(std::string(text, writeUnsigned(text, v)), expected);
        for (const std::int64_t s :
             {static_cast<std::int64_t>(v), -static_cast<std::int64_t>(v >> 1)}) {
            std::snprintf(expected, sizeof expected, "%lld", static_cast<long long>(s));
            EXPECT_EQ(std::string(text, writeSigned(text, s)), expected);
        }
    }
}

TEST(WriteHex, PadsToTheDigitCountAndNeverCuts) {
    for (const std::uint64_t value :
         {std::uint64_t{0}, std::uint64_t{0xF}, std::uint64_t{0x10}, std::uint64_t{0xABC},
          std::uint64_t{0x1FFFFFFF}, std::uint64_t{0xFFFFFFFF}, ~std::uint64_t{0},
          std::uint64_t{1} << 63, std::uint64_t{0x123456789}, std::uint64_t{0xFEDCBA9876543}}) {
        for (const int digits : {1, 2, 3, 4, 5, 8, 9, 12, 16, 17, 20}) {
            char expected[32];
            const int n = std::snprintf(expected, sizeof expected, "%0*llX", digits,
                                        static_cast<unsigned long long>(value));
            char text[32];
            EXPECT_EQ(std::string(text, writeHex(text, value, digits)),
                      std::string(expected, static_cast<std::size_t>(n)))
                << value << " in " << digits;
        }
    }
}

}  // namespace
