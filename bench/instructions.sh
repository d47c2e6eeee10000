#!/usr/bin/env bash
# Instructions per message, counted by callgrind: steady where wall time is not (a
# shared machine). For each format (all by default) and each output form, runs that
# loop over the real messages under callgrind, counting only the loop, and prints
# instructions per message.
#
#   bench/instructions.sh [BUILD_DIR] [FORMAT...]
#
# BUILD_DIR defaults to build/bench (scripts/bench.sh builds it); FORMAT is a row of
# bench/BenchData.cpp (GpsLNav, QzssLNav, BeidouD1, BeidouD2, GpsCNav2, BeidouCNav1,
# BeidouCNav2, Irnss). MESSAGES (environment) sets the loop length (default 2000).
set -euo pipefail
cd "$(dirname "$0")/.."

build=build/bench
if [ $# -gt 0 ] && [ -d "$1" ]; then
    build=$1
    shift
fi
loop=$build/bench/zeltnavmsg_instruction_loop
if [ ! -x "$loop" ]; then
    echo "no $loop: build the bench preset first (scripts/bench.sh)" >&2
    exit 1
fi
command -v valgrind >/dev/null || scripts/deps.sh valgrind

formats=("$@")
if [ ${#formats[@]} -eq 0 ]; then
    formats=(GpsLNav QzssLNav BeidouD1 BeidouD2 GpsCNav2 BeidouCNav1 BeidouCNav2 Irnss)
fi
messages=${MESSAGES:-2000}

# Instructions the loop runs for one format and output form.
count() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null \
        --toggle-collect='*runLoop*' "$loop" "$1" "$2" "$messages" 2>&1 >/dev/null |
        awk '/Collected :/ {print $NF}'
}

printf '%-12s %10s %10s %10s   (instructions per message, %d messages)\n' \
    Format Decode Fields Json "$messages"
for format in "${formats[@]}"; do
    row=()
    for mode in decode fields json; do
        instructions=$(count "$format" "$mode")
        row+=("$((instructions / messages))")
    done
    printf '%-12s %10s %10s %10s\n' "$format" "${row[@]}"
done
