
# Receiver logs: read_log() and its classes (LogReading.cpp).
import os
from typing import BinaryIO, Iterator

class LogMessage(Message):
    signal: SignalType
    signal_name: str
    time: tuple[int, float] | None
    hex: str
    protocol: Literal["ubx", "sbf"]
    offset: int

class LogReader(Iterator[LogMessage]):
    stats: dict[str, int]
    def __iter__(self) -> LogReader: ...
    def __next__(self) -> LogMessage: ...

def read_log(
    source: str | os.PathLike[str] | os.PathLike[bytes] | bytes | bytearray | memoryview | BinaryIO,
    *,
    all_fields: bool = False,
    chunk_size: int = 65536,
) -> LogReader: ...
