"""Calls the C interface, and converts arguments and results."""
import array
import ctypes
import datetime
import itertools
import math
import operator
import os
import pathlib
import sys
import uuid
from ctypes import (byref, c_double, c_int32, c_int64, c_size_t, c_ssize_t, c_uint8, c_uint16, c_uint32, c_uint64,
                    c_void_p)
from typing import Union

__all__ = ["Collected", "DATE_TIME", "DRAIN", "FILE_TIME", "GUID", "HANDLE", "INT", "INT64", "List", "NOTHING", "OBJECT",
           "Object", "RECT", "Record", "TEXT", "TEXT_AND_INT", "UINT32", "UINT64", "VALUE", "Value"]

# A value of a document property: None removes it.
Value = Union[None, bool, int, float, str, bytes, datetime.datetime, uuid.UUID]

_OK, _BUFFER_TOO_SMALL, _WRONG_ARGUMENT, _OUT_OF_MEMORY = range(4)
_EPOCH = datetime.datetime(1899, 12, 30)
_FILE_TIME_EPOCH = datetime.datetime(1601, 1, 1, tzinfo=datetime.timezone.utc)


class Error(Exception):
    """An operation failed with an exception."""


def _load():
    name = "VyrLibraryC.dll" if sys.platform == "win32" else "libVyrLibraryC.so.0"
    beside = pathlib.Path(__file__).parent / name
    return ctypes.CDLL(os.environ.get("VYR_LIBRARY") or (str(beside) if beside.exists() else name))


_library = _load()
_library.vyr_version.restype = c_uint32
_Drain = ctypes.CFUNCTYPE(c_int32, c_void_p)


class _Text(ctypes.Structure):
    _fields_ = [("units", c_void_p), ("length", c_ssize_t)]


class _DateTime(ctypes.Structure):
    _fields_ = [("days", c_double), ("status", c_int32)]


class _TextAndNumber(ctypes.Structure):
    _fields_ = [("text", _Text), ("number", c_int32)]


class _Value(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("type", c_int32), ("number", c_int64), ("real", c_double), ("text", _Text),
                ("bytes", c_void_p), ("bytes_count", c_size_t), ("guid", c_uint8 * 16)]


def _units(text):
    """A text as UTF-16, and its length in code units. A byte of a name that is not UTF-8 is kept."""
    data = text.encode("utf-16-le", "surrogatepass")
    return ctypes.create_string_buffer(data, len(data) + 2), len(data) // 2


def _string(address, length):
    return ctypes.string_at(address, 2 * length).decode("utf-16-le", "surrogatepass")


def _to_days(moment):
    """None is a date-time that is null. The fraction of negative days counts forward."""
    if moment is None:
        return 0.0, 2
    days, rest = divmod((moment.replace(microsecond=0) - _EPOCH).total_seconds(), 86400)
    return days + (rest if days >= 0 else -rest) / 86400, 0


def _from_days(days, status):
    if status != 0:
        return None
    whole = math.trunc(days)
    return _EPOCH + datetime.timedelta(days=whole, seconds=round(abs(days - whole) * 86400))


def _to_ticks(moment):
    return (moment - _FILE_TIME_EPOCH) // datetime.timedelta(microseconds=1) * 10


def _raise(status):
    if status == _OUT_OF_MEMORY:
        raise MemoryError()
    reason = _read_text(_library.vyr_get_last_error, ())
    raise ValueError(reason) if status == _WRONG_ARGUMENT else Error(reason)


def _check(status):
    if status != _OK:
        _raise(status)


def _read_text(function, arguments, *more):
    capacity = 512
    while True:
        buffer, length = (c_uint16 * capacity)(), c_size_t()
        status = function(*arguments, buffer, c_size_t(capacity), byref(length), *more)
        if status != _BUFFER_TOO_SMALL:
            _check(status)
            return _string(buffer, length.value)
        capacity = length.value + 1


class Kind:
    """How a type of Python is given to the library, put into a field of a record, and read back."""

    def fill(self, memory, offset, size, column, kept):
        """Writes the same field of many records, `size` bytes apart, into zeroed memory."""
        for number, value in enumerate(column):
            ctypes.memmove(byref(self.field.from_buffer(memory, offset + number * size)),
                           byref(self.into_field(value, kept)), ctypes.sizeof(self.field))


class Text(Kind):
    """A str."""
    field = _Text

    def give(self, value, kept):
        buffer, length = _units(value)
        kept.append(buffer)
        return ctypes.cast(buffer, c_void_p), c_ssize_t(length)

    def into_field(self, value, kept):
        return _Text(*(part.value for part in self.give(value, kept)))

    def from_field(self, value):
        return _string(value.units, value.length)

    def fill(self, memory, offset, size, column, kept):
        """An address and a length each; both stay zero for the empty text."""
        count, words, place, step = len(column), memory.cast("q"), offset // 8, size // 8
        if column.count("") == count:
            return
        if column.count(column[0]) == count:
            address, length = self.give(column[0], kept)
            addresses, lengths = array.array("q", [address.value]) * count, array.array("q", [length.value]) * count
        else:
            data = "".join(column).encode("utf-16-le", "surrogatepass")
            lengths = array.array("q", map(len, column))
            if 2 * sum(lengths) != len(data):
                # Some take two code units.
                lengths = array.array("q", [len(text.encode("utf-16-le", "surrogatepass")) // 2 for text in column])
            buffer = ctypes.create_string_buffer(data, len(data) + 2)
            kept.append(buffer)
            first = ctypes.addressof(buffer)
            ends = itertools.accumulate(lengths, initial=0)
            addresses = array.array("q", [first + 2 * end for end in itertools.islice(ends, count)])
        words[place::step] = memoryview(addresses)
        words[place + 1::step] = memoryview(lengths)

    def read_all(self, handle, count):
        get, place = _library.vyr_text_get, _Text()
        reference, size, string_at = byref(place), c_size_t(), ctypes.string_at
        texts = []
        for index in range(count):
            size.value = index
            _check(get(handle, size, reference))
            texts.append(string_at(place.units, 2 * place.length).decode("utf-16-le", "surrogatepass"))
        return texts

    def call(self, function, arguments):
        return _read_text(function, arguments)


class Number(Kind):
    """An int."""

    def __init__(self, kind, code):
        self.field, self._code = kind, code

    def fill(self, memory, offset, size, column, kept):
        if column.count(0) == len(column):
            return
        width = ctypes.sizeof(self.field)
        memory.cast(self._code)[offset // width::size // width] = memoryview(array.array(self._code, column))

    def give(self, value, kept):
        return (self.field(value),)

    def into_field(self, value, kept):
        return value

    def from_field(self, value):
        return value

    def call(self, function, arguments):
        place = self.field()
        _check(function(*arguments, byref(place)))
        return self.from_field(place.value)


class DateTime(Kind):
    """A datetime without a zone, in local time, to the second; None when it is not valid."""
    field = _DateTime

    def give(self, value, kept):
        days, status = _to_days(value)
        return c_double(days), c_int32(status)

    def into_field(self, value, kept):
        return _DateTime(*_to_days(value))

    def from_field(self, value):
        return _from_days(value.days, value.status)

    def call(self, function, arguments):
        place = _DateTime()
        _check(function(*arguments, byref(place)))
        return self.from_field(place)


class FileTime(Number):
    """A datetime with a zone, or None."""

    def __init__(self):
        super().__init__(c_uint64, "Q")

    def from_field(self, value):
        return _FILE_TIME_EPOCH + datetime.timedelta(microseconds=value // 10) if value else None

    def give(self, value, kept):
        if value is None:
            return (None,)
        return (byref(c_uint64(_to_ticks(value))),)


class Rect:
    """Four ints: left, top, right, bottom."""

    def give(self, value, kept):
        return (byref((c_int32 * 4)(*value)),)


class Nothing:
    def call(self, function, arguments):
        _check(function(*arguments))


class Guid(Kind):
    """A uuid.UUID."""
    field = c_uint8 * 16

    def give(self, value, kept):
        return (byref(self.into_field(value, kept)),)

    def into_field(self, value, kept):
        return self.field(*value.bytes_le)

    def from_field(self, value):
        return uuid.UUID(bytes_le=bytes(value))

    def call(self, function, arguments):
        place = self.field()
        _check(function(*arguments, byref(place)))
        return self.from_field(place)


class PropertyValue:
    """A Value: the type of the property is chosen by that of the value."""

    def give(self, value, kept):
        made = _Value(struct_size=ctypes.sizeof(_Value))
        if isinstance(value, bool):
            made.type, made.number = 11, value
        elif isinstance(value, int):
            made.type, made.number = (3 if -2**31 <= value < 2**31 else 20), value
        elif isinstance(value, float):
            made.type, made.real = 5, value
        elif isinstance(value, str):
            made.type, made.text = 31, TEXT.into_field(value, kept)
        elif isinstance(value, bytes):
            buffer = ctypes.create_string_buffer(value, len(value) + 1)
            kept.append(buffer)
            made.type, made.bytes, made.bytes_count = 30, ctypes.addressof(buffer), len(value)
        elif isinstance(value, datetime.datetime):
            made.type, made.number = 64, _to_ticks(value)
        elif isinstance(value, uuid.UUID):
            made.type, made.guid = 72, GUID.into_field(value, kept)
        elif value is not None:
            raise TypeError(f"a property cannot be a {type(value).__name__}")
        return (byref(made),)


class Object:
    """A document or an element of it; released with the last reference to it."""

    def __init__(self, address):
        self.address = address

    def __del__(self):
        _library.vyr_xml_release(c_void_p(self.address))


class ObjectKind:
    """An Object; None for none."""

    def give(self, value, kept):
        return (c_void_p(value.address if value else None),)

    def call(self, function, arguments):
        place = c_void_p()
        _check(function(*arguments, byref(place)))
        return Object(place.value) if place.value else None


class Drain:
    """A function that handles at most one event, and is true for a stop; None for none."""

    def __init__(self):
        # As long as the library may call it.
        self._plugged = None

    def give(self, value, kept):
        plugged = _Drain((lambda context: bool(value())) if value else 0)
        kept.append(lambda: setattr(self, "_plugged", plugged))
        return plugged, None


class TextAndNumber:
    """A pair of a str and an int."""
    field = _TextAndNumber

    def into_field(self, value, kept):
        return _TextAndNumber(TEXT.into_field(value[0], kept), value[1])

    def call(self, function, arguments):
        number = c_int32()
        text = _read_text(function, arguments, byref(number))
        return text, number.value


def _structure(record):
    """The structure of a record's class."""
    if "c_structure" not in vars(record):
        fields = [("struct_size", c_size_t)] + [(name, kind.field) for name, kind in record.c_kinds.items()]
        record.c_structure = type(record.__name__, (ctypes.Structure,), {"_fields_": fields})
    return record.c_structure


class Record:
    """A dataclass with the attributes `c_name`, its name in C, and `c_kinds`, the kinds of its fields."""

    def __init__(self, record):
        self._record = record

    def make(self, value, kept):
        structure = _structure(self._record)
        made = structure()
        made.struct_size = ctypes.sizeof(structure)
        for name, kind in self._record.c_kinds.items():
            setattr(made, name, kind.into_field(getattr(value, name), kept))
        return made

    def give(self, value, kept):
        made = self.make(value, kept)
        kept.append(made)
        return (byref(made),)

    def make_all(self, values, kept):
        """An array of structures, filled field by field: that is many times quicker than one by one. So many at a time
        that they stay in the processor's cache."""
        structure = _structure(self._record)
        size, at_once = ctypes.sizeof(structure), 1024
        memory = bytearray(size * len(values))
        fields = [(operator.attrgetter(name), kind, getattr(structure, name).offset)
                  for name, kind in self._record.c_kinds.items()]
        for first in range(0, len(values), at_once):
            some = values[first:first + at_once]
            part = memoryview(memory)[size * first:size * (first + len(some))]
            UINT64.fill(part, 0, size, [size] * len(some), kept)
            for get, kind, offset in fields:
                kind.fill(part, offset, size, list(map(get, some)), kept)
        return (structure * len(values)).from_buffer(memory)

    def call(self, function, arguments):
        return List(self).call(function, arguments)[0]

    def read(self, handle, index):
        structure = _structure(self._record)
        made = structure()
        made.struct_size = ctypes.sizeof(structure)
        _check(_library[self._record.c_name + "_get"](handle, c_size_t(index), byref(made)))
        return self._record(**{name: kind.from_field(getattr(made, name)) for name, kind in self._record.c_kinds.items()})


class List:
    """A sequence of records or of strs; a list when it is a result."""

    def __init__(self, element):
        self._element = element

    def give(self, value, kept):
        if isinstance(self._element, Record) and value:
            made = self._element.make_all(value, kept)
        elif isinstance(self._element, Record):
            made = None
        else:
            made = (self._element.field * len(value))(*(self._element.into_field(element, kept) for element in value))
        kept.append(made)
        return made, c_size_t(len(value))

    def read(self, handle):
        count = c_size_t()
        try:
            _check(_library.vyr_list_get_count(handle, byref(count)))
            if isinstance(self._element, Text):
                return self._element.read_all(handle, count.value)
            return [self._element.read(handle, index) for index in range(count.value)]
        finally:
            _library.vyr_list_release(handle)

    def call(self, function, arguments):
        handle = c_uint64()
        _check(function(*arguments, byref(handle)))
        return self.read(handle)


class Collected(List):
    """A list that the operation appends to, or None."""

    def give(self, value, kept):
        if value is None:
            return (None,)
        handle = c_uint64()
        kept.append(lambda: value.extend(self.read(handle)))
        return (byref(handle),)


INT, UINT32 = Number(c_int32, "i"), Number(c_uint32, "I")
INT64, UINT64, HANDLE = Number(c_int64, "q"), Number(c_uint64, "Q"), Number(c_ssize_t, "q")
TEXT, TEXT_AND_INT, NOTHING = Text(), TextAndNumber(), Nothing()
DATE_TIME, FILE_TIME, RECT = DateTime(), FileTime(), Rect()
GUID, VALUE, OBJECT, DRAIN = Guid(), PropertyValue(), ObjectKind(), Drain()


def call(name, result, *arguments):
    """Calls an operation and returns its result; each argument is a pair of its kind and its value."""
    kept, given = [], []
    for kind, value in arguments:
        given += kind.give(value, kept)
    answer = result.call(_library[name], given)
    for after in kept:
        if callable(after):
            after()
    return answer


def version():
    """The library's version: major, minor, patch."""
    number = _library.vyr_version()
    return number // 1000000, number // 1000 % 1000, number % 1000
