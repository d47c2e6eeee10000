// Eight threads decode a mix of every supported format at once, errors included, and
// each result must equal the one the same input gave on a single thread. The ThreadSanitizer
// preset runs this too, so a data race fails it even where the texts come out right.
// ZELTNAVMSG_STRESS_SECONDS sets how long the threads run (default 2).

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "support/DecodeOutcome.h"
#include "support/RealData.h"
#include "support/SupportedFormats.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::Testing::decodeOutcome;
using ZeltNavMsg::Testing::DecodeOutcome;
using ZeltNavMsg::Testing::kSupportedFormats;

struct Request {
    MessageFormat format;
    std::int32_t subframe;
    std::int32_t page;
    std::string hex;
    DecodeOutcome expected;  // from a single thread
};

// Every real message of every supported format, and for each format inputs that fail
// in each documented way. Inputs that make the word writer report are left out: they
// would only flood the test log.
std::vector<Request> requests() {
    std::vector<Request> all;
    for (const auto& row : kSupportedFormats) {
        for (const auto& m : ZeltNavMsg::Testing::loadRealData(row.realDataFile)) {
            if (m.format == row.name) {
                all.push_back({row.format, m.subframe, m.page, m.hex, {}});
            }
        }
        const std::string sample(row.sampleHex);
        all.push_back({row.format, row.subframe, row.page, sample + "g", {}});
        all.push_back({row.format, row.subframe, row.page, " \r\n", {}});
        all.push_back({row.format, row.subframe, row.page, sample + sample, {}});
        all.push_back({static_cast<MessageFormat>(-1), 0, 0, sample, {}});
    }
    for (Request& r : all) {
        r.expected = decodeOutcome(r.format, r.subframe, r.page, r.hex);
    }
    return all;
}

double stressSeconds() {
    const char* text = std::getenv("ZELTNAVMSG_STRESS_SECONDS");
    const double seconds = text != nullptr ? std::atof(text) : 0.0;
    return seconds > 0.0 ? seconds : 2.0;
}

TEST(ConcurrentDecode, EightThreadsGetTheSingleThreadedResults) {
    const std::vector<Request> all = requests();
    ASSERT_GT(all.size(), 100U);
    std::size_t listings = 0;
    for (const Request& r : all) {
        listings += r.expected.kind == DecodeOutcome::Kind::Text ? 1 : 0;
    }
    ASSERT_GT(listings, all.size() / 2) << "the mix should be mostly real messages";

    constexpr int kThreads = 8;
    const auto deadline =
        std::chrono::steady_clock::now() + std::chrono::duration<double>(stressSeconds());
    std::atomic<long> decodes{0};
    std::atomic<long> mismatches{0};
    std::mutex firstMismatchLock;
    std::string firstMismatch;
    std::vector<int> passes(kThreads, 0);

    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            // Each thread starts elsewhere in the mix and runs whole passes until the
            // deadline, at least one.
            std::size_t i = static_cast<std::size_t>(t) * all.size() / kThreads;
            do {
                for (std::size_t n = 0; n < all.size(); ++n, i = (i + 1) % all.size()) {
                    const Request& r = all[i];
                    const DecodeOutcome got = decodeOutcome(r.format, r.subframe, r.page, r.hex);
                    decodes.fetch_add(1, std::memory_order_relaxed);
                    if (got != r.expected && mismatches.fetch_add(1) == 0) {
                        const std::lock_guard lock(firstMismatchLock);
                        firstMismatch = "thread " + std::to_string(t) + ", request " +
                                        std::to_string(i) + ": " + testing::PrintToString(got);
                    }
                }
                ++passes[static_cast<std::size_t>(t)];
            } while (std::chrono::steady_clock::now() < deadline);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }

    EXPECT_EQ(mismatches.load(), 0) << firstMismatch;
    for (int t = 0; t < kThreads; ++t) {
        EXPECT_GE(passes[static_cast<std::size_t>(t)], 1) << "thread " << t;
    }
    RecordProperty("decodes", std::to_string(decodes.load()));
}

}  // namespace
