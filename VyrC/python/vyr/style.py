"""The operations of StyleFuncs, which VyrLibraryFuncs/xmlinfo/StyleFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


@dataclasses.dataclass
class Item:
    """StyleFuncs::DESIGNITEM"""
    id: int = 0
    value: str = ""
    name: str = ""


Item.c_name = "vyr_style_item"
Item.c_kinds = {"id": INT, "value": TEXT, "name": TEXT}


def initialize_styles_information() -> None:
    """InitializeStylesInformation"""
    return call("vyr_style_initialize_styles_information", NOTHING)


def get_styles_information(path: str) -> int:
    """GetStylesInformation"""
    return call("vyr_style_get_styles_information", INT, (TEXT, path))


def set_design_items_list(items: Sequence[Item]) -> None:
    """SetDesignItemsList"""
    return call("vyr_style_set_design_items_list", NOTHING, (List(Record(Item)), items))


def get_design_items_list() -> ListType[Item]:
    """GetDesignItemsList"""
    return call("vyr_style_get_design_items_list", List(Record(Item)))
