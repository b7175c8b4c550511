"""The operations of ColumnFuncs, which VyrLibraryFuncs/select/ColumnFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def is_visible_column(list_control: int, name: str) -> int:
    """IsVisibleColumn"""
    return call("vyr_column_is_visible_column", INT, (HANDLE, list_control), (TEXT, name))


def get_column_header_item(list_control: int, name: str) -> int:
    """GetColumnHeaderItem"""
    return call("vyr_column_get_column_header_item", INT, (HANDLE, list_control), (TEXT, name))


def get_column_item_order(list_control: int, name: str) -> int:
    """GetColumnItemOrder"""
    return call("vyr_column_get_column_item_order", INT, (HANDLE, list_control), (TEXT, name))


def get_column_item_text(list_control: int, index: int) -> str:
    """GetColumnItemText"""
    return call("vyr_column_get_column_item_text", TEXT, (HANDLE, list_control), (INT, index))
