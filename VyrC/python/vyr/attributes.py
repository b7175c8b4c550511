r"""The operations of AttributesFuncs (VyrLibraryFuncs/metadata/AttributesFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Sets and clears six attributes: read-only (letter R), hidden (H), system (S), archive (A), temporary (T) and not
content indexed (I).

A choice is an int: 0 keeps the attribute, 1 sets it, any other value (2 by custom) clears it. All operations work
on folders, too, but Windows makes no folder temporary. VyrPlatform::FileAttributes describes how Linux stores
attributes.
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
    r"""SetModifiedFileAttributes

    Applies all six choices, in the order of the record; a failure does not stop the others.
    Returns: 1 when all succeeded (keeping an attribute succeeds), else 0.
    """
    return call("vyr_attributes_set_modified_file_attributes", INT, (TEXT, path), (Record(Item), item))


def get_selected_read_only_attributes(text: str) -> int:
    r"""GetSelectedReadOnlyAttributes

    1 (set) when the upper-case "R" occurs in `text`, else 2 (clear). The next operations do the same for their
    letters.
    """
    return call("vyr_attributes_get_selected_read_only_attributes", INT, (TEXT, text))


def get_selected_hidden_attributes(text: str) -> int:
    r"""GetSelectedHiddenAttributes
    """
    return call("vyr_attributes_get_selected_hidden_attributes", INT, (TEXT, text))


def get_selected_system_attributes(text: str) -> int:
    r"""GetSelectedSystemAttributes
    """
    return call("vyr_attributes_get_selected_system_attributes", INT, (TEXT, text))


def get_selected_archive_attributes(text: str) -> int:
    r"""GetSelectedArchiveAttributes
    """
    return call("vyr_attributes_get_selected_archive_attributes", INT, (TEXT, text))


def get_selected_temporary_attributes(text: str) -> int:
    r"""GetSelectedTemporaryAttributes
    """
    return call("vyr_attributes_get_selected_temporary_attributes", INT, (TEXT, text))


def get_selected_not_content_indexed_attributes(text: str) -> int:
    r"""GetSelectedNotContentIndexedAttributes
    """
    return call("vyr_attributes_get_selected_not_content_indexed_attributes", INT, (TEXT, text))


def set_read_only_attributes(path: str, is_on: int) -> int:
    r"""SetReadOnlyAttributes

    Sets or clears the read-only attribute of the file at `path`. The next operations do the same for their
    attributes.
    is_on: nonzero sets it, 0 clears it.
    Returns: nonzero on success, else 0 (no file, no permission, a file system that keeps no attributes).
    """
    return call("vyr_attributes_set_read_only_attributes", INT, (TEXT, path), (INT, is_on))


def set_hidden_attributes(path: str, is_on: int) -> int:
    r"""SetHiddenAttributes
    """
    return call("vyr_attributes_set_hidden_attributes", INT, (TEXT, path), (INT, is_on))


def set_system_attributes(path: str, is_on: int) -> int:
    r"""SetSystemAttributes
    """
    return call("vyr_attributes_set_system_attributes", INT, (TEXT, path), (INT, is_on))


def set_archive_attributes(path: str, is_on: int) -> int:
    r"""SetArchiveAttributes
    """
    return call("vyr_attributes_set_archive_attributes", INT, (TEXT, path), (INT, is_on))


def set_temporary_attributes(path: str, is_on: int) -> int:
    r"""SetTemporaryAttributes
    """
    return call("vyr_attributes_set_temporary_attributes", INT, (TEXT, path), (INT, is_on))


def set_not_content_indexed_attributes(path: str, is_on: int) -> int:
    r"""SetNotContentIndexedAttributes
    """
    return call("vyr_attributes_set_not_content_indexed_attributes", INT, (TEXT, path), (INT, is_on))


def get_arrtibutes_priority(letter: str) -> int:
    r"""GetArrtibutesPriority

    The index of an attribute letter in the order of display, R H S D A T P L C O I E X V: 0 to 13, in either case.
    Returns: -1 for any other text.
    """
    return call("vyr_attributes_get_arrtibutes_priority", INT, (TEXT, letter))
