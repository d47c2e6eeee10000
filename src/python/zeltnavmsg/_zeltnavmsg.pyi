from enum import IntEnum

__version__: str

class DecodingError(ValueError): ...

class MessageFormat(IntEnum):
    GpsLNav = 0
    GpsCNav2 = 1
    CNav = 2
    GlonassFdma = 3
    GalileoINav = 4
    GalileoFNav = 5
    BeidouD1 = 6
    BeidouD2 = 7
    BeidouCNav1 = 8
    BeidouCNav2 = 9
    QzssLNav = 10
    Irnss = 11
    Sbas = 12

class SignalType(IntEnum):
    GpsL1CA = 0
    GpsL1P = 1
    GpsL1CAP = 2
    GpsL1C = 3
    GpsL2P = 4
    GpsL2C = 5
    GpsL5 = 6
    GlonassL1 = 7
    GlonassL2 = 8
    GalileoE1 = 9
    GalileoE5a = 10
    GalileoE5b = 11
    GalileoE6 = 12
    BeidouB1I = 13
    BeidouB2I = 14
    BeidouB3I = 15
    BeidouB1C = 16
    BeidouB2a = 17
    QzssL1CA = 18
    QzssL2C = 19
    QzssL5 = 20
    IrnssL5 = 21
    SbasL1 = 22
    SbasL5 = 23

def decode(format: MessageFormat | str, subframe: int, page: int, hex: str | bytes) -> str: ...
def message_format(sat: str, name: str) -> MessageFormat: ...
def signal_type(sat: str, name: str) -> SignalType: ...
def default_format(sat: str) -> str: ...
def _formats() -> list[
    tuple[str, str, tuple[tuple[str, SignalType], ...], tuple[tuple[str, MessageFormat, bool, bool], ...]]
]: ...
