"""The operations of SearchFuncs, which VyrLibraryFuncs/select/SearchFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


@dataclasses.dataclass
class Item:
    """SearchFuncs::ITEM"""
    date_time: Optional[datetime.datetime] = ZERO
    size: int = 0


Item.c_name = "vyr_search_item"
Item.c_kinds = {"date_time": DATE_TIME, "size": INT64}


def is_match_path(path: str, reserved: int) -> int:
    """IsMatch"""
    return call("vyr_search_is_match_path", INT, (TEXT, path), (INT, reserved))


def is_match(item: Item) -> int:
    """IsMatch"""
    return call("vyr_search_is_match", INT, (Record(Item), item))


def is_match_date_time(path: str) -> int:
    """IsMatchDateTime"""
    return call("vyr_search_is_match_date_time", INT, (TEXT, path))


def is_match_date_time_value(value: Optional[datetime.datetime]) -> int:
    """IsMatchDateTime"""
    return call("vyr_search_is_match_date_time_value", INT, (DATE_TIME, value))


def is_match_size_path(path: str, with_folders: int) -> int:
    """IsMatchSize"""
    return call("vyr_search_is_match_size_path", INT, (TEXT, path), (INT, with_folders))


def is_match_size(size: int) -> int:
    """IsMatchSize"""
    return call("vyr_search_is_match_size", INT, (INT64, size))


def get_search_closed() -> int:
    """GetSearchClosed"""
    return call("vyr_search_get_search_closed", INT)


def set_search_closed(closed: int) -> None:
    """SetSearchClosed"""
    return call("vyr_search_set_search_closed", NOTHING, (INT, closed))


def get_date_time_search() -> int:
    """GetDateTimeSearch"""
    return call("vyr_search_get_date_time_search", INT)


def set_date_time_search(search: int) -> None:
    """SetDateTimeSearch"""
    return call("vyr_search_set_date_time_search", NOTHING, (INT, search))


def get_date_time_target() -> int:
    """GetDateTimeTarget"""
    return call("vyr_search_get_date_time_target", INT)


def set_date_time_target(target: int) -> None:
    """SetDateTimeTarget"""
    return call("vyr_search_set_date_time_target", NOTHING, (INT, target))


def get_date_time_range() -> int:
    """GetDateTimeRange"""
    return call("vyr_search_get_date_time_range", INT)


def set_date_time_range(range: int) -> None:
    """SetDateTimeRange"""
    return call("vyr_search_set_date_time_range", NOTHING, (INT, range))


def get_date_time_from_date_time() -> Optional[datetime.datetime]:
    """GetDateTimeFromDateTime"""
    return call("vyr_search_get_date_time_from_date_time", DATE_TIME)


def set_date_time_from_date_time(from_: Optional[datetime.datetime]) -> None:
    """SetDateTimeFromDateTime"""
    return call("vyr_search_set_date_time_from_date_time", NOTHING, (DATE_TIME, from_))


def get_date_time_to_date_time() -> Optional[datetime.datetime]:
    """GetDateTimeToDateTime"""
    return call("vyr_search_get_date_time_to_date_time", DATE_TIME)


def set_date_time_to_date_time(to: Optional[datetime.datetime]) -> None:
    """SetDateTimeToDateTime"""
    return call("vyr_search_set_date_time_to_date_time", NOTHING, (DATE_TIME, to))


def get_size_search() -> int:
    """GetSizeSearch"""
    return call("vyr_search_get_size_search", INT)


def set_size_search(search: int) -> None:
    """SetSizeSearch"""
    return call("vyr_search_set_size_search", NOTHING, (INT, search))


def get_size_target() -> int:
    """GetSizeTarget"""
    return call("vyr_search_get_size_target", INT)


def set_size_target(target: int) -> None:
    """SetSizeTarget"""
    return call("vyr_search_set_size_target", NOTHING, (INT, target))


def get_size_range() -> int:
    """GetSizeRange"""
    return call("vyr_search_get_size_range", INT)


def set_size_range(range: int) -> None:
    """SetSizeRange"""
    return call("vyr_search_set_size_range", NOTHING, (INT, range))


def get_size_from_size() -> int:
    """GetSizeFromSize"""
    return call("vyr_search_get_size_from_size", INT64)


def set_size_from_size(from_: int) -> None:
    """SetSizeFromSize"""
    return call("vyr_search_set_size_from_size", NOTHING, (INT64, from_))


def get_size_to_size() -> int:
    """GetSizeToSize"""
    return call("vyr_search_get_size_to_size", INT64)


def set_size_to_size(to: int) -> None:
    """SetSizeToSize"""
    return call("vyr_search_set_size_to_size", NOTHING, (INT64, to))
