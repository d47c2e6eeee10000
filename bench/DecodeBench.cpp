// Speed of Decode on real broadcasts, per format, against two baselines: parsing the
// hex text alone (the floor) and the plain snprintf listing of the same lines (what
// a straightforward implementation costs). Each message format is one row of
// formats() in BenchData.cpp; every benchmark cycles through all real messages of its format, so no
// single input is learned by the branch predictor.
//
//   build/bench/bench/zeltnavmsg_bench --benchmark_repetitions=5
//       --benchmark_report_aggregates_only=true
//
// Time is per message; items_per_second is messages per second; bytes_per_second is
// output text per second; allocs/msg counts global operator new calls per message.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "AllocationCounter.h"
#include "BenchData.h"
#include "api/HexInput.h"
#include "baseline/NaiveLegacyListing.h"
#include "baseline/NaiveTreeListing.h"
#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/NavMessageDecoder.h"
#include "zeltnavmsg/RecordOutput.h"

namespace {

using ZeltNavMsg::MessageFormat;
using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Bench::BenchFormat;
using ZeltNavMsg::Bench::Message;

struct FormatData {
    const BenchFormat* format;
    std::vector<Message> messages;
};

// Runs `listing` once per iteration over the messages in turn and reports
// messages/s, output bytes/s and heap allocations per message.
template <typename Listing>
void cycle(benchmark::State& state, const std::vector<Message>& messages, Listing listing) {
    std::size_t next = 0;
    std::uint64_t bytes = 0;
    const std::uint64_t allocationsBefore = ZeltNavMsg::Bench::allocationCount();
    for (auto _ : state) {
        bytes += listing(messages[next]);
        if (++next == messages.size()) {
            next = 0;
        }
    }
    const std::uint64_t allocations = ZeltNavMsg::Bench::allocationCount() - allocationsBefore;
    const auto iterations = static_cast<double>(state.iterations());
    state.SetItemsProcessed(state.iterations());
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
    state.counters["allocs/msg"] = static_cast<double>(allocations) / iterations;
}

void benchDecode(benchmark::State& state, const FormatData* data) {
    const MessageFormat format = data->format->format;
    cycle(state, data->messages, [format](const Message& m) {
        const std::string text = NavMessageDecoder::Decode(format, m.subframe, m.page, m.hex);
        benchmark::DoNotOptimize(text.data());
        return text.size();
    });
}

// Records into one reused DecodedMessage: no allocation once it has seen the largest.
void benchDecodeFields(benchmark::State& state, const FormatData* data) {
    const MessageFormat format = data->format->format;
    ZeltNavMsg::DecodedMessage message;
    cycle(state, data->messages, [format, &message](const Message& m) {
        NavMessageDecoder::DecodeFields(format, m.subframe, m.page, m.hex, message);
        benchmark::DoNotOptimize(message.fields().data());
        return std::size_t{0};
    });
}

// Records and their JSON line, into reused storage: what batch --output json does.
void benchJson(benchmark::State& state, const FormatData* data) {
    const MessageFormat format = data->format->format;
    ZeltNavMsg::DecodedMessage message;
    ZeltNavMsg::RecordContext context;
    context.sat = "G05";
    std::string out;
    cycle(state, data->messages, [&](const Message& m) {
        NavMessageDecoder::DecodeFields(format, m.subframe, m.page, m.hex, message);
        out.clear();
        ZeltNavMsg::AppendJsonRecord(out, message, context);
        benchmark::DoNotOptimize(out.data());
        return out.size();
    });
}

void benchHexParsing(benchmark::State& state, const FormatData* data) {
    cycle(state, data->messages, [](const Message& m) {
        std::int32_t sizeBits = 0;
        const std::vector<std::uint8_t> bytes =
            ZeltNavMsg::Detail::HexStringToBytes(m.hex, sizeBits);
        benchmark::DoNotOptimize(bytes.data());
        return std::size_t{0};
    });
}

// The plain snprintf listing of a message of the format.
std::string naiveListing(const BenchFormat& format, const Message& m) {
    if (format.legacySignal != nullptr) {
        return ZeltNavMsg::Baseline::naiveLegacyListing(*format.legacySignal, m.subframe, m.page,
                                                        m.hex);
    }
    return ZeltNavMsg::Baseline::naiveTreeListing(format.treeRoot(), format.treeBits, m.hex);
}

void benchNaiveListing(benchmark::State& state, const FormatData* data) {
    const BenchFormat& format = *data->format;
    cycle(state, data->messages, [&format](const Message& m) {
        const std::string text = naiveListing(format, m);
        benchmark::DoNotOptimize(text.data());
        return text.size();
    });
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }

    std::vector<FormatData> data;
    data.reserve(ZeltNavMsg::Bench::formats().size());
    for (const BenchFormat& format : ZeltNavMsg::Bench::formats()) {
        data.push_back({&format, ZeltNavMsg::Bench::loadMessages(format.dataFile)});
        if (data.back().messages.empty()) {
            std::fprintf(stderr, "no messages for %s\n", format.name);
            return 1;
        }
    }

    for (const FormatData& d : data) {
        // The baseline is only a yardstick if it makes the same text.
        for (const Message& m : d.messages) {
            if (NavMessageDecoder::Decode(d.format->format, m.subframe, m.page, m.hex) !=
                naiveListing(*d.format, m)) {
                std::fprintf(stderr, "%s: listings differ for %s\n", d.format->name, m.hex.c_str());
                return 1;
            }
        }
        const std::string name = d.format->name;
        benchmark::RegisterBenchmark(("Decode/" + name).c_str(), benchDecode, &d);
        benchmark::RegisterBenchmark(("DecodeFields/" + name).c_str(), benchDecodeFields, &d);
        benchmark::RegisterBenchmark(("Json/" + name).c_str(), benchJson, &d);
        benchmark::RegisterBenchmark(("HexParsing/" + name).c_str(), benchHexParsing, &d);
        benchmark::RegisterBenchmark(("SnprintfListing/" + name).c_str(), benchNaiveListing, &d);
    }

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
