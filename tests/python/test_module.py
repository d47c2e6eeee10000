"""Names, errors, enumerations, stubs and threads of the zeltnavmsg module."""

import ast
import pathlib
import pickle
import re
from concurrent.futures import ThreadPoolExecutor

import pytest

import zeltnavmsg
from zeltnavmsg import DecodingError, EncodingError, MessageFormat, SignalType

ROOT = pathlib.Path(__file__).resolve().parents[2]
LNAV = "8b0d3487fffd614d351000091b1de78f322ebaf701369182b0dd6d7f8f6800ffd153eafc2f0"

LOOKUPS = {"signal": zeltnavmsg.signal_type, "format": zeltnavmsg.message_format,
           "default": lambda sat, _: zeltnavmsg.default_format(sat)}
CATEGORIES = {"DecodingError": DecodingError, "std::invalid_argument": ValueError}


def test_name_lookups_give_the_table_values_and_errors(names_table):
    for lookup, sat, name, result in names_table:
        category, _, message = result.partition(": ")
        if category in CATEGORIES:
            with pytest.raises(ValueError) as caught:
                LOOKUPS[lookup](sat, name)
            assert (type(caught.value), str(caught.value)) == (CATEGORIES[category], message)
        elif lookup == "default":
            assert zeltnavmsg.default_format(sat) == result
        else:
            value = LOOKUPS[lookup](sat, name)
            assert type(value) is (SignalType if lookup == "signal" else MessageFormat)
            assert value == int(result), (lookup, sat, name)


@pytest.mark.parametrize("args, error, message", [
    (("GpsLNav", 1, 0, "8b0x"), DecodingError, "Can't parse symbol as hex digit: x"),
    (("GpsLNav", 1, 0, "8b\u20ac"), DecodingError, "Can't parse symbol as hex digit: \u20ac"),
    (("Sbas", 1, 0, "8x"), DecodingError, "Can't parse symbol as hex digit: x"),
    (("CNav", 1, 0, "8b"), DecodingError, "Decoding is not supported yet for this message format"),
    (("GpsLNav", 1, 0, " \t"), IndexError, "Decode: hex string is empty"),
    (("BeidouD1", 1, 0, "0" * 77), ValueError, "Decode: subframe data is longer than 38 bytes"),
    (("gpslnav", 1, 0, LNAV), ValueError, "'gpslnav' is not a MessageFormat name"),
    ((13, 1, 0, LNAV), ValueError, "13 is not a valid MessageFormat"),
    ((-1, 1, 0, LNAV), ValueError, "-1 is not a valid MessageFormat"),
    ((0.0, 1, 0, LNAV), TypeError, "format must be a MessageFormat or its name, not float"),
    (("GpsLNav", 2**31, 0, LNAV), OverflowError, "subframe 2147483648 does not fit in 32 bits"),
    (("GpsLNav", 1, -2**31 - 1, LNAV), OverflowError, "page -2147483649 does not fit in 32 bits"),
    (("GpsLNav", "1", 0, LNAV), TypeError, "subframe must be an int, not str"),
    (("GpsLNav", 1, 0, bytearray(b"8b")), TypeError, "hex must be str or bytes, not bytearray"),
])
@pytest.mark.parametrize("function", [zeltnavmsg.decode, zeltnavmsg.decode_fields])
def test_decode_errors(function, args, error, message):
    with pytest.raises(Exception) as caught:
        function(*args)
    assert (type(caught.value), str(caught.value)) == (error, message)


@pytest.mark.parametrize("options, error, message", [
    ({"sat": 5}, TypeError, "sat must be str, not int"),
    ({"sat": "G\u0100"}, UnicodeEncodeError,
     "'latin-1' codec can't encode character '\\u0100' in position 1: ordinal not in range(256)"),
    ({"line": 0}, ValueError, "line must be 1 or more, not 0"),
    ({"line": -2**63}, ValueError, "line must be 1 or more, not -9223372036854775808"),
    ({"line": 2**63}, OverflowError, "line 9223372036854775808 does not fit in 64 bits"),
    ({"line": 1.0}, TypeError, "line must be an int, not float"),
    ({"all_fields": type("Unsure", (), {"__bool__": lambda _: 1 / 0})()}, ZeroDivisionError,
     "division by zero"),
])
def test_decode_fields_option_errors(options, error, message):
    with pytest.raises(Exception) as caught:
        zeltnavmsg.decode_fields("GpsLNav", 1, 0, LNAV, **options)
    assert (type(caught.value), str(caught.value)) == (error, message)
    with pytest.raises(TypeError, match="^to_dataframe takes Message objects .*, not int$"):
        zeltnavmsg.to_dataframe([zeltnavmsg.decode_fields("GpsLNav", 1, 0, LNAV), 3])


def test_every_spelling_of_the_arguments_decodes_alike():
    listing = zeltnavmsg.decode("GpsLNav", 1, 0, LNAV)
    assert listing.startswith("Subframe: 1\r\n\r\n              Word 1: 0x22C34D21\r\n")
    for args in [(MessageFormat.GpsLNav, 1, 0, LNAV), (0, 1, 0, LNAV.encode()),
                 (MessageFormat(0), 1, 0, f" {LNAV.upper()}\n")]:
        assert zeltnavmsg.decode(*args) == listing
    assert zeltnavmsg.decode(format="GpsLNav", subframe=1, page=0, hex=LNAV) == listing
    assert zeltnavmsg.decode("BeidouD1", 1, 0, "0" * 76).startswith("Subframe: 1")
    assert zeltnavmsg.decode("GpsCNav2", 2**31 - 1, -2**31, LNAV) == \
        zeltnavmsg.decode("GpsCNav2", 0, 0, LNAV)


def test_enumerations_have_the_cpp_names_and_values():
    header = (ROOT / "include/zeltnavmsg/NavMessageDecoder.h").read_text()
    for enum in (MessageFormat, SignalType):
        body = re.search(r"enum class %s : std::int32_t \{(.*?)\};" % enum.__name__, header, re.S)
        cpp = {name: int(value) for name, value in re.findall(r"(\w+) = (\d+),", body[1])}
        assert {m.name: m.value for m in enum} == cpp and len(cpp) in (13, 24)


def test_stubs_declare_what_the_module_has():
    stub = ast.parse((pathlib.Path(zeltnavmsg.__file__).parent / "_zeltnavmsg.pyi").read_text())
    declared = {getattr(node, "name", None) or getattr(node, "target").id: node
                for node in stub.body if not isinstance(node, (ast.Import, ast.ImportFrom))}
    module = zeltnavmsg._zeltnavmsg
    assert set(declared) == {n for n in dir(module) if not n.startswith("__")} | {"__version__"}
    for enum in (MessageFormat, SignalType):
        members = [(a.targets[0].id, a.value.value) for a in declared[enum.__name__].body]
        assert members == [(m.name, m.value) for m in enum]


def test_enumerations_and_errors_pickle_by_the_package_name():
    for value in (MessageFormat.Irnss, SignalType.SbasL5, DecodingError("bad digit"),
                  EncodingError("toe: out of range")):
        copy = pickle.loads(pickle.dumps(value))
        assert (type(copy), str(copy)) == (type(value), str(value))
    assert issubclass(DecodingError, ValueError) and issubclass(EncodingError, DecodingError)


def records(*job):
    m = zeltnavmsg.decode_fields(*job, all_fields=True)
    return m.layout, [(f.value, f.raw) for f in m.fields], [c.computed for c in m.checks]


@pytest.mark.parametrize("function, passes", [(zeltnavmsg.decode, 5), (records, 2)])
def test_eight_threads_decode_as_one(real_messages, function, passes):
    jobs = [(fmt, subframe, page, hex_) for fmt, _, subframe, page, hex_ in real_messages]
    jobs += [("GpsLNav", 1, 0, "8b0x"), ("CNav", 1, 0, LNAV), ("Irnss", 1, 0, ""),
             ("BeidouD2", 1, 0, "0" * 78)]

    def outcome(job):
        try:
            return function(*job)
        except (ValueError, IndexError) as e:
            return type(e), str(e)

    expected = [outcome(job) for job in jobs]

    def run(shift):  # each thread starts at another message
        order = jobs[shift:] + jobs[:shift]
        return [outcome(job) for _ in range(passes) for job in order]

    with ThreadPoolExecutor(8) as pool:
        for thread, got in enumerate(pool.map(run, [i * 71 for i in range(8)])):
            shift = thread * 71
            assert got == (expected[shift:] + expected[:shift]) * passes
