#ifndef ZELTNAVMSG_TESTS_LOGS_LOGREADING_H
#define ZELTNAVMSG_TESTS_LOGS_LOGREADING_H

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "zeltnavmsg/LogReader.h"

namespace ZeltNavMsg::Testing {

// A message copied out of the reader (its views die with the next call).
struct ReadMessage {
    std::string satellite;
    std::string signalName;
    SignalType signal = SignalType::GpsL1CA;
    MessageFormat format = MessageFormat::GpsLNav;
    std::int32_t subframe = 0;
    std::int32_t page = 0;
    std::string hex;
    bool hasTime = false;
    std::int32_t week = 0;
    double secondsOfWeek = 0.0;
    std::uint64_t streamOffset = 0;

    bool operator==(const ReadMessage&) const = default;
    // Equal but for the offset, which inserted bytes move.
    [[nodiscard]] bool sameAs(ReadMessage other) const {
        other.streamOffset = streamOffset;
        return *this == other;
    }
};

struct ReadLog {
    std::vector<ReadMessage> messages;
    LogReaderStats stats;
};

inline std::string loadReceiverLog(std::string_view name) {
    std::ifstream file(
        std::string(ZELTNAVMSG_TEST_DATA_DIR) + "/receiver-logs/" + std::string(name),
        std::ios::binary);
    EXPECT_TRUE(file.good()) << "cannot read " << name;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Feeds `bytes` in pieces ending at each of `cuts` (ascending), then the rest.
inline ReadLog readLog(std::string_view bytes, const std::vector<std::size_t>& cuts = {}) {
    ReadLog result;
    LogReader reader;
    LogMessage m;
    const auto drain = [&] {
        while (reader.next(m)) {
            result.messages.push_back({std::string(m.satellite), std::string(m.signalName),
                                       m.signal, m.format, m.subframe, m.page, std::string(m.hex),
                                       m.hasTime, m.week, m.secondsOfWeek, m.streamOffset});
        }
    };
    std::size_t from = 0;
    for (const std::size_t cut : cuts) {
        reader.feed(bytes.substr(from, cut - from));
        drain();
        from = cut;
    }
    reader.feed(bytes.substr(from));
    drain();
    reader.finish();
    drain();
    result.stats = reader.stats();
    return result;
}

// The cuts of `size` bytes into pieces of `chunk`, for readLog.
inline std::vector<std::size_t> chunkCuts(std::size_t size, std::size_t chunk) {
    std::vector<std::size_t> cuts;
    for (std::size_t at = chunk; at < size; at += chunk) {
        cuts.push_back(at);
    }
    return cuts;
}

// Every count equal (the struct is all 64-bit counters, without padding).
inline bool operator==(const LogReaderStats& a, const LogReaderStats& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

}  // namespace ZeltNavMsg::Testing

#endif
