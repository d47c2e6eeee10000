#!/usr/bin/env bash
# navmsg log on receiver logs as a stream:
#  1. memory: a log repeated to SIZE_MB megabytes (default 1024) piped through
#     `navmsg log -` stays in constant memory (maximum resident set size from
#     /usr/bin/time -v, against the same for one copy of the log);
#  2. time: `navmsg log` on a repeated log against `navmsg batch` on the same
#     messages (from `navmsg log --extract`), text and JSON output, both read from a
#     pipe, best of three CPU times.
# Usage: bench/log-stream.sh [NAVMSG] [SIZE_MB]
set -euo pipefail
cd "$(dirname "$0")/.."
navmsg=${1:-build/bench/tools/navmsg}
size_mb=${2:-1024}
log=tests/data/receiver-logs/20230919-114418.ubx
scripts/deps.sh time >/dev/null

bytes=$(stat -c %s "$log")
copies=$(( size_mb * 1024 * 1024 / bytes + 1 ))
repeat() { for ((i = 0; i < $1; ++i)); do cat "$log"; done; }
rss() { grep 'Maximum resident' "$1" | awk '{print $NF}'; }

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
/usr/bin/time -v "$navmsg" log --output json "$log" >/dev/null 2>"$tmp/one"
repeat "$copies" | /usr/bin/time -v "$navmsg" log --output json - >/dev/null 2>"$tmp/many"
echo "memory: one copy ($bytes bytes) $(rss "$tmp/one") KiB; $copies copies through a pipe ($(( copies * bytes / 1048576 )) MiB) $(rss "$tmp/many") KiB"

# Time: 200 copies (about 40 MB, 31200 messages) streamed ten times through a pipe
# (410 MB, 312,000 messages), so that CPU times are long against the 10 ms of their
# resolution; the same messages' batch lines likewise.
repeat 200 > "$tmp/log.ubx"
"$navmsg" log --extract "$tmp/log.ubx" > "$tmp/batch.txt" 2>/dev/null
times=10
messages=$(( times * $(wc -l < "$tmp/batch.txt") ))
stream() { for ((i = 0; i < times; ++i)); do cat "$1"; done; }
best() {  # best CPU seconds (user + system) of three runs of "$@" reading stream "$1"
    local input=$1 best=""
    shift
    for _ in 1 2 3; do
        stream "$input" | /usr/bin/time -f '%U %S' -o "$tmp/t" "$@" >/dev/null 2>/dev/null
        local t
        t=$(awk '{print $1 + $2}' "$tmp/t")
        if [ -z "$best" ] || awk "BEGIN {exit !($t < $best)}"; then best=$t; fi
    done
    echo "$best"
}
for form in text json; do
    log_s=$(best "$tmp/log.ubx" "$navmsg" log --output "$form" -)
    batch_s=$(best "$tmp/batch.txt" "$navmsg" batch --output "$form" -)
    awk -v f="$form" -v m="$messages" -v l="$log_s" -v b="$batch_s" 'BEGIN {
        printf "%s: log %.2f s, batch %.2f s CPU for %d messages: log/batch %.2f\n", f, l, b, m, l / b }'
done
