
# Records of every field: decode_fields() and its classes (Records.cpp).
from typing import Any, Iterable, Literal

class Field:
    path: str
    name: str
    kind: Literal["unsigned", "signed", "real", "flag", "character"]
    role: Literal["data", "reserved", "check", "word"]
    value: int | float | bool | str
    units: str
    raw: int
    bits: tuple[tuple[int, int], ...]
    corrected: bool

class Check:
    name: str
    ok: bool
    status: Literal["pass", "fail", "corrected", "incomplete"]
    bits: tuple[tuple[int, int], ...]
    check_bits: int
    computed: int
    received: int
    corrected_bit: int | None

class Message:
    format: MessageFormat
    subframe: int
    page: int
    bit_count: int
    layout: str
    sat: str
    line: int | None
    ok: bool
    fields: tuple[Field, ...]
    checks: tuple[Check, ...]
    def __getitem__(self, key: str) -> Field: ...
    def to_dict(self) -> dict[str, Any]: ...

def decode_fields(
    format: MessageFormat | str,
    subframe: int,
    page: int,
    hex: str | bytes,
    *,
    all_fields: bool = False,
    sat: str = "",
    line: int | None = None,
) -> Message: ...
def _field_columns(messages: Iterable[Message]) -> tuple[list[Any], ...]: ...
