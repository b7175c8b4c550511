"""The operations of NameFuncs, which VyrLibraryFuncs/name/NameFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
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
    """GetRenameFilePath"""
    return call("vyr_name_get_rename_file_path", TEXT, (Record(Item), item))


def get_f_name(path: str) -> str:
    """GetFName"""
    return call("vyr_name_get_f_name", TEXT, (TEXT, path))


def get_extension(path: str) -> str:
    """GetExtension"""
    return call("vyr_name_get_extension", TEXT, (TEXT, path))


def is_resolve_conflict(item: Item) -> int:
    """IsResolveConflict"""
    return call("vyr_name_is_resolve_conflict", INT, (Record(Item), item))


def get_sequence_number_file_path(item: Item) -> str:
    """GetSequenceNumberFilePath"""
    return call("vyr_name_get_sequence_number_file_path", TEXT, (Record(Item), item))


def get_date_time_file_path(item: Item) -> str:
    """GetDateTimeFilePath"""
    return call("vyr_name_get_date_time_file_path", TEXT, (Record(Item), item))


def get_add_delete_file_path(item: Item) -> str:
    """GetAddDeleteFilePath"""
    return call("vyr_name_get_add_delete_file_path", TEXT, (Record(Item), item))


def get_convert_file_path(item: Item) -> str:
    """GetConvertFilePath"""
    return call("vyr_name_get_convert_file_path", TEXT, (Record(Item), item))


def get_replace_file_path(item: Item) -> str:
    """GetReplaceFilePath"""
    return call("vyr_name_get_replace_file_path", TEXT, (Record(Item), item))


def get_extension_file_path(item: Item) -> str:
    """GetExtensionFilePath"""
    return call("vyr_name_get_extension_file_path", TEXT, (Record(Item), item))


def get_resolve_conflict_file_path(path: str, item: ConflictItem) -> str:
    """GetResolveConflictFilePath"""
    return call("vyr_name_get_resolve_conflict_file_path", TEXT, (TEXT, path), (Record(ConflictItem), item))


def get_rename_to_sample_formated(format: str) -> str:
    """GetRenameToSampleFormated"""
    return call("vyr_name_get_rename_to_sample_formated", TEXT, (TEXT, format))


def get_date_time_format(path: str, format: str, target: int) -> str:
    """GetDateTimeFormat"""
    return call("vyr_name_get_date_time_format", TEXT, (TEXT, path), (TEXT, format), (INT, target))


def get_folder_format(format: str) -> str:
    """GetFolderFormat"""
    return call("vyr_name_get_folder_format", TEXT, (TEXT, format))


def get_exif_format(path: str, format: str) -> str:
    """GetExifFormat"""
    return call("vyr_name_get_exif_format", TEXT, (TEXT, path), (TEXT, format))


def copy_folder(source: str, destination: str, records: Optional[ListType[RenameItem]]) -> int:
    """CopyFolder"""
    return call("vyr_name_copy_folder", INT, (TEXT, source), (TEXT, destination), (Collected(Record(RenameItem)), records))


def move_folder(source: str, destination: str, records: Optional[ListType[RenameItem]]) -> int:
    """MoveFolder"""
    return call("vyr_name_move_folder", INT, (TEXT, source), (TEXT, destination), (Collected(Record(RenameItem)), records))
