"""Calls the C interface, and converts arguments and results."""
import ctypes
import datetime
import math
import os
import pathlib
import sys
from ctypes import byref, c_double, c_int32, c_int64, c_size_t, c_ssize_t, c_uint16, c_uint32, c_uint64, c_void_p

__all__ = ["Collected", "DATE_TIME", "FILE_TIME", "HANDLE", "INT", "INT64", "List", "NOTHING", "RECT", "Record", "TEXT",
           "TEXT_AND_INT", "UINT32", "UINT64"]

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


class _Text(ctypes.Structure):
    _fields_ = [("units", c_void_p), ("length", c_ssize_t)]


class _DateTime(ctypes.Structure):
    _fields_ = [("days", c_double), ("status", c_int32)]


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


class Text:
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

    def call(self, function, arguments):
        return _read_text(function, arguments)


class Number:
    """An int."""

    def __init__(self, kind):
        self.field = kind

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


class DateTime:
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
        super().__init__(c_uint64)

    def from_field(self, value):
        return _FILE_TIME_EPOCH + datetime.timedelta(microseconds=value // 10) if value else None

    def give(self, value, kept):
        if value is None:
            return (None,)
        return (byref(c_uint64((value - _FILE_TIME_EPOCH) // datetime.timedelta(microseconds=1) * 10)),)


class Rect:
    """Four ints: left, top, right, bottom."""

    def give(self, value, kept):
        return (byref((c_int32 * 4)(*value)),)


class Nothing:
    def call(self, function, arguments):
        _check(function(*arguments))


class TextAndNumber:
    """A pair of a str and an int."""

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
        if isinstance(self._element, Text):
            kind, values = _Text, [self._element.into_field(element, kept) for element in value]
        else:
            kind, values = _structure(self._element._record), [self._element.make(element, kept) for element in value]
        array = (kind * len(values))(*values)
        kept.append(array)
        return array, c_size_t(len(values))

    def read(self, handle):
        count = c_size_t()
        try:
            _check(_library.vyr_list_get_count(handle, byref(count)))
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


INT, UINT32, INT64, UINT64 = Number(c_int32), Number(c_uint32), Number(c_int64), Number(c_uint64)
HANDLE = Number(c_ssize_t)
TEXT, TEXT_AND_INT, NOTHING = Text(), TextAndNumber(), Nothing()
DATE_TIME, FILE_TIME, RECT = DateTime(), FileTime(), Rect()


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
