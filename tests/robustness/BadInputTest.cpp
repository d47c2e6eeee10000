// Hostile input for every supported format: the documented listing or the documented
// error. Expected listings come from relations the decoding rules imply (short input
// reads as if zero-padded, bits past the frame change nothing, an unknown subframe
// prints only the common words), checked against the same real message decoded whole.

#include <gtest/gtest.h>

#include <cctype>
#include <climits>
#include <cstdint>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "support/DecodeOutcome.h"
#include "support/SupportedFormats.h"

namespace {

using namespace ZeltNavMsg::Testing;
using Kind = DecodeOutcome::Kind;

const std::string kBadDigit = "Can't parse symbol as hex digit: ";
const std::string kEmpty = "Decode: hex string is empty";
const std::string kTooLong = "Decode: subframe data is longer than 38 bytes";
constexpr std::size_t kMegabyte = std::size_t{1} << 20;

class BadInput : public testing::TestWithParam<SupportedFormat> {
  protected:
    [[nodiscard]] const SupportedFormat& format() const { return GetParam(); }
    [[nodiscard]] std::string sample() const { return std::string(GetParam().sampleHex); }
    [[nodiscard]] bool isSubframe() const { return GetParam().road == Road::Subframe; }

    [[nodiscard]] DecodeOutcome decode(std::string_view hex) const {
        return decode(format().subframe, format().page, hex);
    }
    [[nodiscard]] DecodeOutcome decode(std::int32_t subframe, std::int32_t page,
                                       std::string_view hex) const {
        return decodeOutcome(format().format, subframe, page, hex);
    }
};

// The word writer's report for each word of a subframe that ends past the bits given,
// decoded as subframe 0 (layout 0): word k (bits 30k-29 ... 30k) fits when 30k <= 4 * digits.
std::string wordReports(std::size_t digits) {
    std::ostringstream text;
    for (std::size_t k = 1; k <= 10; ++k) {
        if (30 * k > 4 * digits) {
            text << "The data does not fit in the subframe 0: data " << 30 * k + 1 << ", sf-length "
                 << 4 * digits + 1 << ".\n";
        }
    }
    return text.str();
}

TEST_P(BadInput, EmptyOrWhiteSpaceOnlyIsOutOfRange) {
    const DecodeOutcome empty = DecodeOutcome{Kind::OutOfRange, kEmpty};
    for (const std::string hex : {"", " ", "\t", "\r\n", " \t\n\v\f\r "}) {
        EXPECT_EQ(decode(hex), empty) << testing::PrintToString(hex);
        EXPECT_EQ(decode(0, 0, hex), empty);
        EXPECT_EQ(decode(INT32_MIN, INT32_MAX, hex), empty);
    }
}

TEST_P(BadInput, FirstCharacterThatIsNoHexDigitIsNamed) {
    const std::string s = sample();
    const std::size_t mid = s.size() / 2;
    const auto inserted = [&](const std::string& bad) {
        return s.substr(0, mid) + bad + s.substr(mid);
    };
    const auto replaced = [&](std::size_t i, const std::string& by) {
        return std::string(s).replace(i, 1, by);
    };
    struct Case {
        const char* what;
        std::string hex;
        std::string named;
    };
    const Case cases[] = {
        {"at the start", replaced(0, "g"), "g"},
        {"in the middle", replaced(mid, "x"), "x"},
        {"at the end", replaced(s.size() - 1, "G"), "G"},
        {"0x prefix", "0x" + s, "x"},
        {"sign", "-" + s, "-"},
        {"inner blank", inserted(" "), " "},
        {"inner tab", inserted("\t"), "\t"},
        {"inner line feed", inserted("\n"), "\n"},
        {"first of two", inserted("zq"), "z"},
        {"two-byte character", inserted("\xC3\xA9"), "\xC3\xA9"},
        {"three-byte character", inserted("\xE2\x82\xAC"), "\xE2\x82\xAC"},
        {"four-byte character", inserted("\xF0\x9F\x9B\xB0"), "\xF0\x9F\x9B\xB0"},
        {"no-break space is not trimmed", "\xC2\xA0" + s, "\xC2\xA0"},
        {"byte that starts no character", inserted("\xFF"), "\xFF"},
        {"cut multi-byte sequence", inserted("\xE2\x82"), "\xE2"},
        {"bad character at the very end", s + "\xC3", "\xC3"},
        {"after a megabyte of digits", s + std::string(kMegabyte, 'a') + "!", "!"},
        // what() is a C string: a NUL character ends it.
        {"NUL byte", inserted(std::string(1, '\0')), ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(decode(c.hex), (DecodeOutcome{Kind::DecodingError, kBadDigit + c.named}))
            << c.what;
    }
    // Digits are checked before anything looks at subframe and page.
    EXPECT_EQ(decode(INT32_MIN, -1, cases[0].hex), decode(cases[0].hex));
}

TEST_P(BadInput, SurroundingWhiteSpaceAndLetterCaseChangeNothing) {
    const DecodeOutcome whole = decode(sample());
    ASSERT_EQ(whole.kind, Kind::Text) << whole;
    EXPECT_EQ(decode(" \t\r\n\v\f" + sample() + "\r\n \t"), whole);
    std::string upper = sample();
    for (char& c : upper) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    EXPECT_EQ(decode(upper), whole);
}

// One digit, 15 digits (odd counts, far too short) and, for frames, a cut in the middle
// and one digit short read as the same bits padded with zeros. A subframe word that does
// not fit is left as received (and reported, on standard error only, naming the layout
// and the lengths) while the padded one is decoded, so the subframe cuts are where
// decoding leaves padded words alone: "8" sets only the first bit; the 15 digits end with
// a whole word whose last bit is 0, after which a zero word stays zero (LNAV inverts only
// after a 1, BCH keeps a zero codeword).
TEST_P(BadInput, ShortInputReadsAsZeroPadded) {
    // 15 digits are 60 bits, two whole subframe words; bit 60 is cleared.
    std::string tenth = sample().substr(0, 15);
    tenth.back() = "0123456789ABCDEF"[std::stoi(tenth.substr(14), nullptr, 16) & ~1];
    std::vector<std::string> cuts = {"8", tenth};
    if (!isSubframe()) {
        cuts.push_back(sample().substr(0, 38));
        cuts.push_back(sample().substr(0, sample().size() - 1));
    }
    for (const std::string& cut : cuts) {
        testing::internal::CaptureStderr();
        const DecodeOutcome padded =
            decode(0, 0, cut + std::string(sample().size() - cut.size(), '0'));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << cut;
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const DecodeOutcome outcome = decode(0, 0, cut);
        const std::string err = testing::internal::GetCapturedStderr();
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "") << cut;
        ASSERT_EQ(outcome.kind, Kind::Text) << cut << ": " << outcome;
        EXPECT_EQ(outcome, padded) << cut;
        EXPECT_EQ(err, isSubframe() ? wordReports(cut.size()) : "") << cut;
    }
}

TEST_P(BadInput, LongerThanTheFrame) {
    const DecodeOutcome whole = decode(sample());
    ASSERT_EQ(whole.kind, Kind::Text) << whole;
    if (isSubframe()) {
        ASSERT_EQ(sample().size(), 75U);
        // 38 bytes fit the record, the four bits after the subframe change nothing.
        EXPECT_EQ(decode(sample() + "F"), whole);
        const DecodeOutcome tooLong = DecodeOutcome{Kind::LengthError, kTooLong};
        EXPECT_EQ(decode(sample() + "F0"), tooLong);
        EXPECT_EQ(decode(std::string(77, '0')), tooLong);
        EXPECT_EQ(decode(sample() + std::string(kMegabyte, 'F')), tooLong);
        EXPECT_EQ(decode(INT32_MAX, INT32_MIN, std::string(kMegabyte, '0')), tooLong);
    } else {
        ASSERT_GE(4 * sample().size(), static_cast<std::size_t>(format().frameBits));
        EXPECT_EQ(decode(sample() + "F"), whole);
        EXPECT_EQ(decode(sample() + std::string(kMegabyte, 'F')), whole);
        EXPECT_EQ(decode(sample() + std::string(kMegabyte - 1, '0')), whole);
    }
}

// Frames find their variant from their own bits and ignore both numbers. For subframes
// a page outside every table acts like no page, and a positive one is printed; a subframe
// number that no table knows prints the words and fields every subframe has, whatever
// the page (not subframe 0: it selects the entries filed under subframe 0, such as
// LNAV's almanac).
TEST_P(BadInput, NumbersOutsideEveryTable) {
    const DecodeOutcome whole = decode(sample());
    ASSERT_EQ(whole.kind, Kind::Text) << whole;
    if (!isSubframe()) {
        for (const auto& [subframe, page] :
             {std::pair{0, 0}, {-1, -1}, {INT32_MIN, INT32_MAX}, {INT32_MAX, INT32_MIN}, {5, 25}}) {
            EXPECT_EQ(decode(subframe, page, sample()), whole) << subframe << " " << page;
        }
        return;
    }
    const std::string header = "Subframe: " + std::to_string(format().subframe);
    const std::string noPage = decode(format().subframe, 0, sample()).text;
    ASSERT_TRUE(noPage.starts_with(header + "\r\n")) << noPage;
    EXPECT_EQ(decode(format().subframe, -1, sample()).text, noPage);
    EXPECT_EQ(decode(format().subframe, INT32_MIN, sample()).text, noPage);
    EXPECT_EQ(decode(format().subframe, INT32_MAX, sample()).text,
              header + " Page: 2147483647" + noPage.substr(header.size()));
    const std::string common = decode(-1, 0, sample()).text;
    ASSERT_TRUE(common.starts_with("Subframe: -1\r\n")) << common;
    EXPECT_NE(common.substr(12), noPage.substr(header.size()));
    for (const auto& [subframe, page, heading] :
         {std::tuple{6, 3, "Subframe: 6 Page: 3"},
          {INT32_MIN, INT32_MIN, "Subframe: -2147483648"},
          {INT32_MAX, INT32_MAX, "Subframe: 2147483647 Page: 2147483647"}}) {
        EXPECT_EQ(decode(subframe, page, sample()).text, heading + common.substr(12)) << heading;
    }
}

}  // namespace

namespace ZeltNavMsg::Testing {
// Test names and failure messages show the format's name.
void PrintTo(const SupportedFormat& row, std::ostream* out) {
    *out << row.name;
}
}  // namespace ZeltNavMsg::Testing

namespace {

INSTANTIATE_TEST_SUITE_P(EveryFormat, BadInput, testing::ValuesIn(kSupportedFormats),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
