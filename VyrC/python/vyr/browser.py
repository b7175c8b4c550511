r"""The operations of BrowserFuncs (VyrLibraryFuncs/shell/BrowserFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Lists the installed browsers from the registry. Starts none.
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
class AppItem:
    """BrowserFuncs::APPITEM"""
    app_type: int = 0
    app_key: str = ""
    display_name: str = ""
    command: str = ""
    executable_path: str = ""


AppItem.c_name = "vyr_browser_app_item"
AppItem.c_kinds = {"app_type": INT, "app_key": TEXT, "display_name": TEXT, "command": TEXT, "executable_path": TEXT}


def get_browser_items_list() -> ListType[AppItem]:
    r"""GetBrowserItemsList

    The browsers that are registered for this machine's start menu, in the registry's order. `Command` and
    `ExecutablePath` are the same: the command without double quotes, including its arguments.

    A browser without a name or a command, or with one of more than 259 code units, is left out.
    """
    return call("vyr_browser_get_browser_items_list", List(Record(AppItem)))


def get_microsoft_edge_app_item() -> AppItem:
    r"""GetMicrosoftEdgeAppItem

    The packaged Microsoft Edge of early Windows 10, whether it is installed or not.
    """
    return call("vyr_browser_get_microsoft_edge_app_item", Record(AppItem))


def is_installed_microsoft_edge_chromium() -> int:
    r"""IsInstalledMicrosoftEdgeChromium

    1 when this machine's list of 32-bit programs has an entry "Microsoft Edge" that can be uninstalled, else 0. The
    list of other programs is not read.
    """
    return call("vyr_browser_is_installed_microsoft_edge_chromium", INT)
