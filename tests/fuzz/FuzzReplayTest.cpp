// The fuzz target's seeds and every finding it ever made (tests/fuzz/regressions),
// replayed through the same checks in every build, sanitizers included.

#include <gtest/gtest.h>

#include <climits>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <tuple>

#include "fuzz/FuzzInput.h"

namespace {

using ZeltNavMsg::Fuzz::checkRequest;
using ZeltNavMsg::Fuzz::encodeInput;
using ZeltNavMsg::Fuzz::parseInput;

std::optional<std::string> replay(const std::vector<std::uint8_t>& input) {
    return checkRequest(parseInput(input.data(), input.size()));
}

TEST(FuzzInput, NumbersAndTextSurviveTheEncoding) {
    for (const auto& [format, subframe, page] :
         {std::tuple{0, 1, 0}, {-16, 223, 224}, {-17, INT32_MIN, INT32_MAX}, {255, -1, 1 << 20}}) {
        for (const bool asBits : {false, true}) {
            const std::string hex = asBits ? "8b0D3" : "8b 0d\0\xFF";
            const auto input = encodeInput(format, subframe, page, hex, asBits);
            const auto request = parseInput(input.data(), input.size());
            EXPECT_EQ(request.format, format);
            EXPECT_EQ(request.subframe, subframe);
            EXPECT_EQ(request.page, page);
            // As bits the digits come back lower-case, the odd count kept.
            EXPECT_EQ(request.hex, asBits ? "8b0d3" : hex);
        }
    }
    // A cut input reads as zeros and an empty text.
    const std::uint8_t cut[] = {0xFF, 0x01};
    const auto request = parseInput(cut, sizeof cut);
    EXPECT_EQ(request.format, 1);
    EXPECT_EQ(request.subframe, -16);
    EXPECT_TRUE(request.hex.empty());
}

TEST(FuzzReplay, SeedsPassTheChecks) {
    std::ifstream batch(ZELTNAVMSG_EXAMPLE_MESSAGES);
    ASSERT_TRUE(batch.good());
    const auto seeds = ZeltNavMsg::Fuzz::makeSeeds(batch);
    EXPECT_GT(seeds.size(), 30U);
    testing::internal::CaptureStderr();  // short subframes make the word writer report
    for (const auto& seed : seeds) {
        const auto finding = replay(seed);
        EXPECT_FALSE(finding) << *finding;
    }
    (void)testing::internal::GetCapturedStderr();
}

TEST(FuzzReplay, KeptFindingsPassTheChecks) {
    const std::filesystem::path dir(ZELTNAVMSG_FUZZ_REGRESSIONS_DIR);
    ASSERT_TRUE(std::filesystem::is_directory(dir));
    int replayed = 0;
    testing::internal::CaptureStderr();
    for (const auto& entry : std::filesystem::directory_iterator(dir)) {
        if (entry.path().extension() == ".md") {
            continue;
        }
        std::ifstream in(entry.path(), std::ios::binary);
        const std::vector<std::uint8_t> input((std::istreambuf_iterator<char>(in)),
                                              std::istreambuf_iterator<char>());
        const auto finding = replay(input);
        EXPECT_FALSE(finding) << entry.path().filename() << ": " << *finding;
        ++replayed;
    }
    (void)testing::internal::GetCapturedStderr();
    RecordProperty("replayed", replayed);
}

}  // namespace
