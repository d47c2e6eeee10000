// Decode's dispatch on the format, in its fixed order of checks: digits, emptiness,
// format, length.

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "support/DecodeOutcome.h"
#include "support/SupportedFormats.h"

namespace {

using namespace ZeltNavMsg::Testing;
using ZeltNavMsg::MessageFormat;
using Kind = DecodeOutcome::Kind;

const DecodeOutcome kNotSupported = {Kind::DecodingError,
                                     "Decoding is not supported yet for this message format"};

TEST(DecodeDispatch, ValuesOutsideTheEnumerationAreRefusedAfterTheDigits) {
    const std::string sample(kSupportedFormats[0].sampleHex);
    for (const std::int32_t value : {-1, 13, 14, 255, INT32_MIN, INT32_MAX}) {
        const auto format = static_cast<MessageFormat>(value);
        EXPECT_EQ(decodeOutcome(format, 1, 0, sample), kNotSupported) << value;
        EXPECT_EQ(decodeOutcome(format, 1, 0, sample + std::string(1 << 20, '0')), kNotSupported);
        EXPECT_EQ(decodeOutcome(format, 1, 0, " \t"),
                  (DecodeOutcome{Kind::OutOfRange, "Decode: hex string is empty"}));
        EXPECT_EQ(decodeOutcome(format, 1, 0, sample + "z"),
                  (DecodeOutcome{Kind::DecodingError, "Can't parse symbol as hex digit: z"}));
    }
}

// A format that decodes must have its row in kSupportedFormats, or none of the
// hostile-input tests, the many-threads test or the fuzz target would cover it.
TEST(DecodeDispatch, EveryFormatThatDecodesIsInTheTable) {
    for (std::int32_t value = 0; value <= 12; ++value) {
        const auto format = static_cast<MessageFormat>(value);
        const DecodeOutcome outcome = decodeOutcome(format, 1, 0, std::string(76, '0'));
        if (findSupported(format) != nullptr) {
            EXPECT_EQ(outcome.kind, Kind::Text) << value << ": " << outcome;
        } else {
            EXPECT_EQ(outcome, kNotSupported)
                << "format " << value << " decodes: add its row to kSupportedFormats";
        }
    }
}

}  // namespace
