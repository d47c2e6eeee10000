// Speed of the encoder on real broadcasts, per format; each row cycles through the
// records of all real messages of its format (decoded once, before timing):
//   Encode/<format>         every field set from its value through its FieldInfo (no
//                           look-up), then the hex with the check bits computed: a
//                           message made from a record
//   EncodeRaw/<format>      MessageEncoder(DecodedMessage): every field's raw bits, then
//                           the hex
//   EncodeByPath/<format>   every field set by its path, then the hex: each look-up after
//                           a set decodes the message again
//
//   build/bench/bench/zeltnavmsg_bench --benchmark_filter=Encode
//       --benchmark_repetitions=5 --benchmark_report_aggregates_only=true

#include <benchmark/benchmark.h>

#include <cstdint>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "AllocationCounter.h"
#include "BenchData.h"
#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/MessageEncoder.h"

namespace {

using ZeltNavMsg::DecodedField;
using ZeltNavMsg::DecodedMessage;
using ZeltNavMsg::MessageEncoder;
using ZeltNavMsg::MessageFormat;

using EncodeFormat = ZeltNavMsg::Bench::BenchFormat;

// The records of every data line (format, satellite, subframe, page, hex, ... TAB-separated).
std::vector<DecodedMessage> loadRecords(const EncodeFormat& format) {
    std::ifstream file(std::string(ZELTNAVMSG_REAL_DATA_DIR) + "/" + format.dataFile);
    std::vector<DecodedMessage> records;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        std::vector<std::string> cells;
        for (std::size_t start = 0, end = 0; cells.size() < 5 && end != std::string::npos;
             start = end + 1) {
            end = line.find('\t', start);
            cells.push_back(line.substr(start, end - start));
        }
        records.push_back(ZeltNavMsg::NavMessageDecoder::DecodeFields(
            format.format, std::stoi(cells[2]), std::stoi(cells[3]), cells[4]));
    }
    return records;
}

template <typename Work>
void cycle(benchmark::State& state, const EncodeFormat* format, Work work) {
    const std::vector<DecodedMessage> records = loadRecords(*format);
    if (records.empty()) {
        state.SkipWithError((std::string("no messages in ") + format->dataFile).c_str());
        return;
    }
    std::size_t next = 0;
    std::string hex;
    const std::uint64_t allocationsBefore = ZeltNavMsg::Bench::allocationCount();
    for (auto _ : state) {
        work(records[next], hex);
        benchmark::DoNotOptimize(hex.data());
        if (++next == records.size()) {
            next = 0;
        }
    }
    const std::uint64_t allocations = ZeltNavMsg::Bench::allocationCount() - allocationsBefore;
    state.SetItemsProcessed(state.iterations());
    state.counters["allocs/msg"] =
        static_cast<double>(allocations) / static_cast<double>(state.iterations());
}

// Fields wider than a double's 53 bits go by their raw bits, as a value cannot hold them.
void benchEncode(benchmark::State& state, const EncodeFormat* format) {
    cycle(state, format, [](const DecodedMessage& m, std::string& hex) {
        MessageEncoder encoder(m.format(), m.subframe(), m.page());
        for (const DecodedField& f : m.fields()) {
            if (f.role() == ZeltNavMsg::FieldRole::Word) {
                continue;
            }
            if (f.bitCount() > 53) {
                encoder.setRaw(f.info(), f.raw());
            } else {
                encoder.set(f.info(), f.value());
            }
        }
        encoder.hex(hex);
    });
}

void benchEncodeRaw(benchmark::State& state, const EncodeFormat* format) {
    cycle(state, format, [](const DecodedMessage& m, std::string& hex) {
        const MessageEncoder encoder(m);
        encoder.hex(hex);
    });
}

void benchEncodeByPath(benchmark::State& state, const EncodeFormat* format) {
    cycle(state, format, [](const DecodedMessage& m, std::string& hex) {
        MessageEncoder encoder(m.format(), m.subframe(), m.page());
        std::map<std::string_view, std::int32_t> seen;
        for (const DecodedField& f : m.fields()) {
            const std::int32_t part = seen[f.path()]++;
            if (f.role() != ZeltNavMsg::FieldRole::Word) {
                encoder.setRaw(encoder.field(f.path(), part), f.raw());
            }
        }
        encoder.hex(hex);
    });
}

[[maybe_unused]] const bool kRegistered = [] {
    for (const EncodeFormat& format : ZeltNavMsg::Bench::formats()) {
        const std::string name = format.name;
        benchmark::RegisterBenchmark(("Encode/" + name).c_str(), benchEncode, &format);
        benchmark::RegisterBenchmark(("EncodeRaw/" + name).c_str(), benchEncodeRaw, &format);
        benchmark::RegisterBenchmark(("EncodeByPath/" + name).c_str(), benchEncodeByPath, &format);
    }
    return true;
}();

}  // namespace
