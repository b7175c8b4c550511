r"""The operations of HostRegistry (VyrC/HostRegistry.h); written by VyrC/generate from VyrC/interface.txt.

Chooses the registry that the operations on Linux read: that of a Wine prefix, or the hives of a Windows that is not
running. Files are only read. Windows has its own registry: there nothing is opened.
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
class HiveFiles:
    """HostRegistry::HIVEFILES"""
    software: str = ""
    system: str = ""
    user: str = ""
    user_classes: str = ""


HiveFiles.c_name = "vyr_host_registry_hive_files"
HiveFiles.c_kinds = {"software": TEXT, "system": TEXT, "user": TEXT, "user_classes": TEXT}


@dataclasses.dataclass
class OpenResult:
    """HostRegistry::OPENRESULT"""
    outcome: int = 0
    error: int = 0
    file: str = ""
    unclosed_files: str = ""


OpenResult.c_name = "vyr_host_registry_open_result"
OpenResult.c_kinds = {"outcome": INT, "error": UINT32, "file": TEXT, "unclosed_files": TEXT}


def show_wine_prefix(folder: str) -> OpenResult:
    r"""ShowWinePrefix

    Shows the registry of the Wine prefix in `folder`: its `system.reg` and, if it exists, `user.reg`.
    """
    return call("vyr_host_registry_show_wine_prefix", Record(OpenResult), (TEXT, folder))


def show_hives(files: HiveFiles) -> OpenResult:
    r"""ShowHives

    Shows the registry of a Windows that is not running, and keeps its files open. Where a file cannot be opened,
    nothing changes.
    """
    return call("vyr_host_registry_show_hives", Record(OpenResult), (Record(HiveFiles), files))


def show_user_hives(user: str, user_classes: str) -> OpenResult:
    r"""ShowUserHives

    Shows another user together with the machine that is shown. The paths are those of HIVEFILES.
    """
    return call("vyr_host_registry_show_user_hives", Record(OpenResult), (TEXT, user), (TEXT, user_classes))


def close() -> None:
    r"""Close

    Shows no registry of files any longer.
    """
    return call("vyr_host_registry_close", NOTHING)
