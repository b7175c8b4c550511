"""The operations of BrowserFuncs, which VyrLibraryFuncs/shell/BrowserFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


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
    """GetBrowserItemsList"""
    return call("vyr_browser_get_browser_items_list", List(Record(AppItem)))


def get_microsoft_edge_app_item() -> AppItem:
    """GetMicrosoftEdgeAppItem"""
    return call("vyr_browser_get_microsoft_edge_app_item", Record(AppItem))


def is_installed_microsoft_edge_chromium() -> int:
    """IsInstalledMicrosoftEdgeChromium"""
    return call("vyr_browser_is_installed_microsoft_edge_chromium", INT)
