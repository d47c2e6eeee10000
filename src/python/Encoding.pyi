
# Encoding: MessageEncoder and its error (Encoding.cpp).
from typing import Iterable

class EncodingError(DecodingError): ...

class MessageEncoder:
    format: MessageFormat
    subframe: int
    page: int
    bit_count: int
    def __init__(
        self,
        start: MessageFormat | str | Message,
        subframe: int | None = None,
        page: int | None = None,
        hex: str | bytes | None = None,
    ) -> None: ...
    def set(self, key: str, value: float | str, part: int = 0) -> None: ...
    def set_raw(self, key: str, raw: int, part: int = 0) -> None: ...
    def hex(self, *, keep_checks: bool = False, flip: Iterable[int] = ()) -> str: ...
    def message(self) -> Message: ...
