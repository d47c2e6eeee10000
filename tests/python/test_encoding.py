"""MessageEncoder and encode(): real broadcasts back bit for bit, the range ends of
fields whose range and LSB the interface documents give, and edits as `navmsg encode`
makes them."""

import collections
import subprocess

import pytest

import zeltnavmsg
from zeltnavmsg import DecodingError, EncodingError, MessageEncoder, encode

LNAV1 = "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0"


def test_real_messages_come_back_bit_for_bit(real_messages):
    formats = set()
    for fmt, sat, subframe, page, hex_ in real_messages:
        m = zeltnavmsg.decode_fields(fmt, subframe, page, hex_, all_fields=True)
        by_value = MessageEncoder(fmt, subframe, page)
        expected = hex_.lower()[:(by_value.bit_count + 3) // 4]
        assert len(expected) == (by_value.bit_count + 3) // 4
        assert encode(m) == expected, (fmt, sat, subframe, page)
        assert encode(fmt, subframe, page, hex_.upper(), keep_checks=True) == expected
        # Every field by its path from zeros, its value as Python has it (a character
        # as str, a flag as bool), fields too wide for a double by their raw bits.
        parts = collections.Counter()
        for f in m.fields:
            part = parts[f.path]
            parts[f.path] += 1
            if f.role == "word":
                continue
            if sum(count for _, count in f.bits) > 53:
                by_value.set_raw(f.path, f.raw, part)
            else:
                by_value.set(f.path, f.value, part)
        assert by_value.hex() == expected, (fmt, sat, subframe, page)
        formats.add(fmt)
    assert len(formats) == 8


# Range ends from the interface documents: bits, LSB and sign of each field.
@pytest.mark.parametrize("fmt, subframe, page, key, value, outcome", [
    # 16 bits of 16 s: 0 to 1048560 s; up to half an LSB beyond rounds to the end.
    ("GpsLNav", 2, 0, "toe", 1048567.9, 0xFFFF),
    ("GpsLNav", 2, 0, "toe", -7.9, 0),
    ("GpsLNav", 2, 0, "toe", -16, "toe: -16 s is outside the range 0 to 1048560 s (LSB 16 s)"),
    ("GpsLNav", 4, 18, "dtls", 127, 127),
    ("GpsLNav", 4, 18, "dtls", -128, 0x80),
    ("GpsLNav", 4, 18, "dtls", 128, "dtls: 128 s is outside the range -128 to 127 s (LSB 1 s)"),
    ("GpsLNav", 4, 18, "dtls", -129, "dtls: -129 s is outside the range -128 to 127 s (LSB 1 s)"),
    ("BeidouD1", 1, 0, "toc", 1048576,
     "toc: 1048576 s is outside the range 0 to 1048568 s (LSB 8 s)"),
    ("GpsCNav2", 0, 0, "toe", 614400,
     "Subframe 2.Ephemeris.toe: 614400 s is outside the range 0 to 614100 s (LSB 300 s)"),
    ("GpsCNav2", 0, 0, "URAedINDEX", -17,
     "Subframe 2.URAedINDEX: -17 is outside the range -16 to 15 (LSB 1)"),
    ("Irnss", 1, 0, "week", 1024, "Subframe specific data.week: 1024 week is outside the range "
                                  "0 to 1023 week (LSB 1 week)"),
])
def test_one_lsb_beyond_a_range_end_is_refused(fmt, subframe, page, key, value, outcome):
    encoder = MessageEncoder(fmt, subframe, page)
    if isinstance(outcome, int):
        encoder.set(key, value)
        assert encoder.message()[key].raw == outcome
        return
    with pytest.raises(EncodingError) as caught:
        encoder.set(key, value)
    assert str(caught.value) == outcome
    assert isinstance(caught.value, DecodingError) and isinstance(caught.value, ValueError)
    assert encoder.hex() == MessageEncoder(fmt, subframe, page).hex()  # nothing written


@pytest.mark.parametrize("call, error, message", [
    (lambda e: e.set("toe", 1, part=1), EncodingError,
     'no field "toe" part 1 (it has 1 part, counted from 0) in Subframe 2: ephemeris, first part'),
    (lambda e: e.set("toe", "16"), TypeError, "toe: a str is the value of a character field only"),
    (lambda e: MessageEncoder("GpsLNav", 4, 17).set("ch03", "ZZ"), ValueError,
     "ch03: 'ZZ' is not one character from U+0000 to U+00FF"),
    (lambda e: e.set_raw("toe", -1), OverflowError, "raw -1 does not fit in 64 unsigned bits"),
    (lambda e: e.hex(flip=[300]), IndexError, "bit 300 is outside the message: bits 0 to 299"),
    (lambda e: MessageEncoder("CNav", 1, 0), DecodingError,
     "Encoding is not supported for this message format"),
    (lambda e: MessageEncoder("GpsLNav", 1, 0, "8x"), DecodingError,
     "Can't parse symbol as hex digit: x"),
    (lambda e: MessageEncoder(e.message(), 2), TypeError,
     "MessageEncoder of a Message takes no subframe, page or hex: the message has them"),
])
def test_encoder_errors(call, error, message):
    with pytest.raises(Exception) as caught:
        call(MessageEncoder("GpsLNav", 2, 0))
    assert (type(caught.value), str(caught.value)) == (error, message)


# (navmsg encode options, encode() arguments): the same message both ways.
@pytest.fixture
def edits(real_messages):
    d1 = next(row for row in real_messages if row[0] == "BeidouD1")
    irnss = next(row for row in real_messages if row[0] == "Irnss")
    return [
        (["--format", "GpsLNav", "--subframe", "2", "--set", "preamble=139", "--set",
          "subframe_id=2", "--set", "toe=352800", "--set", "m0=0.3123"],
         (("GpsLNav", 2, 0), {"set": {"preamble": 139, "subframe_id": 2, "toe": 352800,
                                      "m0": 0.3123}})),
        (["--format", "GpsLNav", "--subframe", "1", "--from", LNAV1, "--set", "af0=2e-4",
          "--keep-checks"],
         (("GpsLNav", 1, 0, LNAV1), {"set": {"af0": 2e-4}, "keep_checks": True})),
        (["--format", "BeidouD1", "--subframe", str(d1[2]), "--page", str(d1[3]), "--from",
          d1[4], "--flip", "163", "--flip", "0"],
         (d1[:1] + d1[2:], {"flip": [163, 0]})),
        (["--format", "GpsLNav", "--subframe", "4", "--page", "17", "--set", "ch01=Z", "--set",
          "ch22=\xe9"],
         (("GpsLNav", 4, 17), {"set": {"ch01": "Z", "ch22": "\xe9"}})),
        (["--format", "BeidouCNav2", "--raw", "Message data[2]=0x5", "--raw", "SOW=77"],
         (("BeidouCNav2",), {"raw": {("Message data", 2): 5, "SOW": 77}})),
        (["--format", "Irnss", "--subframe", str(irnss[2]), "--page", str(irnss[3]), "--from",
          irnss[4], "--set", "toe=86400", "--set", "M0=-0.5"],
         ((zeltnavmsg.decode_fields(*irnss[:1], *irnss[2:]),),
          {"set": {"toe": 86400, "M0": -0.5}})),
    ]


def test_encode_is_navmsg_encode(navmsg, edits):
    for options, (args, kwargs) in edits:
        expected = subprocess.run([navmsg, "encode", "--hex", *options], check=True,
                                  capture_output=True, encoding="utf-8").stdout
        assert encode(*args, **kwargs) + "\n" == expected, options
