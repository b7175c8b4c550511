r"""The operations of HostLists (VyrC/HostLists.h); written by VyrC/generate from VyrC/interface.txt.

Describes lists of a host on Linux, for the operations that take a list control. On Windows a host gives the handle
of its own window: there every operation fails.
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


def create() -> int:
    r"""Create

    A new list with a header and without columns. Destroy it with Destroy.
    Returns: its handle; 0 on Windows.
    """
    return call("vyr_host_list_create", HANDLE)


def destroy(list: int) -> int:
    r"""Destroy

    Returns: whether there was such a list.
    """
    return call("vyr_host_list_destroy", INT, (HANDLE, list))


def insert_column(list: int, index: int, heading: str) -> int:
    r"""InsertColumn

    Inserts a column at `index`, and at the position of the same number. An index past the end appends it.
    Returns: whether it was inserted: 0 for a negative `index`.
    """
    return call("vyr_host_list_insert_column", INT, (HANDLE, list), (INT, index), (TEXT, heading))


def delete_column(list: int, index: int) -> int:
    r"""DeleteColumn

    Returns: whether there was such a column.
    """
    return call("vyr_host_list_delete_column", INT, (HANDLE, list), (INT, index))


def move_column(list: int, index: int, position: int) -> int:
    r"""MoveColumn

    Moves the column at `index` to `position`, like a user who drags its heading there.
    Returns: whether there is such a column and such a position.
    """
    return call("vyr_host_list_move_column", INT, (HANDLE, list), (INT, index), (INT, position))


def set_has_header(list: int, has_header: int) -> int:
    r"""SetHasHeader

    Sets whether the list has a header: 1 or 0. Without one it keeps its columns.
    Returns: whether there is such a list.
    """
    return call("vyr_host_list_set_has_header", INT, (HANDLE, list), (INT, has_header))
