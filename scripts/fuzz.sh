#!/usr/bin/env bash
# Builds the fuzz targets (preset `fuzz`: Clang, libFuzzer, ASan + UBSan) and runs them:
# the decoder's for SECONDS, then the receiver log reader's for LOG_SECONDS.
#
#   scripts/fuzz.sh [SECONDS] [extra libFuzzer flags...]     default 60 seconds
#   LOG_SECONDS=30 scripts/fuzz.sh                           log reader: default 10 seconds
#
# The corpora grow in build/fuzz/corpus and build/fuzz/log-corpus (kept between runs);
# the decoder's seeds come from examples/messages.txt and every supported format's
# sample, the log reader's are the logs in tests/data/receiver-logs. A finding is saved
# as build/fuzz/crash-* (or leak-*, timeout-*) and the run fails with the log's tail.
# Library output that short subframes cause on standard error is discarded
# (-close_fd_mask=2); libFuzzer and the sanitizers still report.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
shift || true
log_seconds=${LOG_SECONDS:-10}

scripts/deps.sh clang libclang-rt-14-dev
cmake --workflow --preset fuzz >/dev/null

build=build/fuzz

# run NAME TARGET SECONDS MAX_LEN CORPUS SEEDS [flags...]
run() {
    local name=$1 target=$2 time=$3 max_len=$4 corpus=$5 seeds=$6
    shift 6
    local log=$build/$name.log
    mkdir -p "$corpus"
    echo "== $name: ${time}s, $(nproc) core(s), log in $log" >&2
    local status=0
    "$build/tests/fuzz/$target" "$corpus" "$seeds" \
        -max_total_time="$time" -max_len="$max_len" -timeout=10 -rss_limit_mb=2048 \
        -close_fd_mask=2 -artifact_prefix="$build/" -print_final_stats=1 "$@" \
        >"$log" 2>&1 || status=$?
    if [ "$status" -ne 0 ]; then
        tail -n 60 "$log" >&2
        echo "$name: FAILED (status $status); the input is saved under $build/" >&2
        exit 1
    fi
    grep -E '^(Done|stat::number_of_executed_units|stat::peak_rss_mb)' "$log" >&2 || true
    echo "$name: $(find "$corpus" -type f | wc -l) inputs in the corpus, no finding" >&2
}

# -max_len: the longest frame is 221 digits; 4096 leaves room for far too long input.
run fuzz navmsg_fuzz "$seconds" 4096 "$build/corpus" "$build/tests/fuzz/seeds" "$@"
# The logs are cut to their first 16 KiB as seeds: hundreds of frames of every kind
# they hold, short enough for many runs a second.
run log-fuzz navmsg_log_fuzz "$log_seconds" 16384 "$build/log-corpus" tests/data/receiver-logs "$@"
