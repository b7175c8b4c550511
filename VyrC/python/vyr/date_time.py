"""The operations of DateTimeFuncs, which VyrLibraryFuncs/metadata/DateTimeFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


@dataclasses.dataclass
class StaggerItem:
    """DateTimeFuncs::STAGGERITEM"""
    use_start_date_time: int = 0
    start_date: Optional[datetime.datetime] = ZERO
    start_time: Optional[datetime.datetime] = ZERO
    numbering_mode: int = 0
    direction: int = 0
    start_number: int = 0
    years: int = 0
    months: int = 0
    days: int = 0
    hours: int = 0
    minutes: int = 0
    seconds: int = 0


StaggerItem.c_name = "vyr_date_time_stagger_item"
StaggerItem.c_kinds = {"use_start_date_time": INT, "start_date": DATE_TIME, "start_time": DATE_TIME, "numbering_mode": INT, "direction": INT, "start_number": INT, "years": INT, "months": INT, "days": INT, "hours": INT, "minutes": INT, "seconds": INT}


def get_other_date_time(path: str, date_time_target: int) -> str:
    """GetOtherDateTime"""
    return call("vyr_date_time_get_other_date_time", TEXT, (TEXT, path), (INT, date_time_target))


def get_selected_file_date_time(path: str, date_time_target: int, is_enabled: int) -> Optional[datetime.datetime]:
    """GetSelectedFileDateTime"""
    return call("vyr_date_time_get_selected_file_date_time", FILE_TIME, (TEXT, path), (INT, date_time_target), (INT, is_enabled))


def get_modified_file_date_time(path: str, is_enabled: int, date: Optional[datetime.datetime], time: Optional[datetime.datetime], date_time_mode: int) -> Optional[datetime.datetime]:
    """GetModifiedFileDateTime"""
    return call("vyr_date_time_get_modified_file_date_time", FILE_TIME, (TEXT, path), (INT, is_enabled), (DATE_TIME, date), (DATE_TIME, time), (INT, date_time_mode))


def set_modified_file_date_time(path: str, created: Optional[datetime.datetime], modified: Optional[datetime.datetime], accessed: Optional[datetime.datetime]) -> int:
    """SetModifiedFileDateTime"""
    return call("vyr_date_time_set_modified_file_date_time", INT, (TEXT, path), (FILE_TIME, created), (FILE_TIME, modified), (FILE_TIME, accessed))


def get_stagger_file_date_time(index: int, is_enabled: int, base: Optional[datetime.datetime], item: StaggerItem) -> Optional[datetime.datetime]:
    """GetStaggerFileDateTime"""
    return call("vyr_date_time_get_stagger_file_date_time", FILE_TIME, (INT, index), (INT, is_enabled), (DATE_TIME, base), (Record(StaggerItem), item))


def get_cal_date_time(date_time: Optional[datetime.datetime], years: int, months: int, days: int) -> Optional[datetime.datetime]:
    """GetCalDateTime"""
    return call("vyr_date_time_get_cal_date_time", DATE_TIME, (DATE_TIME, date_time), (INT, years), (INT, months), (INT, days))


def get_time_difference_date_time(date_time: Optional[datetime.datetime], hours: int) -> Optional[datetime.datetime]:
    """GetTimeDifferenceDateTime"""
    return call("vyr_date_time_get_time_difference_date_time", DATE_TIME, (DATE_TIME, date_time), (INT, hours))


def get_yesterday_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    """GetYesterdayDateTime"""
    return call("vyr_date_time_get_yesterday_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_last_month_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    """GetLastMonthDateTime"""
    return call("vyr_date_time_get_last_month_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_last_year_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    """GetLastYearDateTime"""
    return call("vyr_date_time_get_last_year_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_begin_this_week_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    """GetBeginThisWeekDateTime"""
    return call("vyr_date_time_get_begin_this_week_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_begin_last_week_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    """GetBeginLastWeekDateTime"""
    return call("vyr_date_time_get_begin_last_week_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_end_week_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    """GetEndWeekDateTime"""
    return call("vyr_date_time_get_end_week_date_time", DATE_TIME, (DATE_TIME, date_time))


def is_match_date_month(left: Optional[datetime.datetime], right: Optional[datetime.datetime]) -> int:
    """IsMatchDateMonth"""
    return call("vyr_date_time_is_match_date_month", INT, (DATE_TIME, left), (DATE_TIME, right))


def is_match_date(left: Optional[datetime.datetime], right: Optional[datetime.datetime]) -> int:
    """IsMatchDate"""
    return call("vyr_date_time_is_match_date", INT, (DATE_TIME, left), (DATE_TIME, right))
