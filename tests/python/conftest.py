import os
import pathlib
import subprocess

import pytest

DATA = pathlib.Path(__file__).resolve().parents[1] / "data"


@pytest.fixture(scope="session")
def real_messages():
    """(format, satellite, subframe, page, hex) of every real broadcast in tests/data."""
    rows = []
    for path in sorted((DATA / "real-data").glob("*.tsv")):
        for line in path.read_text().splitlines():
            if line and not line.startswith("#"):
                fmt, sat, subframe, page, hex_ = line.split("\t")[:5]
                rows.append((fmt, sat, int(subframe), int(page), hex_))
    return rows


@pytest.fixture(scope="session")
def names_table():
    """The rows of tests/data/names.tsv: lookup, satellite, name, expected result."""
    lines = (DATA / "names.tsv").read_text().splitlines()
    return [line.split("\t") for line in lines if line and not line.startswith("#")]


@pytest.fixture(scope="session")
def navmsg():
    return os.environ["NAVMSG"]


def flip_bit(hex_, bit):
    """The hex text with input bit `bit` (0 = first sent) inverted."""
    digit = int(hex_[bit // 4], 16) ^ (8 >> bit % 4)
    return hex_[:bit // 4] + "%x" % digit + hex_[bit // 4 + 1:]


@pytest.fixture(scope="session")
def record_messages(real_messages):
    """The real messages, then what they lack: a character above ASCII (0xFF in LNAV
    subframe 4 page 17), a parity failure, a BCH-corrected bit and checks left
    incomplete by a short message. (format, satellite, subframe, page, hex) each."""
    lnav = next(row for row in real_messages if row[0] == "GpsLNav")
    d1 = next(row for row in real_messages if row[0] == "BeidouD1")
    return real_messages + [
        ("GpsLNav", "G01", 4, 17, "0" * 17 + "ff" + "0" * 56),
        lnav[:4] + (flip_bit(lnav[4], 170),),
        d1[:4] + (flip_bit(d1[4], 131),),
        ("GpsLNav", "G01", 1, 0, lnav[4][:12]),
    ]


@pytest.fixture(scope="session")
def navmsg_batch(navmsg, tmp_path_factory):
    """Runs `navmsg batch OPTIONS FILE` over rows of record_messages (line N is row N,
    the format named by its enumerator) and returns standard output."""
    def run(rows, *options):
        path = tmp_path_factory.mktemp("batch") / "messages.txt"
        path.write_text("".join("%s %s %d %d %s\n" % (sat, fmt, subframe, page, hex_)
                                for fmt, sat, subframe, page, hex_ in rows))
        return subprocess.run([navmsg, "batch", *options, path], check=True,
                              capture_output=True, encoding="utf-8").stdout
    return run
