// The legacy listing, printed from a plan digested at compile time, against the plain
// snprintf listing (bench/baseline/NaiveLegacyListing): for every real message, random
// bits under every subframe and page, short records, and the unusual entries that the
// built-in tables do not have. Entry selection, the text page's characters (NUL and
// line feed included) and the passes follow from these.

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

#include "api/HexInput.h"
#include "baseline/NaiveLegacyListing.h"
#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/ListingPlan.h"
#include "legacy/QzssL1caInterface.h"
#include "legacy/SubframeCoderGpsLNav.h"
#include "support/RealData.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Baseline::naiveLegacyListing;
using namespace ZeltNavMsg::Legacy;

struct Signal {
    MessageFormat format;
    const SubframeIf* table;
    const char* dataFile;
};
const Signal kSignals[] = {
    {MessageFormat::GpsLNav, &GPS_L1CA_Interface, "gps_lnav.tsv"},
    {MessageFormat::QzssLNav, &QZSS_L1CA_Interface, "qzss_lnav.tsv"},
    {MessageFormat::BeidouD1, &BEIDOU_D1_Interface, "beidou_d1.tsv"},
    {MessageFormat::BeidouD2, &BEIDOU_D2_Interface, "beidou_d2.tsv"},
};

std::string randomHex(std::mt19937& random, std::size_t digits) {
    std::string hex;
    for (std::size_t i = 0; i < digits; ++i) {
        hex += "0123456789ABCDEF"[random() % 16];
    }
    return hex;
}

// Real messages under their own page and others (the page decides the layout), random
// bits under every subframe and page of every layout map, and records of every length:
// fewer than 75 digits leave words that the decoder cannot write back (reported on
// standard error) and fields that read zeros; 76 digits carry four bits past word 10.
TEST(ListingPlan, RealRandomShortAndLongSubframes) {
    std::mt19937 random(21);
    const auto expectPlain = [](const Signal& signal, std::int32_t subframe, std::int32_t page,
                                const std::string& hex) {
        ASSERT_EQ(NavMessageDecoder::Decode(signal.format, subframe, page, hex),
                  naiveLegacyListing(*signal.table, subframe, page, hex))
            << "subframe " << subframe << " page " << page << " " << hex;
    };
    testing::internal::CaptureStderr();
    for (const Signal& signal : kSignals) {
        for (const auto& m : ZeltNavMsg::Testing::loadRealData(signal.dataFile)) {
            for (const std::int32_t page : {m.page, 0, 13, 17, 18, 25, 35, 101}) {
                expectPlain(signal, m.subframe, page, m.hex);
            }
        }
        for (std::int32_t subframe = -1; subframe <= 6; ++subframe) {
            for (std::int32_t page = -1; page <= 122; ++page) {
                expectPlain(signal, subframe, page, randomHex(random, 75));
            }
        }
        for (std::size_t digits = 1; digits <= 76; ++digits) {
            for (const std::int32_t subframe : {1, 2, 3, 4, 5}) {
                expectPlain(signal, subframe, 17, randomHex(random, digits));
            }
        }
    }
    (void)testing::internal::GetCapturedStderr();
}

// clang-format off
// Entries the built-in tables do not have: names wider than 20 and than the 63
// characters a piece may hold, units too long to be copied in one block, fields wider
// than 32 bits and than 240 (66 hex digits, cut at 63 characters), a width that counts segments
// past the segment count, segments before bit 1 and after the data, signed 32-bit and
// 1-bit fields, and each flag. Layout 5 is that of subframe 4 below; the quoted
// characters print in the raw pass, from the bits as given.
constexpr std::array<SubframeFieldInfo, 20> kOddFields = {
    field("short", {{1, 8}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x4, 1),
    field("a_name_of_exactly_20", {{9, 12}}, kSigned, 0.0, "u", 0, 0, 0, 0x0, 0),
    field("a_name_longer_than_twenty_columns", {{21, 7}}, kSigned, 0.0, nullptr, 0, 0, 0, 0x0, 2),
    field("a_name_so_long_that_the_sixty_four_byte_piece_cuts_off_its_colon_and_tail",
          {{28, 3}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 2),
    field("long_units", {{31, 16}}, kSignedScaled, 0.001,
          "units-with-a-text-well-past-thirty-two-characters", 0, 0, 0, 0x0, 2),
    field("units_31", {{47, 5}}, kUnsigned, 0.0, "units-of-exactly-31-characters!", 0, 0, 0, 0x0, 2),
    field("wide_40", {{61, 40}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 3),
    field("two_words", {{91, 30}, {121, 30}}, kUnsignedScaled, 0.5, "x", 0, 0, 0, 0x0, 3),
    field("signed_32", {{151, 32}}, kSigned, 0.0, nullptr, 0, 0, 0, 0x0, 3),
    field("signed_32_scaled", {{151, 32}}, kSignedScaled, 1e-9, nullptr, 0, 0, 0, 0x0, 3),
    field("wider_than_240", {{1, 38}, {33, 32}, {65, 32}, {97, 32}, {129, 32}, {161, 32},
                             {193, 32}, {225, 32}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 3),
    field("before_bit_1", {{-20, 6}, {183, 6}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 3),
    field("after_the_data", {{297, 12}, {400, 4}}, kUnsigned, 0.0, nullptr, 0, 0, 0, 0x0, 3),
    field("one_bit_signed", {{189, 1}}, kSigned, 0.0, nullptr, 0, 0, 0, 0x8, 3),
    field("no_hex", {{190, 9}}, kSigned, 0.0, nullptr, 0, 0, 0, 0x10, 3),
    field("value_if_one_bit", {{199, 9}}, kSigned, 0.0, nullptr, 0, 0, 0, 0x8, 3),
    field("character_no_number", {{209, 8}}, kUnsigned, 0.0, nullptr, 5, 4, 9, 0x4c, 4),
    field("character_too_wide", {{217, 9}}, kUnsigned, 0.0, nullptr, 5, 4, 9, 0x44, 4),
    field("never", {{226, 9}}, kUnsigned, 0.0, nullptr, 5, 4, 9, 0x22, 4),
    field("other_subframe", {{235, 9}}, kUnsigned, 0.0, nullptr, 6, 3, 0, 0x0, 4),
};
// clang-format on

// A width that counts a segment past the segment count: 8 bits read, width 4.
constexpr std::array<SubframeFieldInfo, 21> withNarrowedWidth() {
    std::array<SubframeFieldInfo, 21> table{};
    for (std::size_t i = 0; i < kOddFields.size(); ++i) {
        table[i] = kOddFields[i];
    }
    table[20] = field("width_not_read", {{244, 8}}, kSigned, 0.0, nullptr, 0, 0, 0, 0x0, 4);
    table[20].segmentLength[1] = -4;
    return table;
}
constexpr std::array<SubframeFieldInfo, 21> kOddTable = withNarrowedWidth();
constexpr auto kOddPlan = planListing(kOddTable);
constinit const ListingPlan kOddListing = kOddPlan.plan();

// clang-format off
// A raw pass only for subframe 1, a decoded pass only for subframe 2, none for 3.
constexpr std::array<SubframeFieldInfo, 2> kPassTable = {
    field("raw_word", {{1, 30}}, kUnsigned, 0.0, nullptr, 8, 1, 0, 0xd, 1),
    field("decoded", {{1, 8}}, kUnsigned, 0.0, nullptr, 9, 2, 0, 0x0, 0),
};
// clang-format on
constexpr auto kPassPlan = planListing(kPassTable);
constinit const ListingPlan kPassListing = kPassPlan.plan();

// An interface over a test table: layout 5 for subframe 4, else 0.
class TestInterface final : public SubframeIf {
  public:
    template <std::size_t N>
    constexpr TestInterface(const std::array<SubframeFieldInfo, N>& table, const ListingPlan* plan)
        : SubframeIf(table.data(), static_cast<std::int32_t>(N), plan) {}
    [[nodiscard]] std::int32_t GetLayoutId(const subframe_t& sf) const override {
        return sf.subframe == 4 ? 5 : 0;
    }
    [[nodiscard]] const SubframeCoder& GetCoder() const override { return coder_; }

  private:
    SubframeCoderGpsLNav coder_{0};
};

std::string describeToString(const SubframeIf& signal, std::int32_t subframe, std::int32_t page,
                             const std::string& hex) {
    subframe_t sf;
    sf.subframe = subframe;
    sf.page = page;
    sf.layoutId = signal.GetLayoutId(sf);
    sf.bitCount = static_cast<std::int32_t>(hex.size() * 4);
    ZeltNavMsg::Detail::hexDigitsToBytes(hex, sf.data, sizeof sf.data);
    ZeltNavMsg::Text::TextBuffer text("\r\n");
    signal.describe(text, sf, SubframeIf::DecodingMode::DecodeWords);
    return text.str();
}

// The unusual entries, and passes of which one or both print nothing (the empty line
// between them only when both print), with and without a plan.
TEST(ListingPlan, UnusualTablesPrintAsWithoutPlan) {
    const TestInterface odd(kOddTable, &kOddListing);
    const TestInterface oddUnplanned(kOddTable, nullptr);
    const TestInterface passes(kPassTable, &kPassListing);
    const TestInterface passesUnplanned(kPassTable, nullptr);
    std::mt19937 random(23);
    for (int trial = 0; trial < 300; ++trial) {
        std::string hex = randomHex(random, 76);
        if (trial % 3 == 0) {  // the quoted characters: a NUL, then a line feed
            hex.replace(52, 2, trial % 2 == 0 ? "00" : "0A");
        }
        for (const std::int32_t subframe : {1, 2, 3, 4}) {
            for (const TestInterface* table : {&odd, &oddUnplanned, &passes, &passesUnplanned}) {
                ASSERT_EQ(describeToString(*table, subframe, 0, hex),
                          naiveLegacyListing(*table, subframe, 0, hex))
                    << (table == &odd || table == &passes ? "planned" : "unplanned")
                    << ", subframe " << subframe << " " << hex;
            }
        }
    }
}

}  // namespace
