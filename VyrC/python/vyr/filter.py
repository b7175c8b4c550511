"""The operations of FilterFuncs, which VyrLibraryFuncs/select/FilterFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


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
    """IsMatch"""
    return call("vyr_filter_is_match", INT, (TEXT, path), (INT, mode), (List(Record(Condition)), items))


def is_match_name(name: str, mode: int, items: Sequence[Condition]) -> int:
    """IsMatchName"""
    return call("vyr_filter_is_match_name", INT, (TEXT, name), (INT, mode), (List(Record(Condition)), items))


def is_already_added(text: str, list: Sequence[str]) -> int:
    """IsAlreadyAdded"""
    return call("vyr_filter_is_already_added", INT, (TEXT, text), (List(TEXT), list))
