r"""The operations of UnblockFuncs (VyrLibraryFuncs/metadata/UnblockFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Removes the mark of files that were downloaded from the internet.
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


def delete_zone_id(path: str) -> int:
    r"""DeleteZoneId

    Removes the mark from the file at `path`, also when the file is read-only: then it is made writable for the
    removal and read-only again afterwards, even after a failure. Other attributes and permissions are kept.
    Returns: the result of FileUtils::DeleteZoneId: 1 when there was a mark and none is left, else 0.
    """
    return call("vyr_unblock_delete_zone_id", INT, (TEXT, path))
