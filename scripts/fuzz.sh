#!/usr/bin/env bash
# Builds the fuzz target (preset `fuzz`: Clang, libFuzzer, ASan + UBSan) and runs it.
#
#   scripts/fuzz.sh [SECONDS] [extra libFuzzer flags...]     default 60 seconds
#
# The corpus grows in build/fuzz/corpus (kept between runs); the seeds come from
# examples/messages.txt and every supported format's sample. A finding is saved as
# build/fuzz/crash-* (or leak-*, timeout-*) and the run fails with the log's tail.
# Library output that short subframes cause on standard error is discarded
# (-close_fd_mask=2); libFuzzer and the sanitizers still report.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
shift || true

scripts/deps.sh clang libclang-rt-14-dev
cmake --workflow --preset fuzz >/dev/null

build=build/fuzz
corpus=$build/corpus
log=$build/fuzz.log
mkdir -p "$corpus"

echo "== fuzz: ${seconds}s, $(nproc) core(s), log in $log" >&2
status=0
# -max_len: the longest frame is 221 digits; 4096 leaves room for far too long input.
"$build/tests/fuzz/navmsg_fuzz" "$corpus" "$build/tests/fuzz/seeds" \
    -max_total_time="$seconds" -max_len=4096 -timeout=10 -rss_limit_mb=2048 \
    -close_fd_mask=2 -artifact_prefix="$build/" -print_final_stats=1 "$@" \
    >"$log" 2>&1 || status=$?

if [ "$status" -ne 0 ]; then
    tail -n 60 "$log" >&2
    echo "fuzz: FAILED (status $status); the input is saved under $build/" >&2
    exit 1
fi
grep -E '^(Done|stat::number_of_executed_units|stat::peak_rss_mb)' "$log" >&2 || true
echo "fuzz: $(find "$corpus" -type f | wc -l) inputs in the corpus, no finding" >&2
