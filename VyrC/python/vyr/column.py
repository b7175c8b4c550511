r"""The operations of ColumnFuncs (VyrLibraryFuncs/select/ColumnFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Finds columns of a list in report style by their headings, whichever columns are shown and wherever the user has
dragged them. Case is ignored. Only the first 259 code units of a heading are compared.

A search drains one message of the calling thread before each column; a stop ends it without a match. It sees
columns that a message adds or removes meanwhile. A list without a header has no columns here.

Example: of the columns "Name", "Size" and "Type", the user has dragged "Type" to the left end. "type" then has the
index 2 and the order 0.
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


def is_visible_column(list_control: int, name: str) -> int:
    r"""IsVisibleColumn

    Whether a column has the heading `name` (1 or 0).
    """
    return call("vyr_column_is_visible_column", INT, (HANDLE, list_control), (TEXT, name))


def get_column_header_item(list_control: int, name: str) -> int:
    r"""GetColumnHeaderItem

    The index, from 0, of the first column, in the order of creation, with the heading `name`; -1 for none.
    """
    return call("vyr_column_get_column_header_item", INT, (HANDLE, list_control), (TEXT, name))


def get_column_item_order(list_control: int, name: str) -> int:
    r"""GetColumnItemOrder

    The position, from 0 at the left, of the leftmost column with the heading `name`; -1 for none, and when there is
    no memory for the positions. The positions are those at the beginning of the search.
    """
    return call("vyr_column_get_column_item_order", INT, (HANDLE, list_control), (TEXT, name))


def get_column_item_text(list_control: int, index: int) -> str:
    r"""GetColumnItemText

    The heading of the column at `index`; empty when there is none. It drains no message.
    """
    return call("vyr_column_get_column_item_text", TEXT, (HANDLE, list_control), (INT, index))
