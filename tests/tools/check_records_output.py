#!/usr/bin/env python3
"""navmsg batch --output json and --output csv read back through Python's own json
and csv parsers: one JSON object per non-comment input line (an error record for a
line that fails), one CSV row per field, and the two agree on every value."""

import csv
import io
import json
import math
import pathlib
import subprocess
import sys

navmsg, data_dir = sys.argv[1], pathlib.Path(sys.argv[2])

# Every real message as a batch line (the format column holds enumerator names),
# then lines that fail in each way a line can.
lines = []
for tsv in sorted(data_dir.glob("*.tsv")):
    for row in tsv.read_text(encoding="utf-8").splitlines():
        if row and not row.startswith("#"):
            cells = row.split("\t")
            lines.append(f"{cells[1]} {cells[0]} {cells[2]} {cells[3]} {cells[4]}")
failing = ["G01 LNAV 1 0 8b0z", "G01 NOPE 1 0 8b", "G01 LNAV x 0 8b", "G01 LNAV 1", "R01 FDMA 1 0 00"]
text = "# a comment\n\n" + "\n".join(lines + failing) + "\n"
expected_lines = len(lines) + len(failing)


def run(form, *extra):
    done = subprocess.run([navmsg, "batch", "--output", form, *extra, "-"], input=text.encode(),
                          capture_output=True, check=False)
    assert done.returncode == 1, (form, done.returncode, done.stderr[-300:])
    return done.stdout.decode("ascii" if form == "json" else "utf-8")


records = [json.loads(line) for line in run("json").splitlines()]
assert len(records) == expected_lines, (len(records), expected_lines)
errors = [r for r in records if "error" in r]
assert [r["line"] for r in errors] == list(range(len(lines) + 3, expected_lines + 3)), errors
assert all(set(r) == {"line", "error"} and set(r["error"]) == {"type", "message"} for r in errors)
messages = [r for r in records if "error" not in r]
keys = ["line", "sat", "format", "subframe", "page", "layout", "fields", "checks", "ok"]
assert all(list(r) == keys for r in messages), list(messages[0])
field_keys = ["path", "name", "kind", "value", "units", "raw", "bits"]
assert all(list(f) == field_keys for r in messages for f in r["fields"])

# With --all-fields the bits of each message's fields (whole words aside) tile it.
for r in (json.loads(line) for line in run("json", "--all-fields").splitlines()):
    if "error" in r:
        continue
    bits = sorted(b for f in r["fields"] if f["role"] != "word"
                  for first, count in f["bits"] for b in range(first, first + count))
    assert bits == list(range(len(bits))), (r["line"], r["layout"])

rows = list(csv.reader(io.StringIO(run("csv"), newline="")))
assert rows[0] == ["line", "sat", "format", "subframe", "page", "path", "name", "value",
                   "units", "raw", "ok"]
json_rows = [(r, f) for r in messages for f in r["fields"]]
assert len(rows) - 1 == len(json_rows), (len(rows) - 1, len(json_rows))
for row, (r, f) in zip(rows[1:], json_rows):
    assert len(row) == 11, row
    assert row[:7] == [str(r["line"]), r["sat"], r["format"], str(r["subframe"]), str(r["page"]),
                       f["path"], f["name"]], (row, f)
    if f["kind"] == "character":
        assert row[7] == f["value"], (row, f)
    else:
        assert float(row[7]) == f["value"] or (math.isnan(f["value"])), (row, f)
    assert row[8:10] == [f["units"], f["raw"]] and row[10] == str(r["ok"]).lower(), row
print(f"{len(messages)} records, {len(rows) - 1} rows")

# decode: the same records without "line"; a message that fails keeps its place.
gps = next(line for line in lines if line.split()[1] == "GpsLNav").split()[4]
hexes = [gps, "8b0z", gps]
done = subprocess.run([navmsg, "decode", "--sat", "G01", "--subframe", "1", "--output", "json",
                       *hexes], capture_output=True, check=False)
decoded = [json.loads(line) for line in done.stdout.decode("ascii").splitlines()]
assert done.returncode == 1 and len(decoded) == 3, (done.returncode, decoded)
assert "line" not in decoded[0] and decoded[0]["fields"] == decoded[2]["fields"], decoded[0]
assert decoded[1] == {"error": {"type": "DecodingError",
                                "message": "digit 4: Can't parse symbol as hex digit: z"}}
