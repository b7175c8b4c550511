r"""The operations of SearchFuncs (VyrLibraryFuncs/select/SearchFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Keeps the search criteria of a host and tells which files meet them.

The settings live as long as the process and are for one thread. At first neither criterion is active, and the
custom range extends from the start of the day seven days before the library was loaded to the end of the day of
loading.

Example: after `SetSizeSearch(1)` and `SetSizeRange(2)`, IsMatch is 1 for files of 1 to 16,384 bytes.
"""
import dataclasses
import datetime
import uuid
from typing import Callable, Optional, Sequence, Tuple
from typing import List as ListType

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)
NO_ID = uuid.UUID(int=0)


@dataclasses.dataclass
class Item:
    """SearchFuncs::ITEM"""
    date_time: Optional[datetime.datetime] = ZERO
    size: int = 0


Item.c_name = "vyr_search_item"
Item.c_kinds = {"date_time": DATE_TIME, "size": INT64}


def is_match_path(path: str, reserved: int) -> int:
    r"""IsMatch

    Whether the file or folder at `path` meets the active criteria (1 or 0). A path that does not exist meets them.
    A folder has the size -1.
    reserved: not read.
    """
    return call("vyr_search_is_match_path", INT, (TEXT, path), (INT, reserved))


def is_match(item: Item) -> int:
    r"""IsMatch

    Whether `item` meets the active criteria (1 or 0). No file is read.
    """
    return call("vyr_search_is_match", INT, (Record(Item), item))


def is_match_date_time(path: str) -> int:
    r"""IsMatchDateTime

    Whether the date-time of the file at `path`, chosen by DateTimeTarget, is in the range (1 or 0); 0 where there
    is no file.
    """
    return call("vyr_search_is_match_date_time", INT, (TEXT, path))


def is_match_date_time_value(value: Optional[datetime.datetime]) -> int:
    r"""IsMatchDateTime

    Whether `value`, local time, is in the range DateTimeRange (1 or 0). An invalid one never is.
    """
    return call("vyr_search_is_match_date_time_value", INT, (DATE_TIME, value))


def is_match_size_path(path: str, with_folders: int) -> int:
    r"""IsMatchSize

    Whether the size of the file at `path` is in the range (1 or 0); 0 where there is no file. Writes a line about
    each file to the debugger output.
    with_folders: not 0: the size of a folder is the sum of the files below it; 0: it is -1.
    """
    return call("vyr_search_is_match_size_path", INT, (TEXT, path), (INT, with_folders))


def is_match_size(size: int) -> int:
    r"""IsMatchSize

    Whether `size`, in bytes, is in the range SizeRange (1 or 0).
    """
    return call("vyr_search_is_match_size", INT, (INT64, size))


def get_search_closed() -> int:
    r"""GetSearchClosed

    A flag for the host; 0 at first.
    """
    return call("vyr_search_get_search_closed", INT)


def set_search_closed(closed: int) -> None:
    r"""SetSearchClosed
    """
    return call("vyr_search_set_search_closed", NOTHING, (INT, closed))


def get_date_time_search() -> int:
    r"""GetDateTimeSearch

    Not 0: the date-time criterion is active; 0 at first.
    """
    return call("vyr_search_get_date_time_search", INT)


def set_date_time_search(search: int) -> None:
    r"""SetDateTimeSearch
    """
    return call("vyr_search_set_date_time_search", NOTHING, (INT, search))


def get_date_time_target() -> int:
    r"""GetDateTimeTarget

    A value of DateTimeTarget; 0 at first.
    """
    return call("vyr_search_get_date_time_target", INT)


def set_date_time_target(target: int) -> None:
    r"""SetDateTimeTarget
    """
    return call("vyr_search_set_date_time_target", NOTHING, (INT, target))


def get_date_time_range() -> int:
    r"""GetDateTimeRange

    A value of DateTimeRange; 0 at first.
    """
    return call("vyr_search_get_date_time_range", INT)


def set_date_time_range(range: int) -> None:
    r"""SetDateTimeRange
    """
    return call("vyr_search_set_date_time_range", NOTHING, (INT, range))


def get_date_time_from_date_time() -> Optional[datetime.datetime]:
    r"""GetDateTimeFromDateTime

    The lower bound of the custom range, local time.
    """
    return call("vyr_search_get_date_time_from_date_time", DATE_TIME)


def set_date_time_from_date_time(from_: Optional[datetime.datetime]) -> None:
    r"""SetDateTimeFromDateTime
    """
    return call("vyr_search_set_date_time_from_date_time", NOTHING, (DATE_TIME, from_))


def get_date_time_to_date_time() -> Optional[datetime.datetime]:
    r"""GetDateTimeToDateTime

    The upper bound of the custom range, local time.
    """
    return call("vyr_search_get_date_time_to_date_time", DATE_TIME)


def set_date_time_to_date_time(to: Optional[datetime.datetime]) -> None:
    r"""SetDateTimeToDateTime
    """
    return call("vyr_search_set_date_time_to_date_time", NOTHING, (DATE_TIME, to))


def get_size_search() -> int:
    r"""GetSizeSearch

    Not 0: the size criterion is active; 0 at first.
    """
    return call("vyr_search_get_size_search", INT)


def set_size_search(search: int) -> None:
    r"""SetSizeSearch
    """
    return call("vyr_search_set_size_search", NOTHING, (INT, search))


def get_size_target() -> int:
    r"""GetSizeTarget

    A choice for the host; 0 at first.
    """
    return call("vyr_search_get_size_target", INT)


def set_size_target(target: int) -> None:
    r"""SetSizeTarget
    """
    return call("vyr_search_set_size_target", NOTHING, (INT, target))


def get_size_range() -> int:
    r"""GetSizeRange

    A value of SizeRange; 0 at first.
    """
    return call("vyr_search_get_size_range", INT)


def set_size_range(range: int) -> None:
    r"""SetSizeRange
    """
    return call("vyr_search_set_size_range", NOTHING, (INT, range))


def get_size_from_size() -> int:
    r"""GetSizeFromSize

    The lower bound of the custom range, in bytes; 0 at first.
    """
    return call("vyr_search_get_size_from_size", INT64)


def set_size_from_size(from_: int) -> None:
    r"""SetSizeFromSize
    """
    return call("vyr_search_set_size_from_size", NOTHING, (INT64, from_))


def get_size_to_size() -> int:
    r"""GetSizeToSize

    The upper bound of the custom range, in bytes; 1024 at first.
    """
    return call("vyr_search_get_size_to_size", INT64)


def set_size_to_size(to: int) -> None:
    r"""SetSizeToSize
    """
    return call("vyr_search_set_size_to_size", NOTHING, (INT64, to))
