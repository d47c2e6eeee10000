// Eight threads decode a mix of every supported format, errors included, as listings
// and as records, and each result must equal the single-threaded one; under the tsan preset a data
// race fails it too. ZELTNAVMSG_STRESS_SECONDS sets how long the threads run (default 2).

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

using namespace ZeltNavMsg::Testing;

struct Request {
    ZeltNavMsg::MessageFormat format;
    std::int32_t subframe;
    std::int32_t page;
    std::string hex;
    DecodeOutcome expected;  // from a single thread
    DecodeOutcome expectedRecords;
};

TEST(ConcurrentDecode, EightThreadsGetTheSingleThreadedResults) {
    // Every real message of every supported format, and inputs that fail in each
    // documented way (none that make the word writer report: they would flood the log).
    std::vector<Request> all;
    for (const auto& row : kSupportedFormats) {
        for (const auto& m : loadRealData(row.realDataFile)) {
            all.push_back({row.format, m.subframe, m.page, m.hex, {}, {}});
        }
        const std::string sample(row.sampleHex);
        for (const std::string& hex : {sample + "g", std::string(" \r\n"), sample + sample}) {
            all.push_back({row.format, row.subframe, row.page, hex, {}, {}});
        }
        all.push_back({static_cast<ZeltNavMsg::MessageFormat>(-1), 0, 0, sample, {}, {}});
    }
    std::size_t listings = 0;
    for (Request& r : all) {
        r.expected = decodeOutcome(r.format, r.subframe, r.page, r.hex);
        r.expectedRecords = recordsOutcome(r.format, r.subframe, r.page, r.hex);
        listings += r.expected.kind == DecodeOutcome::Kind::Text ? 1 : 0;
    }
    ASSERT_GT(listings, all.size() / 2) << "the mix should be mostly real messages";

    constexpr int kThreads = 8;
    const char* seconds = std::getenv("ZELTNAVMSG_STRESS_SECONDS");
    const auto deadline = std::chrono::steady_clock::now() +
                          std::chrono::duration<double>(seconds ? std::atof(seconds) : 2.0);
    std::atomic<long> mismatches{0};
    std::mutex firstMismatchLock;
    std::string firstMismatch;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            // Whole passes from its own starting point until the deadline, at least one.
            std::size_t i = static_cast<std::size_t>(t) * all.size() / kThreads;
            do {
                for (std::size_t n = 0; n < all.size(); ++n, i = (i + 1) % all.size()) {
                    const Request& r = all[i];
                    // The listing and the records in turn: the record plans are built
                    // on first use, from whichever thread comes first.
                    const bool records = (n + static_cast<std::size_t>(t)) % 2 == 0;
                    const DecodeOutcome got =
                        records ? recordsOutcome(r.format, r.subframe, r.page, r.hex)
                                : decodeOutcome(r.format, r.subframe, r.page, r.hex);
                    if (got != (records ? r.expectedRecords : r.expected) &&
                        mismatches.fetch_add(1) == 0) {
                        const std::lock_guard lock(firstMismatchLock);
                        firstMismatch = "thread " + std::to_string(t) + ", request " +
                                        std::to_string(i) + ": " + testing::PrintToString(got);
                    }
                }
            } while (std::chrono::steady_clock::now() < deadline);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(mismatches.load(), 0) << firstMismatch;
}

}  // namespace
