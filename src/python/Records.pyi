
# Records of every field (built with ZELTNAVMSG_PYTHON_RECORDS).
from typing import Any, Literal

class Field:
    path: str
    name: str
    kind: Literal["unsigned", "signed", "real", "flag", "character"]
    role: Literal["data", "reserved", "check", "word"]
    value: int | float | bool
    units: str
    raw: int
    bits: list[tuple[int, int]]
    corrected: bool
    def to_dict(self) -> dict[str, Any]: ...

class Check:
    name: str
    status: Literal["pass", "fail", "corrected", "incomplete"]
    ok: bool
    bits: list[tuple[int, int]]
    check_bits: int
    computed: int
    received: int
    corrected_bit: int | None
    def to_dict(self) -> dict[str, Any]: ...

class Message:
    format: MessageFormat
    subframe: int
    page: int
    bit_count: int
    layout: str
    ok: bool
    fields: list[Field]
    checks: list[Check]
    def __len__(self) -> int: ...
    def __getitem__(self, key: str) -> Field: ...
    def to_dict(self) -> dict[str, Any]: ...

def decode_fields(
    format: MessageFormat | str, subframe: int, page: int, hex: str | bytes
) -> Message: ...
