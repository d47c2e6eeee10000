"""The module against the navmsg binary: the same listings and the same name table."""

import re
import subprocess

import zeltnavmsg

# A satellite and the command line's format name for each format of the data files
# (some GPS CNAV-2 rows are QZSS broadcasts, which the names do not reach).
CLI_NAMES = {"GpsLNav": ("G01", "LNAV"), "QzssLNav": ("J01", "LNAV"),
             "GpsCNav2": ("G01", "CNAV2"), "BeidouD1": ("C01", "D1"), "BeidouD2": ("C01", "D2"),
             "BeidouCNav1": ("C01", "CNAV1"), "BeidouCNav2": ("C01", "CNAV2"),
             "Irnss": ("I01", "IRNSS")}

# LNAV subframe 4 page 17 with the character 0xFF in ch01: a listing byte above ASCII.
SPECIAL_MESSAGE = ("GpsLNav", "G01", 4, 17, "0" * 17 + "ff" + "0" * 56)


def test_every_real_listing_equals_navmsgs(real_messages, navmsg, tmp_path):
    rows = real_messages + [SPECIAL_MESSAGE]
    assert {row[0] for row in rows} == set(CLI_NAMES)
    batch = tmp_path / "batch.txt"
    batch.write_text("".join("%s %s %d %d %s\n" % (*CLI_NAMES[fmt], sf, page, hex_)
                             for fmt, _, sf, page, hex_ in rows))
    out = subprocess.run([navmsg, "batch", "--crlf", batch], check=True,
                         capture_output=True).stdout
    parts = re.split(rb"# line (\d+): [^\r\n]*\r\n", out)
    assert [int(n) for n in parts[1::2]] == list(range(1, len(rows) + 1))
    for (fmt, sat, subframe, page, hex_), expected in zip(rows, parts[2::2]):
        listing = zeltnavmsg.decode(fmt, subframe, page, hex_).encode("latin-1")
        if not listing.endswith(b"\n"):  # navmsg ends the frame formats' last line
            listing += b"\r\n"
        assert listing + b"\r\n" == expected, (fmt, sat, subframe, page)
        assert zeltnavmsg.message_format(*CLI_NAMES[fmt]) is zeltnavmsg.MessageFormat[fmt]
    assert "ch01: 0xFF 255 '\xff'" in zeltnavmsg.decode("GpsLNav", 4, 17, SPECIAL_MESSAGE[4])


def test_formats_is_what_navmsg_formats_lists(navmsg):
    text = subprocess.run([navmsg, "formats"], check=True, capture_output=True, text=True).stdout
    expected = [
        (letter, system, signals.split(),
         [(name, bool(default), status == "decodes")
          for name, default, status in re.findall(r"(\w+) \((default, )?(decodes|not decoded)\)",
                                                  formats)])
        for letter, system, signals, formats in re.findall(
            r"^(\w)  (\w+)\n    signals: (.*)\n    formats: (.*)$", text, re.MULTILINE)]
    systems = zeltnavmsg.formats()
    assert len(expected) == 7
    assert [(s.letter, s.name, [sig.name for sig in s.signals],
             [(f.name, f.default, f.decodes) for f in s.formats]) for s in systems] == expected
    for system in systems:
        sat = system.letter + "01"
        for signal in system.signals:
            assert zeltnavmsg.signal_type(sat, signal.name) is signal.signal
        for fmt in system.formats:
            assert zeltnavmsg.message_format(sat, fmt.name) is fmt.format
