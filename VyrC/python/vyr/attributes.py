"""The operations of AttributesFuncs, which VyrLibraryFuncs/metadata/AttributesFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
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
    """AttributesFuncs::ATTRIBUTESITEM"""
    read_only: int = 0
    hidden: int = 0
    system: int = 0
    archive: int = 0
    temporary: int = 0
    not_content_indexed: int = 0


Item.c_name = "vyr_attributes_item"
Item.c_kinds = {"read_only": INT, "hidden": INT, "system": INT, "archive": INT, "temporary": INT, "not_content_indexed": INT}


def set_modified_file_attributes(path: str, item: Item) -> int:
    """SetModifiedFileAttributes"""
    return call("vyr_attributes_set_modified_file_attributes", INT, (TEXT, path), (Record(Item), item))


def get_selected_read_only_attributes(text: str) -> int:
    """GetSelectedReadOnlyAttributes"""
    return call("vyr_attributes_get_selected_read_only_attributes", INT, (TEXT, text))


def get_selected_hidden_attributes(text: str) -> int:
    """GetSelectedHiddenAttributes"""
    return call("vyr_attributes_get_selected_hidden_attributes", INT, (TEXT, text))


def get_selected_system_attributes(text: str) -> int:
    """GetSelectedSystemAttributes"""
    return call("vyr_attributes_get_selected_system_attributes", INT, (TEXT, text))


def get_selected_archive_attributes(text: str) -> int:
    """GetSelectedArchiveAttributes"""
    return call("vyr_attributes_get_selected_archive_attributes", INT, (TEXT, text))


def get_selected_temporary_attributes(text: str) -> int:
    """GetSelectedTemporaryAttributes"""
    return call("vyr_attributes_get_selected_temporary_attributes", INT, (TEXT, text))


def get_selected_not_content_indexed_attributes(text: str) -> int:
    """GetSelectedNotContentIndexedAttributes"""
    return call("vyr_attributes_get_selected_not_content_indexed_attributes", INT, (TEXT, text))


def set_read_only_attributes(path: str, is_on: int) -> int:
    """SetReadOnlyAttributes"""
    return call("vyr_attributes_set_read_only_attributes", INT, (TEXT, path), (INT, is_on))


def set_hidden_attributes(path: str, is_on: int) -> int:
    """SetHiddenAttributes"""
    return call("vyr_attributes_set_hidden_attributes", INT, (TEXT, path), (INT, is_on))


def set_system_attributes(path: str, is_on: int) -> int:
    """SetSystemAttributes"""
    return call("vyr_attributes_set_system_attributes", INT, (TEXT, path), (INT, is_on))


def set_archive_attributes(path: str, is_on: int) -> int:
    """SetArchiveAttributes"""
    return call("vyr_attributes_set_archive_attributes", INT, (TEXT, path), (INT, is_on))


def set_temporary_attributes(path: str, is_on: int) -> int:
    """SetTemporaryAttributes"""
    return call("vyr_attributes_set_temporary_attributes", INT, (TEXT, path), (INT, is_on))


def set_not_content_indexed_attributes(path: str, is_on: int) -> int:
    """SetNotContentIndexedAttributes"""
    return call("vyr_attributes_set_not_content_indexed_attributes", INT, (TEXT, path), (INT, is_on))


def get_arrtibutes_priority(letter: str) -> int:
    """GetArrtibutesPriority"""
    return call("vyr_attributes_get_arrtibutes_priority", INT, (TEXT, letter))
