import os
import pathlib

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
