r"""The operations of NameFuncs (VyrLibraryFuncs/name/NameFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Computes new paths from rename rules, numbers conflicting names, and copies or moves folder trees.

The computations rename nothing: they return the new path of an entry. All counts of characters are in UTF-16 code
units. Loops handle one pending event of the calling thread in each pass (VyrPlatform::MessageQueue), so that a
host's window stays responsive.
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
    """NameFuncs::ITEM"""
    file_path: str = ""
    aux_text1: str = ""
    aux_text2: str = ""
    aux_text3: str = ""
    aux_text4: str = ""
    dir_path: str = ""
    file_name: str = ""
    extension: str = ""
    index: int = 0
    rename_type: int = 0
    number_position: int = 0
    number_text1: str = ""
    number_text2: str = ""
    start_number: int = 0
    digits: int = 0
    step: int = 0
    date_time_position: int = 0
    date_time_target: int = 0
    date_time_format: str = ""
    add_delete_type: int = 0
    position: int = 0
    delete_count: int = 0
    add_text: str = ""
    convert_type: int = 0
    find_text: str = ""
    replace_text: str = ""
    extension_type: int = 0
    new_extension: str = ""


Item.c_name = "vyr_name_item"
Item.c_kinds = {"file_path": TEXT, "aux_text1": TEXT, "aux_text2": TEXT, "aux_text3": TEXT, "aux_text4": TEXT, "dir_path": TEXT, "file_name": TEXT, "extension": TEXT, "index": INT, "rename_type": INT, "number_position": INT, "number_text1": TEXT, "number_text2": TEXT, "start_number": INT, "digits": INT, "step": INT, "date_time_position": INT, "date_time_target": INT, "date_time_format": TEXT, "add_delete_type": INT, "position": INT, "delete_count": INT, "add_text": TEXT, "convert_type": INT, "find_text": TEXT, "replace_text": TEXT, "extension_type": INT, "new_extension": TEXT}


@dataclasses.dataclass
class ConflictItem:
    """NameFuncs::CONFLICTITEM"""
    number_format: str = ""
    position: int = 0
    start_number: int = 0
    step: int = 0


ConflictItem.c_name = "vyr_name_conflict_item"
ConflictItem.c_kinds = {"number_format": TEXT, "position": INT, "start_number": INT, "step": INT}


@dataclasses.dataclass
class RenameItem:
    """NameFuncs::RENAMEITEM"""
    source_path: str = ""
    destination_path: str = ""
    date_created: Optional[datetime.datetime] = ZERO
    date_modified: Optional[datetime.datetime] = ZERO


RenameItem.c_name = "vyr_name_rename_item"
RenameItem.c_kinds = {"source_path": TEXT, "destination_path": TEXT, "date_created": DATE_TIME, "date_modified": DATE_TIME}


def get_rename_file_path(item: Item) -> str:
    r"""GetRenameFilePath

    The new full path of `item` under its rename kind.
    Returns: empty for a kind other than 0 to 5.
    """
    return call("vyr_name_get_rename_file_path", TEXT, (Record(Item), item))


def get_rename_file_paths(items: Sequence[Item]) -> ListType[str]:
    r"""GetRenameFilePaths

    GetRenameFilePath for each of `items`: one call for an array.

    >>> get_rename_file_path(Item(dir_path="/d/", number_text1="a-", digits=3, index=6, step=1, extension=".jpg"))
    '/d/a-006.jpg'
    """
    return call("vyr_name_get_rename_file_paths", List(TEXT), (List(Record(Item)), items))


def get_f_name(path: str) -> str:
    r"""GetFName

    The name part of `path`: without the extension for a file, the whole name for an existing folder.

    >>> get_f_name("/photos/a.tar.gz")
    'a.tar'
    """
    return call("vyr_name_get_f_name", TEXT, (TEXT, path))


def get_extension(path: str) -> str:
    r"""GetExtension

    The extension of `path` with its dot; empty for an existing folder and for a name without a dot.

    >>> get_extension("/photos/a.tar.gz")
    '.gz'
    """
    return call("vyr_name_get_extension", TEXT, (TEXT, path))


def is_resolve_conflict(item: Item) -> int:
    r"""IsResolveConflict

    Whether conflicts under the rule of `item` are numbered (GetResolveConflictFilePath): 1 for the kinds sequence
    number, date-time and add/delete, and for a new extension (kind 5 with `extensionType` 2), else 0.
    """
    return call("vyr_name_is_resolve_conflict", INT, (Record(Item), item))


def get_sequence_number_file_path(item: Item) -> str:
    r"""GetSequenceNumberFilePath

    `dirPath` + the name that `numberPosition` makes of `step` x `index` + `startNumber` + `extension`. The number
    is a signed 32-bit integer and wraps.
    """
    return call("vyr_name_get_sequence_number_file_path", TEXT, (Record(Item), item))


def get_date_time_file_path(item: Item) -> str:
    r"""GetDateTimeFilePath

    `dirPath` + the name that `dateTimePosition` makes of the file's date-time + `extension`. Where the file has no
    such date-time its text is empty.
    """
    return call("vyr_name_get_date_time_file_path", TEXT, (Record(Item), item))


def get_add_delete_file_path(item: Item) -> str:
    r"""GetAddDeleteFilePath

    `dirPath` + `fileName` with characters inserted or deleted + `extension`; `filePath` unchanged where `position`
    or `deleteCount` reaches beyond the name. Negative values follow the formulas of the six operations; each part
    of the name is limited to the existing characters.

        Type DeleteFromStart, position 2, deleteCount 3: "abcdef" becomes "abf".
    """
    return call("vyr_name_get_add_delete_file_path", TEXT, (Record(Item), item))


def get_convert_file_path(item: Item) -> str:
    r"""GetConvertFilePath

    `dirPath` + `fileName` with its case converted, one code unit to one and the same in every locale + `extension`.
    """
    return call("vyr_name_get_convert_file_path", TEXT, (Record(Item), item))


def get_replace_file_path(item: Item) -> str:
    r"""GetReplaceFilePath

    `dirPath` + `fileName` with every `findText` replaced by `replaceText`, from the start, without overlap,
    case-sensitively + `extension`.
    """
    return call("vyr_name_get_replace_file_path", TEXT, (Record(Item), item))


def get_extension_file_path(item: Item) -> str:
    r"""GetExtensionFilePath

    `dirPath` + `fileName` + the changed extension; `filePath` unchanged when it is an existing folder.
    """
    return call("vyr_name_get_extension_file_path", TEXT, (Record(Item), item))


def get_resolve_conflict_file_path(path: str, item: ConflictItem) -> str:
    r"""GetResolveConflictFilePath

    A path that does not exist: `path` itself, or `path` with the first number that gives a free name.

    The search has no upper bound: with a `numberFormat` without "?", a `step` of 0 or an unknown `position` it may
    end only by a stop. A stop gives the last path tried, which may exist.

        Where "a.txt" exists, the pattern " (?)" after the name gives "a (1).txt".
    """
    return call("vyr_name_get_resolve_conflict_file_path", TEXT, (TEXT, path), (Record(ConflictItem), item))


def get_rename_to_sample_formated(format: str) -> str:
    r"""GetRenameToSampleFormated

    The current local time written with `format`, every "<Folder>" as a backslash. Empty for an empty `format`.
    """
    return call("vyr_name_get_rename_to_sample_formated", TEXT, (TEXT, format))


def get_date_time_format(path: str, format: str, target: int) -> str:
    r"""GetDateTimeFormat

    The date-time `target` (as ITEM::dateTimeTarget) of the file at `path`, written with `format`. Empty for an
    empty `format`.
    """
    return call("vyr_name_get_date_time_format", TEXT, (TEXT, path), (TEXT, format), (INT, target))


def get_folder_format(format: str) -> str:
    r"""GetFolderFormat

    `format` with every "<Folder>" replaced by a backslash.
    """
    return call("vyr_name_get_folder_format", TEXT, (TEXT, format))


def get_exif_format(path: str, format: str) -> str:
    r"""GetExifFormat

    `format` with every "<Make>" and "<Model>" replaced by the camera's maker and model in the picture at `path`, by
    nothing where it has none. The picture is read only when a token is there.
    """
    return call("vyr_name_get_exif_format", TEXT, (TEXT, path), (TEXT, format))


def copy_folder(source: str, destination: str, records: Optional[ListType[RenameItem]]) -> int:
    r"""CopyFolder

    Copies the entries of the folder `source` into the folder `destination`, folders with their contents, and
    overwrites existing files. A created folder gets the mode (on Windows the attributes) of its source.

    Two rules keep files safe: a link to a folder (on Windows also a junction) is copied as a link, is never entered
    and gets no record; and nothing is copied when `destination` is `source` itself or inside it, nor from a folder
    below `source` into which a link in `destination` leads. On Linux a destination with a ".." step behind a folder
    that does not exist counts as inside.
    source: an empty path, or the path of no folder, gives 0.
    destination: must exist when `source` directly contains files: it is created only for folders. Empty: the
    current folder.
    records: gets a record for each created folder, parents first. Never cleared. Null: nothing is recorded.
    Returns: 1 when the last copy succeeded, else 0; also 0 when there was nothing to copy. A stop does not end the
    walk.
    """
    return call("vyr_name_copy_folder", INT, (TEXT, source), (TEXT, destination), (Collected(Record(RenameItem)), records))


def move_folder(source: str, destination: str, records: Optional[ListType[RenameItem]]) -> int:
    r"""MoveFolder

    Moves the entries of the folder `source` into the folder `destination` by the rules of CopyFolder, and removes
    `source`. A file whose new path is another hard link of the same file is removed.
    Returns: 1 when `source` is gone; 0 when an entry could not be moved.
    """
    return call("vyr_name_move_folder", INT, (TEXT, source), (TEXT, destination), (Collected(Record(RenameItem)), records))
