#ifndef ZELTNAVMSG_BENCH_ALLOCATIONCOUNTER_H
#define ZELTNAVMSG_BENCH_ALLOCATIONCOUNTER_H

#include <cstdint>

namespace ZeltNavMsg::Bench {

// Number of global operator new calls (every form) since the program started. The
// bench binary replaces the global allocation functions to count them.
[[nodiscard]] std::uint64_t allocationCount() noexcept;

}  // namespace ZeltNavMsg::Bench

#endif
