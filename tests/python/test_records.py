"""decode_fields() against navmsg's JSON Lines for every real message and the made-up
ones of record_messages: to_dict() must be the record navmsg writes, and the attributes,
converted by the module on their own road, must say the same."""

import json

import pytest

import zeltnavmsg

VALUE_TYPES = {"unsigned": int, "signed": int, "real": float, "flag": bool, "character": str}


def segments(bits):
    return [list(segment) for segment in bits]


def check_status(record):
    if record.get("incomplete"):
        return "incomplete"
    if "corrected" in record:
        return "corrected"
    return "pass" if record["ok"] else "fail"


@pytest.mark.parametrize("all_fields", [False, True])
def test_records_are_what_navmsg_writes(record_messages, navmsg_batch, all_fields):
    options = ["--output", "json"] + (["--all-fields"] if all_fields else [])
    records = [json.loads(line) for line in navmsg_batch(record_messages, *options).splitlines()]
    assert len(records) == len(record_messages)
    kinds, statuses = set(), set()
    for line, ((fmt, sat, subframe, page, hex_), record) in enumerate(
            zip(record_messages, records), start=1):
        m = zeltnavmsg.decode_fields(fmt, subframe, page, hex_, all_fields=all_fields,
                                     sat=sat, line=line)
        assert m.to_dict() == record
        assert list(m.to_dict()) == list(record)  # the keys in navmsg's order
        assert (m.line, m.sat, m.format.name, m.subframe, m.page, m.layout, m.ok) == tuple(
            record[k] for k in ("line", "sat", "format", "subframe", "page", "layout", "ok"))
        assert len(m.fields) == len(record["fields"]) and len(m.checks) == len(record["checks"])
        for f, r in zip(m.fields, record["fields"]):
            assert (f.path, f.name, f.kind, f.role, f.units, segments(f.bits)) == (
                r["path"], r["name"], r["kind"], r.get("role", "data"), r["units"], r["bits"])
            assert f.raw == int(r["raw"], 16) and f.raw < 1 << 4 * len(r["raw"])
            assert f.value == r["value"] and type(f.value) is VALUE_TYPES[f.kind], f
            assert m[f.path].path == f.path
            kinds.add(f.kind)
        for c, r in zip(m.checks, record["checks"]):
            assert (c.name, c.ok, c.status, segments(c.bits), c.corrected_bit) == (
                r["name"], r["ok"], check_status(r), r["bits"], r.get("corrected"))
            assert (c.computed, c.received) == (int(r["computed"], 16), int(r["received"], 16))
            assert len(r["computed"]) == (c.check_bits + 3) // 4
            statuses.add(c.status)
    assert statuses == {"pass", "fail", "corrected", "incomplete"}
    assert kinds == set(VALUE_TYPES) if all_fields else kinds >= {"real", "flag", "character"}


def test_a_message_without_origin_and_a_field_by_name():
    m = zeltnavmsg.decode_fields("GpsLNav", 4, 17, "0" * 17 + "ff" + "0" * 56)
    assert (m.sat, m.line, list(m.to_dict())[:2]) == ("", None, ["sat", "format"])
    assert m["ch01"].value == "\xff"
    assert m["parity3"].role == "check"  # found though not among the fields
    assert "parity3" not in {f.name for f in m.fields}
    with pytest.raises(KeyError):
        m["toe"]
