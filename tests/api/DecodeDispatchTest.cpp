// Decode's dispatch on the format, in its fixed order of checks: digits, emptiness,
// format, length.

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "support/DecodeOutcome.h"
#include "support/RealData.h"
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

// The appending Decode is the listing Decode returns: appended after what `out` holds,
// in "\r\n" line ends or with every "\r\n" a "\n" (none of these messages has a
// carriage return of its own).
TEST(DecodeDispatch, AppendingDecodeIsTheListingInTheChosenLineEnds) {
    using ZeltNavMsg::NavMessageDecoder;
    for (const SupportedFormat& f : kSupportedFormats) {
        for (const RealMessage& m : loadRealData(f.realDataFile)) {
            std::string expected = NavMessageDecoder::Decode(f.format, m.subframe, m.page, m.hex);
            std::string crlf = "kept";
            NavMessageDecoder::Decode(f.format, m.subframe, m.page, m.hex, crlf);
            ASSERT_EQ(crlf, "kept" + expected) << m.where;
            for (std::size_t at = expected.find("\r\n"); at != std::string::npos;
                 at = expected.find("\r\n", at)) {
                expected.erase(at, 1);
            }
            std::string lf = "kept";
            NavMessageDecoder::Decode(f.format, m.subframe, m.page, m.hex, lf, "\n");
            ASSERT_EQ(lf, "kept" + expected) << m.where;
        }
    }
}

TEST(DecodeDispatch, AppendingDecodeLeavesItsStringAsItWasOnAnError) {
    using ZeltNavMsg::NavMessageDecoder;
    const SupportedFormat& f = kSupportedFormats[0];
    const struct {
        std::string_view hex;
        std::string_view lineEnd;
        Kind kind;
    } cases[] = {
        {f.sampleHex, "\r", Kind::OtherError},  // std::invalid_argument
        {f.sampleHex, "", Kind::OtherError},
        {"", "\n", Kind::OutOfRange},
        {"0g", "\n", Kind::DecodingError},
    };
    for (const auto& c : cases) {
        std::string out = "kept";
        const DecodeOutcome outcome = Detail::outcomeOf(c.hex, [&](std::string_view input) {
            NavMessageDecoder::Decode(f.format, f.subframe, f.page, input, out, c.lineEnd);
            return std::string();
        });
        EXPECT_EQ(outcome.kind, c.kind) << c.hex << " " << c.lineEnd.size();
        EXPECT_EQ(out, "kept");
    }
}

}  // namespace
