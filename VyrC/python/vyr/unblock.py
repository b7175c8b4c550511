"""The operations of UnblockFuncs, which VyrLibraryFuncs/metadata/UnblockFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def delete_zone_id(path: str) -> int:
    """DeleteZoneId"""
    return call("vyr_unblock_delete_zone_id", INT, (TEXT, path))
