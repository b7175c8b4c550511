r"""The operations of LogFuncs (VyrLibraryFuncs/textfile/LogFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Reports failures as lines of a log.

A line is a record of three fields in double quotes, separated by commas and ended by CR LF: the current local
date-time (`yyyy/MM/dd HH:mm:ss`), the level, the message. The message is written unchanged; a double quote in it is
not doubled.

    "2024/01/05 10:30:00","2","File not found"

Lines are written to the debugger output (VyrPlatform::DebugOutput). The path of the day's log file is for hosts
that keep one; nothing here opens it. Several threads may write at once.
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


def get_log_file_name() -> str:
    r"""GetLogFileName

    The name of the log file of the current local day: `2024-01-05_program.log`, with the base name of the running
    program's file.
    """
    return call("vyr_log_get_log_file_name", TEXT)


def get_application_log_file_path() -> str:
    r"""GetApplicationLogFilePath

    The full path of that file in the program's log folder (PathUtils::GetApplicationLogFolderPath); the name alone
    where the system has no such folder.
    """
    return call("vyr_log_get_application_log_file_path", TEXT)


def write_with_path_level(path: str, message: str, level: int) -> int:
    r"""Write

    Writes a line.

    A file exception that the sink of the debugger output throws is caught: the number of its cause, in decimal, is
    written to the debugger output instead. Other exceptions pass to the caller.
    path: the log file; not used.
    message: the line's text, of any length.
    level: any number; the library itself uses 2.
    Returns: 0.
    """
    return call("vyr_log_write_with_path_level", INT, (TEXT, path), (TEXT, message), (INT, level))


def write_with_level(message: str, level: int) -> int:
    r"""Write

    Write(GetApplicationLogFilePath(), message, level).
    """
    return call("vyr_log_write_with_level", INT, (TEXT, message), (INT, level))


def write(message: str) -> int:
    r"""Write

    Write(GetApplicationLogFilePath(), message, 2).
    """
    return call("vyr_log_write", INT, (TEXT, message))
