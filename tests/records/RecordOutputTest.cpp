// JSON records read back through a real parser give the records exactly: keys in
// place, every number the same double, raw hex the same bits, any broadcast byte of a
// text message a valid string.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>
#include <cmath>
#include <random>
#include <string>

#include "records/LayoutCases.h"
#include "support/RealData.h"
#include "support/SupportedFormats.h"
#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/RecordOutput.h"

namespace ZeltNavMsg {
namespace {

using nlohmann::json;

// Empty when `text` is `m` as a JSON record; else the first difference.
std::string jsonMismatch(const DecodedMessage& m, const std::string& text, bool allFields) {
    if (text.empty() || text.back() != '\n' || text.find('\n') != text.size() - 1) {
        return "not one line";
    }
    const json j = json::parse(text);
    const std::vector<std::string> keys = {"line",   "sat",    "format", "subframe", "page",
                                           "layout", "fields", "checks", "ok"};
    std::vector<std::string> got;
    for (auto it = j.begin(); it != j.end(); ++it) {
        got.push_back(it.key());
    }
    std::sort(got.begin(), got.end());
    std::vector<std::string> want = keys;
    std::sort(want.begin(), want.end());
    if (got != want) {
        return "keys differ";
    }
    if (j["format"] != MessageFormatName(m.format()) || j["layout"] != m.layout() ||
        j["subframe"] != m.subframe() || j["page"] != m.page() || j["ok"] != m.ok()) {
        return "message keys differ";
    }
    std::size_t i = 0;
    for (const DecodedField& f : m.fields()) {
        if (!allFields && f.role() != FieldRole::Data) {
            continue;
        }
        const json& jf = j["fields"].at(i++);
        if (jf["path"] != f.path() || jf["name"] != f.name() || jf["units"] != f.units()) {
            return "names of " + std::string(f.path());
        }
        if (f.kind() == ValueKind::Character) {
            const std::string s = jf["value"];
            // One code point: the byte as Latin-1, UTF-8 encoded by the parser.
            const std::u32string expected(1, static_cast<char32_t>(f.raw() & 0xFF));
            std::u32string decoded;
            for (std::size_t k = 0; k < s.size(); ++k) {
                const auto c = static_cast<unsigned char>(s[k]);
                decoded +=
                    c < 0x80 ? c
                             : static_cast<char32_t>(((c & 0x1FU) << 6) |
                                                     (static_cast<unsigned char>(s[++k]) & 0x3FU));
            }
            if (decoded != expected) {
                return "character of " + std::string(f.path());
            }
        } else if (jf["value"].get<double>() != f.value()) {
            return "value of " + std::string(f.path());
        }
        if (std::stoull(jf["raw"].get<std::string>(), nullptr, 16) != f.raw() ||
            jf["raw"].get<std::string>().size() !=
                static_cast<std::size_t>((f.bitCount() + 3) / 4)) {
            return "raw of " + std::string(f.path());
        }
        const json& bits = jf["bits"];
        if (bits.size() != f.bits().size()) {
            return "bits of " + std::string(f.path());
        }
        for (std::size_t b = 0; b < bits.size(); ++b) {
            if (bits[b][0] != f.bits()[b].first || bits[b][1] != f.bits()[b].count) {
                return "bits of " + std::string(f.path());
            }
        }
    }
    if (i != j["fields"].size()) {
        return "field count";
    }
    if (j["checks"].size() != m.checks().size()) {
        return "check count";
    }
    for (std::size_t c = 0; c < m.checks().size(); ++c) {
        const CheckResult& check = m.checks()[c];
        const json& jc = j["checks"][c];
        if (jc["name"] != check.name || jc["ok"] != check.ok() ||
            jc.contains("incomplete") != (check.status == CheckStatus::Incomplete) ||
            std::stoul(jc["computed"].get<std::string>(), nullptr, 16) != check.computed ||
            std::stoul(jc["received"].get<std::string>(), nullptr, 16) != check.received ||
            jc["bits"].size() != check.bits.size()) {
            return "check " + std::string(check.name);
        }
        for (std::size_t b = 0; b < check.bits.size(); ++b) {
            if (jc["bits"][b][0] != check.bits[b].first ||
                jc["bits"][b][1] != check.bits[b].count) {
                return "bits of check " + std::string(check.name);
            }
        }
    }
    return "";
}

TEST(RecordOutput, JsonReadsBackAsTheRecords) {
    std::vector<Testing::LayoutCase> cases;
    for (const Testing::SupportedFormat& f : Testing::kSupportedFormats) {
        for (const Testing::RealMessage& r : Testing::loadRealData(f.realDataFile)) {
            cases.push_back({f.format, r.subframe, r.page, r.hex, f.frameBits});
            // Cut short: the checks the digits do not cover are incomplete.
            cases.push_back(
                {f.format, r.subframe, r.page, r.hex.substr(0, r.hex.size() / 2), f.frameBits});
        }
    }
    // Random text pages carry every kind of byte, quotes, backslashes and NULs among them.
    std::mt19937 rng(5);
    for (Testing::LayoutCase& c : Testing::layoutCases(&rng)) {
        cases.push_back(std::move(c));
    }
    std::string line;
    RecordContext context;
    context.line = 7;
    context.sat = "G\"05\\";
    for (const Testing::LayoutCase& c : cases) {
        const DecodedMessage m =
            NavMessageDecoder::DecodeFields(c.format, c.subframe, c.page, c.hex);
        for (const bool all : {false, true}) {
            line.clear();
            RecordOptions options;
            options.allFields = all;
            AppendJsonRecord(line, m, context, options);
            EXPECT_EQ(jsonMismatch(m, line, all), "") << m.layout() << ": " << line.substr(0, 300);
        }
    }
}

// Strings are copied eight bytes at a time up to a byte that needs an escape: each such
// byte at every position of texts of several lengths, and one byte on each side of the
// ranges.
TEST(RecordOutput, EveryEscapeAtEveryPositionOfALongString) {
    const DecodedMessage m =
        NavMessageDecoder::DecodeFields(MessageFormat::Irnss, 0, 0, std::string(73, '0'));
    const struct {
        char byte;
        const char* parsed;  // what a parser gives back: Latin-1 above 0x7F
    } bytes[] = {{'"', "\""},      {'\\', "\\"},         {'\n', "\n"},
                 {'\x01', "\x01"}, {'\x1F', "\x1F"},     {' ', " "},
                 {'\x7F', "\x7F"}, {'\x80', "\xC2\x80"}, {'\xE9', "\xC3\xA9"}};
    // Lengths around the eight-byte blocks, the last of which overlaps the one before.
    for (const std::size_t length : {1U, 7U, 8U, 9U, 15U, 16U, 17U, 20U}) {
        for (const auto& b : bytes) {
            for (std::size_t at = 0; at < length; ++at) {
                std::string sat(length, 'G');
                sat[at] = b.byte;
                RecordContext context;
                context.sat = sat;
                std::string line;
                AppendJsonRecord(line, m, context);
                std::string expected(length, 'G');
                expected.replace(at, 1, b.parsed);
                const std::string parsed = json::parse(line)["sat"].get<std::string>();
                EXPECT_EQ(parsed, expected)
                    << static_cast<int>(b.byte) << " at " << at << " of " << length;
            }
        }
    }
}

// Integers and numbers of up to three decimals take shortcuts; they must write what
// std::to_chars writes, around every switch between the digits and the exponent form,
// at the edges of the decimal range and next to its doubles.
TEST(RecordOutput, NumbersAreWhatToCharsWrites) {
    std::vector<double> values = {0.0,
                                  -0.0,
                                  0.5,
                                  1e-300,
                                  1e300,
                                  9007199254740992.0,
                                  9007199254740993.0,
                                  -9007199254740991.0,
                                  123456789012345678.0};
    for (double base = 1; base < 1e16; base *= 10) {
        for (const double v : {base, base * 3, base + 1, base * 12, base * 120 + 1}) {
            values.push_back(v);
            values.push_back(-v);
        }
    }
    std::mt19937_64 random(7);
    for (std::size_t i = 0; i < 4000; ++i) {
        const auto m = static_cast<std::int64_t>(random() % 4294967296000ULL) - 2147483648000LL;
        const double v = static_cast<double>(m) / std::array{10.0, 100.0, 1000.0}[i % 3];
        values.insert(values.end(),
                      {v, std::nextafter(v, 0.0), std::nextafter(v, 1e300), v / 1024});
    }
    for (const double v : {0.001, 0.01, 0.1, 0.999, 1.001, 0.1 + 0.2, 215081.992, 2147483647.999,
                           2147483648.5, 999999.999, 1000000.001}) {
        values.insert(values.end(), {v, -v, std::nextafter(v, 0.0)});
    }
    for (const double v : values) {
        char expected[64];
        const std::string_view a(
            expected,
            static_cast<std::size_t>(std::to_chars(expected, expected + 64, v).ptr - expected));
        std::string b = "[";
        ZeltNavMsg::AppendNumber(b, v);
        EXPECT_EQ(b.substr(1), a) << v;
    }
}

TEST(RecordOutput, ErrorRecordsAndCsvQuoting) {
    std::string out;
    AppendJsonError(out, 3, "DecodingError", "Can't parse symbol as hex digit: \"\x01");
    const json j = json::parse(out);
    EXPECT_EQ(j["line"], 3);
    EXPECT_EQ(j["error"]["message"], "Can't parse symbol as hex digit: \"\x01");

    // A satellite name with a comma and quotes is one cell; a text character is quoted.
    const DecodedMessage m = NavMessageDecoder::DecodeFields(
        MessageFormat::GpsLNav, 4, 17,
        Testing::loadRealData("gps_lnav.tsv").at(0).hex);  // any bits: page 17 is text
    out = std::string(CsvHeader());
    RecordContext context;
    context.line = 2;
    context.sat = "G,\"1\"";
    AppendCsvRows(out, m, context);
    EXPECT_EQ(out.substr(0, out.find('\n')),
              "line,sat,format,subframe,page,path,name,value,units,raw,ok");
    EXPECT_NE(out.find("\n2,\"G,\"\"1\"\"\",GpsLNav,4,17,ch01,ch01,\""), std::string::npos);
}

}  // namespace
}  // namespace ZeltNavMsg
