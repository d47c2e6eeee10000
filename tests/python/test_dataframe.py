"""to_dataframe() against pandas.read_csv of navmsg's CSV, and without pandas."""

import io
import subprocess
import sys

import pytest

import zeltnavmsg

pandas = pytest.importorskip("pandas")


@pytest.mark.parametrize("all_fields", [False, True])
def test_rows_are_navmsgs_csv(record_messages, navmsg_batch, all_fields):
    options = ["--output", "csv"] + (["--all-fields"] if all_fields else [])
    # Every cell as navmsg wrote it: pandas would read hex such as "1E5" as a number, and
    # its C parser a NUL character as an empty cell.
    csv = pandas.read_csv(io.StringIO(navmsg_batch(record_messages, *options)), dtype=str,
                          keep_default_na=False, engine="python")
    frame = zeltnavmsg.to_dataframe(
        zeltnavmsg.decode_fields(fmt, subframe, page, hex_, all_fields=all_fields, sat=sat,
                                 line=line)
        for line, (fmt, sat, subframe, page, hex_) in enumerate(record_messages, start=1))
    assert list(frame.columns) == list(csv.columns) and len(frame) == len(csv) > 10000
    for column in ("sat", "format", "path", "name", "units", "raw"):
        assert frame[column].tolist() == csv[column].tolist(), column
    for column in ("line", "subframe", "page"):
        assert frame[column].tolist() == csv[column].astype(int).tolist(), column
    assert frame["ok"].tolist() == (csv["ok"] == "true").tolist()
    assert frame["ok"].dtype == bool and not frame["ok"].all()
    characters = [isinstance(v, str) for v in frame["value"]]
    assert 0 < sum(characters) < len(frame)
    assert [v if c else float(v) for v, c in zip(csv["value"], characters)] == \
        frame["value"].tolist()


def test_one_message_and_none():
    m = zeltnavmsg.decode_fields("GpsLNav", 1, 0, "8b0d3487fffd614d351000091b1de78f322ebaf7")
    frame = zeltnavmsg.to_dataframe(m)
    assert frame["path"].tolist() == [f.path for f in m.fields]
    assert frame["line"].isna().all() and (frame["sat"] == "").all()
    assert frame["value"].dtype == float
    empty = zeltnavmsg.to_dataframe([])
    assert list(empty.columns) == list(frame.columns) and len(empty) == 0


def test_the_package_imports_without_pandas():
    script = """
import sys
sys.modules["pandas"] = None  # import pandas fails
import zeltnavmsg
try:
    zeltnavmsg.to_dataframe([])
except ImportError as e:
    print(e)
"""
    out = subprocess.run([sys.executable, "-c", script], check=True, capture_output=True,
                         text=True).stdout
    assert out.startswith("zeltnavmsg.to_dataframe needs pandas, which is not installed")
