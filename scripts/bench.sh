#!/usr/bin/env bash
# Builds the bench preset (Release, GCC) and measures:
#  1. Decode, DecodeFields and the JSON records per format on the real messages,
#     against hex parsing alone and the plain snprintf listing: median of 5
#     repetitions (extra arguments go to the benchmark binary, e.g.
#     --benchmark_filter=GpsLNav);
#  2. navmsg batch on 1,000,000 real GPS LNAV subframes written to /dev/null, as text
#     and as JSON;
#  3. instructions per message of each format's loops, counted by callgrind
#     (bench/instructions.sh): the figure to compare on a busy machine.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh libbenchmark-dev bc valgrind
cmake --workflow --preset bench >/dev/null

echo "load average: $(cut -d' ' -f1-3 /proc/loadavg)"
build/bench/bench/zeltnavmsg_bench --benchmark_repetitions=5 \
    --benchmark_report_aggregates_only=true "$@"

# The real GPS subframes as batch lines, cycled to a million.
input=build/bench/lnav-batch.txt
if [ ! -s "$input" ]; then
    awk -F'\t' '!/^#/ && NF >= 5 {line[n++] = $2 " LNAV " $3 " " $4 " " $5}
        END {for (i = 0; i < 1000000; ++i) print line[i % n]}' \
        tests/data/real-data/gps_lnav.tsv > "$input"
fi
messages=$(wc -l < "$input")
# Wall time suffers from whatever else the machine runs; CPU time (user + system)
# is the steadier figure. Best of three runs each.
batch() {
    local label=$1
    shift
    TIMEFORMAT='%R %U %S'
    local best_wall="" best_cpu="" wall user sys cpu
    for run in 1 2 3; do
        read -r wall user sys < <({ time build/bench/tools/navmsg batch "$@" "$input" > /dev/null; } 2>&1)
        cpu=$(echo "$user + $sys" | bc -l)
        if [ -z "$best_wall" ] || [ "$(echo "$wall < $best_wall" | bc -l)" = 1 ]; then best_wall=$wall; fi
        if [ -z "$best_cpu" ] || [ "$(echo "$cpu < $best_cpu" | bc -l)" = 1 ]; then best_cpu=$cpu; fi
    done
    printf 'navmsg batch %s> /dev/null, %d LNAV messages: %.2f s wall (%.0f messages/s), %.2f s CPU (%.0f messages/s)\n' \
        "$label" "$messages" "$best_wall" "$(echo "$messages / $best_wall" | bc -l)" \
        "$best_cpu" "$(echo "$messages / $best_cpu" | bc -l)"
}
batch ""
batch "--output json " --output json

bench/instructions.sh build/bench
