"""read_log() against `navmsg log` on the three public receiver logs: the messages
(--extract), the reader's counts (the summary), the records (--output json) and the
table (--output csv); every kind of source alike; four threads at once as one."""

import collections
import io
import itertools
import json
import re
import subprocess
from concurrent.futures import ThreadPoolExecutor

import pytest

import zeltnavmsg
from conftest import DATA

LOGS = sorted(p for p in (DATA / "receiver-logs").iterdir() if p.suffix in (".ubx", ".log"))

# The summary's words for each count of stats (all that navmsg reports when not zero).
SKIPPED = {"records of signals not decoded": "unmapped_signals",
           "UBX frames with a bad checksum": "ubx_bad_checksums",
           "SBF blocks with a bad CRC": "sbf_bad_crcs",
           "SBF blocks with an impossible length": "sbf_bad_lengths",
           "frames cut off by the end of the log": "truncated_frames",
           "malformed records": "malformed_records",
           "records failing the receiver's or their frame's check": "failed_checks",
           "B-CNAV1 frames without all their records": "incomplete_frames",
           "bytes outside frames": "skipped_bytes"}


def navmsg_log(navmsg, path, *options):
    run = subprocess.run([navmsg, "log", *options, path], check=True, capture_output=True,
                         encoding="utf-8")
    return run.stdout, run.stderr


def identity(m):
    return m.sat, m.signal_name, m.time, m.format, m.subframe, m.page, m.hex, m.offset


@pytest.mark.parametrize("path", LOGS, ids=lambda p: p.name)
def test_messages_and_counts_are_navmsgs(navmsg, path):
    out, err = navmsg_log(navmsg, path, "--extract")
    reader = zeltnavmsg.read_log(path)
    messages = list(reader)
    assert [(m.sat, m.format.name, m.subframe, m.page, m.hex) for m in messages] == \
        [(sat, fmt, int(sf), int(pg), hex_) for sat, fmt, sf, pg, hex_ in map(str.split,
                                                                               out.splitlines())]
    total, formats = re.search(r": (\d+) messages: (.*)\n", err).groups()
    assert dict(collections.Counter(m.format.name for m in messages)) == \
        {name: int(n) for name, n in (item.split() for item in formats.split(", "))}
    skipped = dict.fromkeys(SKIPPED.values(), 0)
    line = re.search(r"skipped: (.*)\n", err)[1]
    if line != "nothing":
        skipped.update({SKIPPED[what]: int(n) for n, what in
                        (item.split(" ", 1) for item in line.split(", "))})
    stats = reader.stats
    assert {k: stats[k] for k in skipped} == skipped
    assert stats["messages"] == int(total) and stats["bytes"] == path.stat().st_size
    assert {m.protocol for m in messages} == {"sbf" if stats["sbf_blocks"] else "ubx"}
    for m in messages:
        assert m.signal is zeltnavmsg.signal_type(m.sat, m.signal_name)


@pytest.mark.parametrize("all_fields", [False, True])
def test_records_are_navmsg_log_json(navmsg, all_fields, tmp_path):
    # Also a GPS subframe's UBX frame alone: no navigation epoch before it, so no time.
    x20p = (DATA / "receiver-logs/ublox-x20p.log").read_bytes()
    start = next(zeltnavmsg.read_log(x20p)).offset
    alone = tmp_path / "alone.ubx"
    alone.write_bytes(x20p[start:start + 8 + int.from_bytes(x20p[start + 4:start + 6], "little")])
    options = ["--output", "json"] + (["--all-fields"] if all_fields else [])
    timeless = 0
    for path in LOGS + [alone]:
        records = [json.loads(line) for line in navmsg_log(navmsg, path, *options)[0].splitlines()]
        messages = list(zeltnavmsg.read_log(path, all_fields=all_fields))
        assert [m.to_dict() for m in messages] == records
        for m, r in zip(messages, records):
            assert list(m.to_dict()) == list(r)  # "signal" and "time" where navmsg puts them
            assert (m.line, m.signal_name, m.layout, m.ok) == \
                (r["line"], r["signal"], r["layout"], r["ok"])
            assert m.time == (tuple(r["time"].values()) if "time" in r else None)
            assert len(m.fields) == len(r["fields"])
            timeless += m.time is None
    assert timeless == 1


def test_the_table_is_navmsg_log_csv(navmsg):
    pandas = pytest.importorskip("pandas")
    for path in LOGS:
        csv = pandas.read_csv(io.StringIO(navmsg_log(navmsg, path, "--output", "csv")[0]),
                              dtype=str, keep_default_na=False)
        frame = zeltnavmsg.to_dataframe(zeltnavmsg.read_log(path))
        assert list(frame.columns) == list(csv.columns) and len(frame) == len(csv) > 0
        for column in ("sat", "format", "path", "raw", "signal"):
            assert frame[column].tolist() == csv[column].tolist(), column
        for column in ("line", "subframe", "page", "value", "week", "tow"):
            expected = csv[column].replace("", "nan").astype(float)
            assert frame[column].astype(float).equals(expected), column


class Trickle:
    """A binary file whose read() gives 1 to 4093 bytes, whatever it is asked for."""

    def __init__(self, data):
        self.data, self.sizes = memoryview(data), itertools.cycle((1, 7, 2, 4093, 13, 517, 3))

    def read(self, _):
        size = next(self.sizes)
        chunk, self.data = self.data[:size], self.data[size:]
        return chunk


def test_every_source_gives_the_same_messages():
    data = b"".join(path.read_bytes() for path in LOGS)
    # The logs one after the other: the same messages, the offsets moved on by the sizes
    # of the logs before.
    expected, start = [], 0
    for path in LOGS:
        expected += [identity(m)[:-1] + (m.offset + start,) for m in zeltnavmsg.read_log(path)]
        start += path.stat().st_size
    assert len(expected) == 264
    sources = [(data, {}), (bytearray(data), {}), (memoryview(data), {}), (Trickle(data), {}),
               (io.BytesIO(data), {"chunk_size": 5})]
    for source, options in sources:
        assert [identity(m) for m in zeltnavmsg.read_log(source, **options)] == expected, source
    first = expected[:len(list(zeltnavmsg.read_log(LOGS[0])))]
    with open(LOGS[0], "rb") as file:
        for source in (str(LOGS[0]), LOGS[0], file):
            assert [identity(m) for m in zeltnavmsg.read_log(source, chunk_size=999)] == first


@pytest.mark.parametrize("source, options, error, message", [
    ("/no/such/log.ubx", {}, FileNotFoundError, "No such file or directory: '/no/such/log.ubx'"),
    (DATA, {}, IsADirectoryError, "Is a directory: '%s'" % DATA),
    (3, {}, TypeError, "read_log takes a path, bytes or a binary file object, not int"),
    (b"", {"chunk_size": 0}, ValueError, "chunk_size must be 1 or more, not 0"),
    (io.StringIO("$GPGGA"), {}, TypeError, "read_log needs a binary file: its read() gave str, "
                                           "not bytes"),
])
def test_source_errors(source, options, error, message):
    with pytest.raises(error) as caught:
        next(zeltnavmsg.read_log(source, **options))
    assert str(caught.value).endswith(message)


def test_four_threads_read_as_one():
    def read(path):
        return [(identity(m), m.to_dict()) for m in zeltnavmsg.read_log(path, chunk_size=4096)]

    expected = [read(path) for path in LOGS]
    jobs = [LOGS[(i + k) % len(LOGS)] for i in range(4) for k in range(3 * len(LOGS))]
    with ThreadPoolExecutor(4) as pool:
        for path, got in zip(jobs, pool.map(read, jobs)):
            assert got == expected[LOGS.index(path)], path
