"""Decoded messages as a pandas table, one row per field. pandas is imported on the
first call only, so the package works without it."""

from __future__ import annotations

from typing import TYPE_CHECKING, Iterable

from . import _zeltnavmsg

if TYPE_CHECKING:
    import pandas

# The columns of `navmsg batch --output csv`, and those `navmsg log` adds.
COLUMNS = ["line", "sat", "format", "subframe", "page", "path", "name", "value", "units",
           "raw", "ok"]
LOG_COLUMNS = ["signal", "week", "tow"]


def to_dataframe(messages: Iterable[_zeltnavmsg.Message] | _zeltnavmsg.Message) -> pandas.DataFrame:
    """One row per field of each message, in the columns and with the values of
    `navmsg batch --output csv`: the message's line (None where decode_fields had
    none), sat, format name, subframe and page; the field's path, name, value (float,
    or a character field's one-character str), units and raw bits as upper-case hex;
    the message's verdict `ok`. The fields are those of `Message.fields`. Messages of
    a receiver log (read_log) add the columns of `navmsg log --output csv`: signal,
    week and tow (None without a time tag; None for messages not from a log)."""
    try:
        import pandas
    except ImportError as error:
        raise ImportError("zeltnavmsg.to_dataframe needs pandas, which is not installed "
                          "(Debian python3-pandas, or pip install pandas)") from error
    if isinstance(messages, _zeltnavmsg.Message):
        messages = (messages,)
    columns = _zeltnavmsg._field_columns(messages)
    names = COLUMNS if len(columns) == len(COLUMNS) else COLUMNS + LOG_COLUMNS
    return pandas.DataFrame(dict(zip(names, columns)), columns=names)
