r"""The operations of DateTimeFuncs (VyrLibraryFuncs/metadata/DateTimeFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Date-times of files, and calendar arithmetic.

A COleDateTime is local time, a FILETIME is UTC; the zero FILETIME means "no value". Local time is converted to a
FILETIME by the system's own conversion: on Windows with today's offset from UTC, on Linux with the offset of the
date itself. A date-time that cannot be converted (an invalid one, a year before 1601) gives zero.

No operation throws. Calendar dates are Gregorian, from the year 1400 to 9999.
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
    r"""GetOtherDateTime

    A date-time of the file at `path` as text, `yyyy/MM/dd HH:mm:ss`, from FileListUtils.
    date_time_target: 0 modified, 1 created, 2 accessed, any other value the time when the picture was taken
    (Exif tag DateTimeOriginal).
    Returns: empty when the file has no such date-time.
    """
    return call("vyr_date_time_get_other_date_time", TEXT, (TEXT, path), (INT, date_time_target))


def get_selected_file_date_time(path: str, date_time_target: int, is_enabled: int) -> Optional[datetime.datetime]:
    r"""GetSelectedFileDateTime

    The same date-time as a file time, without its fraction of a second.
    is_enabled: 0 gives zero without reading the file.
    Returns: zero when the file has no such date-time.
    """
    return call("vyr_date_time_get_selected_file_date_time", FILE_TIME, (TEXT, path), (INT, date_time_target), (INT, is_enabled))


def get_modified_file_date_time(path: str, is_enabled: int, date: Optional[datetime.datetime], time: Optional[datetime.datetime], date_time_mode: int) -> Optional[datetime.datetime]:
    r"""GetModifiedFileDateTime

    A file time combined from a date, a time and the file's own last-write time.
    is_enabled: 0 gives zero.
    date: only its year, month and day are read.
    time: only its hour, minute and second are read.
    date_time_mode: 1: the time of day is the file's. 2: the date is the file's. 3: both are. Any other value:
    neither (DateTimeUtils::GetDateTime).
    Returns: zero when a part is missing: an invalid date-time, or no file.
    """
    return call("vyr_date_time_get_modified_file_date_time", FILE_TIME, (TEXT, path), (INT, is_enabled), (DATE_TIME, date), (DATE_TIME, time), (INT, date_time_mode))


def set_modified_file_date_time(path: str, created: Optional[datetime.datetime], modified: Optional[datetime.datetime], accessed: Optional[datetime.datetime]) -> int:
    r"""SetModifiedFileDateTime

    Writes times to the file or folder at `path` (a link is followed), all or none.

    A read-only file is refused. A failure writes one line to the log: the name of this operation, the path and the
    system's text of the error.
    created, modified, accessed: null, or the zero file time, keeps that time. On Linux the creation time is
    kept in extended attributes; where the file system has none, the operation fails.
    Returns: nonzero on success, else 0.
    """
    return call("vyr_date_time_set_modified_file_date_time", INT, (TEXT, path), (FILE_TIME, created), (FILE_TIME, modified), (FILE_TIME, accessed))


def get_stagger_file_date_time(index: int, is_enabled: int, base: Optional[datetime.datetime], item: StaggerItem) -> Optional[datetime.datetime]:
    r"""GetStaggerFileDateTime

    The date-time of one file of a staggered list.

    Hours, minutes and seconds are added first, on the clock without daylight-saving time; then years, months and
    days as in GetCalDateTime. Multiplier and products are signed 32-bit numbers and wrap.
    index: the file's index in the list, from 0.
    is_enabled: 0 gives zero.
    base: the start, later than 30 December 1899 00:00; an earlier or invalid one gives zero.
    Returns: zero also when hours, minutes and seconds leave the calendar.
    """
    return call("vyr_date_time_get_stagger_file_date_time", FILE_TIME, (INT, index), (INT, is_enabled), (DATE_TIME, base), (Record(StaggerItem), item))


def get_cal_date_time(date_time: Optional[datetime.datetime], years: int, months: int, days: int) -> Optional[datetime.datetime]:
    r"""GetCalDateTime

    `dateTime` moved by years, then months, then days, each applied to the result of the one before; the time of day
    is kept.

    The last day of a month stays the last day: 31 January plus one month is 28 or 29 February, 30 April plus one
    month is 31 May. Any other day keeps its number, limited to the month's length.
    years, months, days: each may be negative.
    Returns: `dateTime` unchanged when it is invalid, or when it or a step is outside the years 1400 to 9999; then a
    line with the calendar's text, such as "Year is out of valid range: 1400..9999", is written to the log.

    >>> get_cal_date_time(datetime.datetime(2024, 1, 31), 0, 1, 0)
    datetime.datetime(2024, 2, 29, 0, 0)
    """
    return call("vyr_date_time_get_cal_date_time", DATE_TIME, (DATE_TIME, date_time), (INT, years), (INT, months), (INT, days))


def get_time_difference_date_time(date_time: Optional[datetime.datetime], hours: int) -> Optional[datetime.datetime]:
    r"""GetTimeDifferenceDateTime

    `dateTime` moved by `hours`, which may be negative, on the clock without daylight-saving time.
    Returns: 30 December 1899 00:00, valid, when `dateTime` is invalid or not later than that, and when the result
    leaves the calendar.
    """
    return call("vyr_date_time_get_time_difference_date_time", DATE_TIME, (DATE_TIME, date_time), (INT, hours))


def get_yesterday_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    r"""GetYesterdayDateTime

    One day earlier, as in GetCalDateTime; the time of day is kept, as in the next operations.
    """
    return call("vyr_date_time_get_yesterday_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_last_month_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    r"""GetLastMonthDateTime

    One month earlier.
    """
    return call("vyr_date_time_get_last_month_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_last_year_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    r"""GetLastYearDateTime

    One year earlier.
    """
    return call("vyr_date_time_get_last_year_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_begin_this_week_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    r"""GetBeginThisWeekDateTime

    The Sunday of its week; weeks begin on Sunday.
    """
    return call("vyr_date_time_get_begin_this_week_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_begin_last_week_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    r"""GetBeginLastWeekDateTime

    The Sunday of the week before.
    """
    return call("vyr_date_time_get_begin_last_week_date_time", DATE_TIME, (DATE_TIME, date_time))


def get_end_week_date_time(date_time: Optional[datetime.datetime]) -> Optional[datetime.datetime]:
    r"""GetEndWeekDateTime

    Six days later, whatever the day: for a Sunday, the Saturday of its week.
    """
    return call("vyr_date_time_get_end_week_date_time", DATE_TIME, (DATE_TIME, date_time))


def is_match_date_month(left: Optional[datetime.datetime], right: Optional[datetime.datetime]) -> int:
    r"""IsMatchDateMonth

    1 when both are in the same month of the same year, else 0. A null one matches nothing; two invalid ones match.
    """
    return call("vyr_date_time_is_match_date_month", INT, (DATE_TIME, left), (DATE_TIME, right))


def is_match_date(left: Optional[datetime.datetime], right: Optional[datetime.datetime]) -> int:
    r"""IsMatchDate

    1 when both are on the same day, else 0, under the same rules.
    """
    return call("vyr_date_time_is_match_date", INT, (DATE_TIME, left), (DATE_TIME, right))
