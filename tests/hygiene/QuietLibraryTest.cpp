// The library runs inside its host's process: it writes nothing to the standard
// streams except the word writer's report on a subframe word that does not fit.

#include <gtest/gtest.h>

#include <climits>
#include <regex>
#include <sstream>
#include <string>

#include "support/DecodeOutcome.h"
#include "support/SupportedFormats.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::decodeOutcome;
using ZeltNavMsg::Testing::kSupportedFormats;
using ZeltNavMsg::Testing::Road;

TEST(QuietLibrary, OnlyTheWordWriterReportsAndOnlyOnStandardError) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    int shortSubframes = 0;
    for (const auto& row : kSupportedFormats) {
        const std::string sample(row.sampleHex);
        for (const std::string& hex : {sample, sample.substr(0, 20), std::string("7"),
                                       std::string(), sample + "q", sample + sample}) {
            (void)decodeOutcome(row.format, row.subframe, row.page, hex);
            (void)decodeOutcome(row.format, INT32_MIN, INT32_MAX, hex);
        }
        shortSubframes += row.road == Road::Subframe ? 4 : 0;
        (void)NavMessageDecoder::GetSignalTypeFromString("G01", "L5");
        (void)decodeOutcome(MessageFormat::Sbas, 1, 1, sample);
    }
    const std::string out = testing::internal::GetCapturedStdout();
    const std::string err = testing::internal::GetCapturedStderr();

    EXPECT_EQ(out, "");
    const std::regex report(
        "The data does not fit in the subframe -?[0-9]+: data [0-9]+, sf-length [0-9]+\\.");
    std::istringstream lines(err);
    int reports = 0;
    for (std::string line; std::getline(lines, line); ++reports) {
        EXPECT_TRUE(std::regex_match(line, report)) << line;
    }
    // Each short subframe (20 digits and 1, under two subframe numbers) reports 8 or more
    // words.
    EXPECT_GE(reports, shortSubframes * 8);
}

}  // namespace
