r"""The operations of FilterFuncs (VyrLibraryFuncs/select/FilterFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Decides by name which files stay in a list.

A filter is a list of conditions and a mode. Conditions are tried in their order until one matches; each try drains
one message of the calling thread, and a stop ends the tries.

Example: the mode Include with the conditions "ends with .jpg" and "begins with IMG" keeps `a.jpg` and `IMG_1.png`
and drops `b.png`; the mode Exclude keeps only `b.png`.
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
class Condition:
    """FilterFuncs::FILTERITEM"""
    filter_value: int = 0
    enabled: int = 0
    text: str = ""
    condition: int = 0
    match_case: int = 0


Condition.c_name = "vyr_filter_condition"
Condition.c_kinds = {"filter_value": INT, "enabled": INT, "text": TEXT, "condition": INT, "match_case": INT}


def is_match(path: str, mode: int, items: Sequence[Condition]) -> int:
    r"""IsMatch

    Whether the entry at `path` is kept (1 or 0). Its file name with extension is compared. A path that does not
    exist is kept.
    mode: a value of Mode.
    """
    return call("vyr_filter_is_match", INT, (TEXT, path), (INT, mode), (List(Record(Condition)), items))


def is_match_name(name: str, mode: int, items: Sequence[Condition]) -> int:
    r"""IsMatchName

    Whether an entry called `name` is kept (1 or 0). No file is read. An empty name is kept.

    >>> is_match_name("a.JPG", 0, [Condition(enabled=1, text=".jpg", condition=3)])
    1
    """
    return call("vyr_filter_is_match_name", INT, (TEXT, name), (INT, mode), (List(Record(Condition)), items))


def is_already_added(text: str, list: Sequence[str]) -> int:
    r"""IsAlreadyAdded

    Whether `list` contains `text`, ignoring case (1 or 0). Drains one message for each element; a stop ends the
    search.
    """
    return call("vyr_filter_is_already_added", INT, (TEXT, text), (List(TEXT), list))
