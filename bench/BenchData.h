#ifndef ZELTNAVMSG_BENCH_BENCHDATA_H
#define ZELTNAVMSG_BENCH_BENCHDATA_H

#include <cstdint>
#include <string>
#include <vector>

#include "zeltnavmsg/NavMessageDecoder.h"

namespace ZeltNavMsg {
class BitStructDef;
namespace Legacy {
class SubframeIf;
}
}  // namespace ZeltNavMsg

// The formats the benchmarks measure and their real messages, shared by the Google
// Benchmark binary and the instruction-count loop.

namespace ZeltNavMsg::Bench {

using ZeltNavMsg::MessageFormat;

struct BenchFormat {
    const char* name;
    MessageFormat format;
    const char* dataFile;  // in tests/data/real-data
    // For the snprintf baseline: the signal of a legacy format, or the root and
    // frame length of a definition tree.
    const Legacy::SubframeIf* legacySignal;
    const BitStructDef& (*treeRoot)() = nullptr;
    int treeBits = 0;
};

struct Message {
    std::int32_t subframe = 0;
    std::int32_t page = 0;
    std::string hex;
};

// Every format measured, one row each.
[[nodiscard]] const std::vector<BenchFormat>& formats();
// The row named `name`, or nullptr.
[[nodiscard]] const BenchFormat* findFormat(const std::string& name);

// The messages of a real-data file; reports a file it cannot read on standard error
// and returns none.
[[nodiscard]] std::vector<Message> loadMessages(const char* fileName);

}  // namespace ZeltNavMsg::Bench

#endif
