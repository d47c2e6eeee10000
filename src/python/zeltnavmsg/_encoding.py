"""encode(): one message from a start and field values in one call, as `navmsg encode`
makes it, on the compiled MessageEncoder."""

from __future__ import annotations

from typing import Iterable, Mapping, Tuple, Union

from ._zeltnavmsg import Message, MessageEncoder, MessageFormat

# A field: its path or name, or (path or name, part) for the part-th field of that key.
Key = Union[str, Tuple[str, int]]


def _split(key: Key) -> tuple[str, int]:
    return (key, 0) if isinstance(key, str) else key


def encode(start: MessageFormat | str | Message, subframe: int | None = None,
           page: int | None = None, hex: str | bytes | None = None, *,
           set: Mapping[Key, float | str] | None = None, raw: Mapping[Key, int] | None = None,
           keep_checks: bool = False, flip: Iterable[int] = ()) -> str:
    """The message as lower-case hex text. It starts from `start`: a Message, or a
    format with its subframe and page (0 if not given) and either `hex` or all bits
    zero. The fields of `set` take values in the record's units (a character field may
    take its character), in the order given, then those of `raw` take raw bits; a key
    is a path or name, or (key, part) for the part-th field of that key. The frame
    formats find fields in the layout their selector ("MesType", "Page ID", ...) gives,
    so set it first. Parity, BCH and CRC bits are computed unless keep_checks; the bits
    of `flip` (0 = first sent) are inverted last."""
    encoder = MessageEncoder(start) if isinstance(start, Message) else \
        MessageEncoder(start, subframe, page, hex)
    for key, value in (set or {}).items():
        name, part = _split(key)
        encoder.set(name, value, part)
    for key, value in (raw or {}).items():
        name, part = _split(key)
        encoder.set_raw(name, value, part)
    return encoder.hex(keep_checks=keep_checks, flip=flip)
