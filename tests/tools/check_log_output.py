#!/usr/bin/env python3
"""navmsg log on the public receiver logs: --extract as batch input that decodes to the
same records, JSON with the receiver time, CSV through Python's csv module, and --strict
failing on the one subframe of the logs whose parity fails."""

import csv
import io
import json
import pathlib
import subprocess
import sys

navmsg, logs = sys.argv[1], pathlib.Path(sys.argv[2])


def run(*args, stdin=None, status=0):
    done = subprocess.run([navmsg, *args], input=stdin, capture_output=True, check=False)
    assert done.returncode == status, (args, done.returncode, done.stderr[-400:])
    return done.stdout.decode("ascii"), done.stderr.decode("utf-8")


# The messages per format are the reader's (RealLog.CountsPerFormatAsTheLogNotesState),
# and --extract lists them (Python.test_logs); here what navmsg makes of them.
weeks = {"ublox-x20p.log": 2408, "20230919-114418.ubx": 2280, "pygpsdata_x5_rawnav.log": 2367}
for name in weeks:
    path = str(logs / name)
    extracted, _ = run("log", "--extract", path)
    lines = extracted.splitlines()

    # The same messages as batch input give the same records; log adds signal and time.
    from_log = [json.loads(line) for line in run("log", "--output", "json", path)[0].splitlines()]
    from_batch = [json.loads(line)
                  for line in run("batch", "--output", "json", "-", stdin=extracted.encode())[0].splitlines()]
    assert len(from_log) == len(lines) == len(from_batch), name
    for a, b in zip(from_log, from_batch):
        assert (a["sat"], a["format"], a["subframe"], a["page"], a["fields"], a["checks"]) == \
               (b["sat"], b["format"], b["subframe"], b["page"], b["fields"], b["checks"]), a["line"]
        assert a["signal"] and a.get("time", {"week": weeks[name]})["week"] == weeks[name], a

    # Standard input, in the CSV form: one row per field and the log's own columns.
    rows = list(csv.reader(io.StringIO(run("log", "--output", "csv", "-",
                                           stdin=(logs / name).read_bytes())[0], newline="")))
    assert rows[0][11:] == ["signal", "week", "tow"], rows[0]
    assert len(rows) - 1 == sum(len(r["fields"]) for r in from_log), name
    assert all(len(row) == 14 for row in rows), name

# G28's subframe 3 in the X20P log fails word 2's parity: --check shows it, --strict fails.
text, summary = run("log", "--check", "--sat", "G28", str(logs / "ublox-x20p.log"))
assert "Checks: FAILED word 2 parity" in text, text[-500:]
assert "GpsLNav: " in summary and " 1 failed" in summary, summary
_, report = run("log", "--check", "--strict", str(logs / "ublox-x20p.log"), status=1)
assert "Checks: FAILED word 2 parity" in report, report
# Filters: a format of one system, another's satellites; a name nobody knows.
assert run("log", "--extract", "--format", "CNAV2", "--sat", "C",
           str(logs / "ublox-x20p.log"))[0].count("BeidouCNav2") == 36
run("log", "--format", "NOPE", str(logs / "ublox-x20p.log"), status=2)
print("logs ok")
