// Speed of the receiver log reader over bytes in which no frame starts (random bytes
// without sync bytes, and NMEA text, whose '$' is followed by no '@'), and over the
// ZED-F9P log fed whole and in the 64 KiB pieces navmsg reads (frames cut at the
// pieces' ends are held and completed). bytes_per_second is the scan rate;
// items_per_second on the real log is messages per second.
//
//   build/bench/bench/zeltnavmsg_bench --benchmark_filter=LogReader
//       --benchmark_repetitions=5 --benchmark_report_aggregates_only=true

#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "zeltnavmsg/LogReader.h"

namespace {

using ZeltNavMsg::LogMessage;
using ZeltNavMsg::LogReader;

constexpr std::size_t kStreamBytes = 16 << 20;

std::string randomWithoutSync() {
    std::mt19937 rng(3);
    std::string bytes(kStreamBytes, '\0');
    for (char& c : bytes) {
        do {
            c = static_cast<char>(rng());
        } while (c == '\xB5' || c == '$');
    }
    return bytes;
}

std::string nmeaText() {
    const std::string sentences =
        "$GNRMC,114418.00,A,3423.71233,N,13227.33815,E,0.012,,190923,,,A,V*1C\r\n"
        "$GPGSV,3,1,11,04,29,313,42,05,14,127,37,09,53,282,47,11,21,049,41,1*6A\r\n"
        "$GNGGA,114418.00,3423.71233,N,13227.33815,E,1,12,0.58,24.3,M,27.9,M,,*70\r\n";
    std::string text;
    while (text.size() < kStreamBytes) {
        text += sentences;
    }
    return text;
}

std::string receiverLog(const char* name) {
    std::ifstream file(std::string(ZELTNAVMSG_RECEIVER_LOGS_DIR) + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void scan(benchmark::State& state, const std::string& bytes, std::size_t piece) {
    LogMessage message;
    std::int64_t messages = 0;
    for (auto _ : state) {
        LogReader reader;
        for (std::size_t at = 0; at < bytes.size(); at += piece) {
            reader.feed(std::string_view(bytes).substr(at, piece));
            while (reader.next(message)) {
                ++messages;
            }
        }
        reader.finish();
        while (reader.next(message)) {
            ++messages;
        }
        benchmark::DoNotOptimize(reader.stats().skippedBytes);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
    state.SetItemsProcessed(messages);
}

void scan(benchmark::State& state, const std::string& bytes) {
    scan(state, bytes, bytes.size());
}

void LogReaderRandomBytes(benchmark::State& state) {
    static const std::string bytes = randomWithoutSync();
    scan(state, bytes);
}
BENCHMARK(LogReaderRandomBytes)->Unit(benchmark::kMillisecond);

void LogReaderNmeaText(benchmark::State& state) {
    static const std::string bytes = nmeaText();
    scan(state, bytes);
}
BENCHMARK(LogReaderNmeaText)->Unit(benchmark::kMillisecond);

void LogReaderUbloxF9pLog(benchmark::State& state) {
    static const std::string bytes = receiverLog("20230919-114418.ubx");
    scan(state, bytes);
}
BENCHMARK(LogReaderUbloxF9pLog)->Unit(benchmark::kMicrosecond);

void LogReaderUbloxF9pLogIn64KiBPieces(benchmark::State& state) {
    static const std::string bytes = receiverLog("20230919-114418.ubx");
    scan(state, bytes, std::size_t{1} << 16);
}
BENCHMARK(LogReaderUbloxF9pLogIn64KiBPieces)->Unit(benchmark::kMicrosecond);

}  // namespace
