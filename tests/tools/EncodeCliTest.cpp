// navmsg encode: what decode and batch write as JSON comes back as the batch line it was,
// options make one message, and damage is made where asked.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <sstream>
#include <string>

#include "support/CheckVerdict.h"
#include "support/CliShell.h"
#include "support/RealData.h"
#include "support/SupportedFormats.h"
#include "zeltnavmsg/RecordOutput.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::CliRun;
using ZeltNavMsg::Testing::shell;
namespace Testing = ZeltNavMsg::Testing;

// The checks of the message that do not pass.
std::string verdict(MessageFormat format, std::int32_t subframe, const std::string& hex) {
    return Testing::failedChecks(NavMessageDecoder::DecodeFields(format, subframe, 0, hex));
}

std::string sample(MessageFormat format) {
    return std::string(Testing::findSupported(format)->sampleHex);
}

TEST(NavmsgEncode, BatchJsonOfEveryRealMessageEncodesBackBitForBit) {
    std::string input;
    std::string expected;
    for (const Testing::SupportedFormat& row : Testing::kSupportedFormats) {
        for (const Testing::RealMessage& m : Testing::loadRealData(row.realDataFile)) {
            const std::string head = m.satellite + " " + m.format + " " +
                                     std::to_string(m.subframe) + " " + std::to_string(m.page) +
                                     " ";
            std::string hex = m.hex.substr(0, static_cast<std::size_t>(row.frameBits + 3) / 4);
            std::transform(hex.begin(), hex.end(), hex.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
            input += head + m.hex + "\n";
            expected += head + hex + "\n";
        }
    }
    const CliRun run = shell("navmsg batch --output json --all-fields - | navmsg encode", input);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, expected);
}

// A value edited in the JSON wins over the raw bits beside it; the parity follows.
TEST(NavmsgEncode, AnEditedValueIsEncodedWithFreshParity) {
    const std::string hex = sample(MessageFormat::GpsLNav);
    const CliRun decoded = shell("navmsg decode --sat G04 --subframe 1 --output json " + hex);
    nlohmann::json record = nlohmann::json::parse(decoded.out);
    for (nlohmann::json& f : record["fields"]) {
        if (f["name"] == "af0") {
            f["value"] = 1e-4;
        }
    }
    const CliRun run = shell("navmsg encode --hex", record.dump() + "\n");
    ASSERT_EQ(run.status, 0) << run.err;
    const std::string encoded = run.out.substr(0, run.out.size() - 1);
    EXPECT_EQ(verdict(MessageFormat::GpsLNav, 1, encoded), "");
    const ZeltNavMsg::DecodedMessage m =
        NavMessageDecoder::DecodeFields(MessageFormat::GpsLNav, 1, 0, encoded);
    EXPECT_EQ(m.find("af0")->raw(), 214748U);  // 1e-4 s / 2^-31 s, rounded
    EXPECT_EQ(
        m.find("toc")->value(),
        NavMessageDecoder::DecodeFields(MessageFormat::GpsLNav, 1, 0, hex).find("toc")->value());
}

struct Damage {
    MessageFormat format;
    std::int32_t subframe;
    std::string options;
    std::string verdict;
};

TEST(NavmsgEncode, KeepChecksAndFlipDamageExactlyWhereAsked) {
    const std::string lnav = " --from " + sample(MessageFormat::GpsLNav);
    const Damage cases[] = {
        {MessageFormat::GpsLNav, 1, lnav, ""},
        {MessageFormat::GpsLNav, 1, lnav + " --flip 40", "word 2 parity failed; "},
        // D30 of word 2 also decides whether word 3 arrives inverted.
        {MessageFormat::GpsLNav, 1, lnav + " --flip 59",
         "word 2 parity failed; word 3 parity failed; "},
        {MessageFormat::GpsLNav, 1, lnav + " --keep-checks --set af0=2e-4",
         "word 10 parity failed; "},
        {MessageFormat::GpsLNav, 1, lnav + " --set af0=1e-4", ""},
        {MessageFormat::BeidouD1, 1, " --from " + sample(MessageFormat::BeidouD1) + " --flip 163",
         "word 6 BCH 2 corrected at 163; "},
        {MessageFormat::BeidouCNav2, 0,
         " --from " + sample(MessageFormat::BeidouCNav2) + " --flip 100", "frame CRC-24Q failed; "},
        {MessageFormat::GpsCNav2, 0, " --from " + sample(MessageFormat::GpsCNav2) + " --flip 700",
         "subframe 3 CRC-24Q failed; "},
    };
    for (const Damage& c : cases) {
        const std::string name(ZeltNavMsg::MessageFormatName(c.format));
        const CliRun run = shell("navmsg encode --hex --format " + name + " --subframe " +
                                 std::to_string(c.subframe) + c.options);
        ASSERT_EQ(run.status, 0) << c.options << run.err;
        EXPECT_EQ(verdict(c.format, c.subframe, run.out.substr(0, run.out.size() - 1)), c.verdict)
            << c.options;
    }
}

TEST(NavmsgEncode, BatchLinesNameTheSatelliteAndFormat) {
    const CliRun run = shell(
        "navmsg encode --format GpsLNav --subframe 1 --set preamble=139\n"
        "navmsg encode --format LNAV --sat J07 --subframe 4 --page 18\n"
        "navmsg encode --format CNAV2 --sat C20 --raw MesType=0x0a --raw PRN=20 --set SOW=3");
    EXPECT_EQ(run.status, 0) << run.err;
    std::istringstream lines(run.out);
    std::string line;
    for (const char* head :
         {"G01 GpsLNav 1 0 8b0000", "J07 QzssLNav 4 18 00000", "C20 BeidouCNav2 0 0 50a"}) {
        ASSERT_TRUE(std::getline(lines, line));
        EXPECT_TRUE(line.starts_with(head)) << line;
    }
}

TEST(NavmsgEncode, ReportsNameTheLineAndTheRunGoesOn) {
    const std::string good =
        R"({"sat":"G05","format":"GpsLNav","subframe":2,"fields":[{"name":"toe","value":7200}]})";
    const std::string input =
        good + "\nnot json\n" +
        R"({"sat":"G05","format":"GpsLNav","subframe":2,"fields":[{"name":"toc","value":0}]})" +
        "\n" +
        R"({"sat":"G05","format":"GpsLNav","subframe":2,"fields":[{"name":"toe","value":-16}]})" +
        "\n" +
        R"({"sat":"G05","format":"GpsLNav","subframe":2,"fields":[{"name":"toe","value":7200,"units":"ms"}]})" +
        "\n" + R"({"line":9,"error":{"type":"DecodingError","message":"bad digit"}})" + "\n\n" +
        good + "\n";
    const CliRun run = shell("navmsg encode", input);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err,
              "navmsg: line 2: not a JSON record: column 2: syntax error while parsing value - "
              "invalid literal; last read: 'no'\n"
              "navmsg: line 3: no field \"toc\" in Subframe 2: ephemeris, first part\n"
              "navmsg: line 4: toe: -16 s is outside the range 0 to 1048560 s (LSB 16 s)\n"
              "navmsg: line 5: toe: units \"ms\" given; the field's are \"s\"\n"
              "navmsg: line 6: the record of a message that failed to decode: \"bad digit\"\n");
    const std::size_t firstEnd = run.out.find('\n');
    ASSERT_NE(firstEnd, std::string::npos);
    EXPECT_EQ(run.out, run.out.substr(0, firstEnd + 1) + run.out.substr(0, firstEnd + 1));
}

}  // namespace
