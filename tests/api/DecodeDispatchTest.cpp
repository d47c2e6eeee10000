// The order of Decode's checks, its refusals, and the shape of what it returns.

#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>
#include <string>

#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::DecodingError;
using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;

// A GPS subframe 1 as broadcast (G04, parity as received).
const std::string kGpsSubframe1 =
    "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0";

template <typename Error>
std::string messageOf(MessageFormat format, const std::string& hex) {
    try {
        (void)NavMessageDecoder::Decode(format, 1, 0, hex);
    } catch (const Error& e) {
        return e.what();
    }
    return "<no error>";
}

const MessageFormat kUnsupported[] = {
    MessageFormat::CNav,
    MessageFormat::GlonassFdma,
    MessageFormat::GalileoINav,
    MessageFormat::GalileoFNav,
    MessageFormat::Sbas,
    static_cast<MessageFormat>(13),
    static_cast<MessageFormat>(-1),
    static_cast<MessageFormat>(INT_MAX),
    static_cast<MessageFormat>(INT_MIN),
};

TEST(DecodeDispatch, UnsupportedFormatsAreRefused) {
    for (const MessageFormat format : kUnsupported) {
        EXPECT_EQ(messageOf<DecodingError>(format, "00"),
                  "Decoding is not supported yet for this message format")
            << static_cast<int>(format);
    }
}

TEST(DecodeDispatch, BadDigitIsReportedBeforeTheFormat) {
    EXPECT_EQ(messageOf<DecodingError>(MessageFormat::CNav, "zz"),
              "Can't parse symbol as hex digit: z");
    EXPECT_EQ(messageOf<DecodingError>(static_cast<MessageFormat>(99), "0g"),
              "Can't parse symbol as hex digit: g");
    // ... and before the length of a legacy subframe.
    EXPECT_EQ(messageOf<DecodingError>(MessageFormat::GpsLNav, std::string(100, '0') + "x"),
              "Can't parse symbol as hex digit: x");
}

TEST(DecodeDispatch, EmptyInputIsOutOfRangeBeforeTheFormat) {
    for (const char* hex : {"", " ", "\t\r\n", "  \v\f  "}) {
        for (const MessageFormat format :
             {MessageFormat::GpsLNav, MessageFormat::CNav, static_cast<MessageFormat>(-7)}) {
            EXPECT_EQ(messageOf<std::out_of_range>(format, hex), "Decode: hex string is empty");
        }
    }
}

// 38 bytes fit the subframe record: 76 digits decode, 77 do not.
TEST(DecodeDispatch, LegacySubframesTakeAtMost38Bytes) {
    for (const MessageFormat format : {MessageFormat::GpsLNav, MessageFormat::QzssLNav}) {
        const std::string text76 = NavMessageDecoder::Decode(format, 1, 0, kGpsSubframe1 + "F");
        EXPECT_EQ(text76, NavMessageDecoder::Decode(format, 1, 0, kGpsSubframe1));
        for (const std::string& hex :
             {kGpsSubframe1 + "F0", kGpsSubframe1 + std::string(1 << 20, '0')}) {
            EXPECT_EQ(messageOf<std::length_error>(format, hex),
                      "Decode: subframe data is longer than 38 bytes");
        }
    }
    // Surrounding white space does not count.
    EXPECT_NO_THROW((void)NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0,
                                                    "  " + kGpsSubframe1 + "F \r\n"));
}

TEST(DecodeDispatch, LinesEndWithCrLf) {
    for (const MessageFormat format : {MessageFormat::GpsLNav, MessageFormat::QzssLNav}) {
        const std::string text = NavMessageDecoder::Decode(format, 3, 0, kGpsSubframe1);
        ASSERT_TRUE(text.ends_with("\r\n"));
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\n') {
                ASSERT_GT(i, 0U);
                EXPECT_EQ(text[i - 1], '\r') << "bare line feed at " << i;
            }
        }
    }
}

TEST(DecodeDispatch, CaseOfDigitsDoesNotMatter) {
    std::string upper = kGpsSubframe1;
    for (char& c : upper) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    EXPECT_EQ(NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0, upper),
              NavMessageDecoder::Decode(MessageFormat::GpsLNav, 1, 0, kGpsSubframe1));
}

}  // namespace
