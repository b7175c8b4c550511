"""The operations of LogFuncs, which VyrLibraryFuncs/textfile/LogFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def get_log_file_name() -> str:
    """GetLogFileName"""
    return call("vyr_log_get_log_file_name", TEXT)


def get_application_log_file_path() -> str:
    """GetApplicationLogFilePath"""
    return call("vyr_log_get_application_log_file_path", TEXT)


def write_with_path_level(path: str, message: str, level: int) -> int:
    """Write"""
    return call("vyr_log_write_with_path_level", INT, (TEXT, path), (TEXT, message), (INT, level))


def write_with_level(message: str, level: int) -> int:
    """Write"""
    return call("vyr_log_write_with_level", INT, (TEXT, message), (INT, level))


def write(message: str) -> int:
    """Write"""
    return call("vyr_log_write", INT, (TEXT, message))
