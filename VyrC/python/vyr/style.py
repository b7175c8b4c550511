r"""The operations of StyleFuncs (VyrLibraryFuncs/xmlinfo/StyleFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Reads design documents, and keeps the list of their items for the life of the process, without a lock: for the
host's interface thread.
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
class Item:
    """StyleFuncs::DESIGNITEM"""
    id: int = 0
    value: str = ""
    name: str = ""


Item.c_name = "vyr_style_item"
Item.c_kinds = {"id": INT, "value": TEXT, "name": TEXT}


def initialize_styles_information() -> None:
    r"""InitializeStylesInformation

    Empties the list.
    """
    return call("vyr_style_initialize_styles_information", NOTHING)


def get_styles_information(path: str) -> int:
    r"""GetStylesInformation

    Reads a design document into the list:

        <designs>
          <design>
            <moreinfo>
              <item id="1" value="plain.css" name="Plain"/>
              <item id="2" value="cards.css" name="Cards"/>
            </moreinfo>
          </design>
        </designs>

    Names match with their case, at any depth, without a prefix; the root may have any name. Of several `design`
    elements the last one counts. An item without an attribute has the value of the item before it in the same
    `moreinfo`; at first 0 and empty texts. A stop ends only the list of elements that is being read: after one
    among the items of a `moreinfo`, the next `moreinfo` is read.
    Returns: 1 when a `design` element was read; 0 when there is none, when a stop comes before the first, when the
    document does not load (the list is then empty), and when there is no file at `path` (the list is kept).
    Raises Error: _com_error  as MSXMLFuncs::LoadXmlFile does.
    """
    return call("vyr_style_get_styles_information", INT, (TEXT, path))


def set_design_items_list(items: Sequence[Item]) -> None:
    r"""SetDesignItemsList
    """
    return call("vyr_style_set_design_items_list", NOTHING, (List(Record(Item)), items))


def get_design_items_list() -> ListType[Item]:
    r"""GetDesignItemsList
    """
    return call("vyr_style_get_design_items_list", List(Record(Item)))
