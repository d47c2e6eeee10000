// The fuzz target's seeds and every finding it ever made (tests/fuzz/regressions),
// replayed through the same checks in every build, sanitizers included.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "fuzz/FuzzInput.h"

namespace {

TEST(FuzzReplay, SeedsAndKeptFindingsPassTheChecks) {
    std::ifstream batch(ZELTNAVMSG_EXAMPLE_MESSAGES);
    ASSERT_TRUE(batch.good());
    std::vector<std::pair<std::string, std::string>> inputs;  // name, bytes
    for (const std::string& seed : ZeltNavMsg::Fuzz::makeSeeds(batch)) {
        inputs.emplace_back("seed " + std::to_string(inputs.size() + 1), seed);
    }
    ASSERT_GT(inputs.size(), 30U);
    for (const auto& entry : std::filesystem::directory_iterator(ZELTNAVMSG_FUZZ_REGRESSIONS_DIR)) {
        if (entry.path().extension() != ".md") {
            std::ifstream in(entry.path(), std::ios::binary);
            inputs.emplace_back(entry.path().filename().string(),
                                std::string(std::istreambuf_iterator<char>(in), {}));
        }
    }
    testing::internal::CaptureStderr();  // short subframes make the word writer report
    for (const auto& [name, bytes] : inputs) {
        const auto finding = ZeltNavMsg::Fuzz::checkInput(
            reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        EXPECT_FALSE(finding) << name << ": " << *finding;
    }
    (void)testing::internal::GetCapturedStderr();
}

}  // namespace
