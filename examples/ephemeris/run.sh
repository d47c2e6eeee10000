#!/bin/sh
# An ephemeris for a signal simulator, given as JSON with the field records' names and
# units, becomes broadcast bits: GPS LNAV subframes 1-3 and a BeiDou B-CNAV2 message type
# 10/11 pair, with their parity and CRC. navmsg then decodes each message again and the
# values given are shown beside the values decoded (rounded to each field's LSB).
#
#   examples/ephemeris/run.sh [NAVMSG]     (needs jq)
set -eu
here=$(dirname "$0")
navmsg=${1:-navmsg}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

jq -c -f "$here/records.jq" "$here/ephemeris.json" > "$work/records.jsonl"
"$navmsg" encode "$work/records.jsonl" > "$work/broadcast.txt"
echo "# SAT FORMAT SUBFRAME PAGE HEX, ready for navmsg batch or a simulator"
cat "$work/broadcast.txt"
echo
echo "# decoded again: field, value given, value decoded, units"
# --strict: a message that fails its parity or CRC check fails the run.
"$navmsg" batch --strict --output json "$work/broadcast.txt" |
    jq -r --slurpfile given "$work/records.jsonl" '
        . as $m | $given[.line - 1] as $g |
        "\($m.sat) \($m.layout)",
        ($g.fields[] | . as $f |
            ($m.fields[] | select(.name == $f.name)) as $d |
            "  \($f.name)\t\($f.value)\t\($d.value)\t\($d.units)")'
