"""Readable listings of GNSS navigation messages.

    import zeltnavmsg
    hex = "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0"
    print(zeltnavmsg.decode("GpsLNav", 1, 0, hex))  # the listing of GPS LNAV subframe 1
    m = zeltnavmsg.decode_fields("GpsLNav", 1, 0, hex)
    print(m.layout, m["af0"].value, m.ok)           # the fields as data, and the parity
    zeltnavmsg.message_format("C30", "CNAV2")       # MessageFormat.BeidouCNav2
    for m in zeltnavmsg.read_log("receiver.ubx"):   # a receiver log's messages, decoded
        print(m.time, m.sat, m.signal_name, m.layout)
    zeltnavmsg.encode("GpsLNav", 2, 0, set={"preamble": 139, "toe": 352800})  # hex

Every function that takes a format accepts a MessageFormat member or its name
("GpsLNav"). The library's refusals raise DecodingError, a ValueError; an empty
hex text raises IndexError; a field the encoder cannot set raises EncodingError, a
DecodingError. Decoding and reading logs release the interpreter lock, so threads
decode in parallel. to_dataframe() makes a pandas table of decoded messages, where
pandas is installed.
"""

from typing import NamedTuple

from . import _zeltnavmsg
from ._dataframe import to_dataframe
from ._encoding import encode
from ._zeltnavmsg import (
    Check,
    DecodingError,
    EncodingError,
    Field,
    LogMessage,
    LogReader,
    Message,
    MessageEncoder,
    MessageFormat,
    SignalType,
    __version__,
    decode,
    decode_fields,
    default_format,
    message_format,
    read_log,
    signal_type,
)


class Signal(NamedTuple):
    """A signal of a system: its name for signal_type() and its SignalType."""

    name: str
    signal: SignalType


class Format(NamedTuple):
    """A format of a system: its name for message_format(), its MessageFormat, whether
    it is the system's default and whether the library decodes it."""

    name: str
    format: MessageFormat
    default: bool
    decodes: bool


class System(NamedTuple):
    """A satellite system: the first letter of its satellites' names, its name, its
    signals and formats."""

    letter: str
    name: str
    signals: tuple[Signal, ...]
    formats: tuple[Format, ...]


def formats() -> list[System]:
    """The satellite systems by the first letter of a satellite name, with the names
    of their signals and formats, as `navmsg formats` lists them."""
    return [
        System(letter, name, tuple(Signal(*s) for s in signals), tuple(Format(*f) for f in fmts))
        for letter, name, signals, fmts in _zeltnavmsg._formats()
    ]


__all__ = [
    "Check",
    "DecodingError",
    "EncodingError",
    "Field",
    "Format",
    "LogMessage",
    "LogReader",
    "Message",
    "MessageEncoder",
    "MessageFormat",
    "Signal",
    "SignalType",
    "System",
    "decode",
    "decode_fields",
    "default_format",
    "encode",
    "formats",
    "message_format",
    "read_log",
    "signal_type",
    "to_dataframe",
]
