"""Readable listings of GNSS navigation messages.

    import zeltnavmsg
    hex = "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0"
    print(zeltnavmsg.decode("GpsLNav", 1, 0, hex))  # the listing of GPS LNAV subframe 1
    m = zeltnavmsg.decode_fields("GpsLNav", 1, 0, hex)
    print(m.layout, m["af0"].value, m.ok)           # the fields as data, and the parity
    zeltnavmsg.message_format("C30", "CNAV2")       # MessageFormat.BeidouCNav2

Every function that takes a format accepts a MessageFormat member or its name
("GpsLNav"). The library's refusals raise DecodingError, a ValueError; an empty
hex text raises IndexError. Decoding releases the interpreter lock, so threads
decode in parallel. to_dataframe() makes a pandas table of decoded messages, where
pandas is installed.
"""

from typing import NamedTuple

from . import _zeltnavmsg
from ._dataframe import to_dataframe
from ._zeltnavmsg import (
    Check,
    DecodingError,
    Field,
    Message,
    MessageFormat,
    SignalType,
    __version__,
    decode,
    decode_fields,
    default_format,
    message_format,
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
    "Field",
    "Format",
    "Message",
    "MessageFormat",
    "Signal",
    "SignalType",
    "System",
    "decode",
    "decode_fields",
    "default_format",
    "formats",
    "message_format",
    "signal_type",
    "to_dataframe",
]
