// Speed of the integrity checks on real broadcasts, per format: Checks/<format> runs
// every check of one message into a reused result vector, and CorrectedSubframe/<format>
// makes the corrected, de-interleaved BeiDou subframe. Each cycles through all real
// messages of its format, as the Decode rows do; time is per message.
//
//   build/bench/bench/zeltnavmsg_bench --benchmark_filter='Checks|Corrected'

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "AllocationCounter.h"
#include "BenchData.h"
#include "api/HexInput.h"
#include "checks/BeidouCodewords.h"
#include "checks/Checks.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::MessageFormat;

struct Input {
    std::vector<std::uint8_t> bytes;
    std::int32_t bits = 0;
};

// The hex column (the fifth, TAB-separated) of every data line of a real-data file.
std::vector<Input> loadInputs(const std::string& fileName) {
    std::ifstream file(std::string(ZELTNAVMSG_REAL_DATA_DIR) + "/" + fileName);
    std::vector<Input> inputs;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        std::size_t start = 0;
        for (int column = 0; column < 4; ++column) {
            start = line.find('\t', start) + 1;
        }
        Input input;
        input.bytes = ZeltNavMsg::Detail::HexStringToBytes(
            line.substr(start, line.find('\t', start) - start), input.bits);
        inputs.push_back(std::move(input));
    }
    return inputs;
}

template <typename Work>
void cycle(benchmark::State& state, const std::string& fileName, Work work) {
    const std::vector<Input> inputs = loadInputs(fileName);
    if (inputs.empty()) {
        state.SkipWithError(("no messages in " + fileName).c_str());
        return;
    }
    std::size_t next = 0;
    const std::uint64_t allocationsBefore = ZeltNavMsg::Bench::allocationCount();
    for (auto _ : state) {
        work(inputs[next]);
        if (++next == inputs.size()) {
            next = 0;
        }
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["allocs/msg"] =
        static_cast<double>(ZeltNavMsg::Bench::allocationCount() - allocationsBefore) /
        static_cast<double>(state.iterations());
}

void benchChecks(benchmark::State& state, MessageFormat format, const std::string& fileName) {
    std::vector<ZeltNavMsg::CheckResult> results;
    results.reserve(32);
    cycle(state, fileName, [&](const Input& input) {
        results.clear();
        ZeltNavMsg::Checks::run(format, input.bytes.data(), input.bits, results);
        benchmark::DoNotOptimize(results.data());
        benchmark::ClobberMemory();
    });
}

void benchCorrectedSubframe(benchmark::State& state, const std::string& fileName) {
    std::array<std::uint8_t, ZeltNavMsg::Checks::kBeidouDecodedBytes> out{};
    cycle(state, fileName, [&](const Input& input) {
        ZeltNavMsg::Checks::correctBeidouSubframe(input.bytes.data(), input.bits, out);
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    });
}

[[maybe_unused]] const bool kRegistered = [] {
    for (const auto& row : ZeltNavMsg::Bench::formats()) {
        const std::string name = row.name;
        benchmark::RegisterBenchmark(("Checks/" + name).c_str(), benchChecks, row.format,
                                     std::string(row.dataFile));
        if (row.format == MessageFormat::BeidouD1 || row.format == MessageFormat::BeidouD2) {
            benchmark::RegisterBenchmark(("CorrectedSubframe/" + name).c_str(),
                                         benchCorrectedSubframe, std::string(row.dataFile));
        }
    }
    return true;
}();

}  // namespace
