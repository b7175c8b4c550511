"""The operations of UpdatesFuncs, which VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
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
    """UpdatesFuncs::UPDATEITEM"""
    category: int = 0
    description: str = ""


Item.c_name = "vyr_updates_item"
Item.c_kinds = {"category": INT, "description": TEXT}


def initialize_updates_information() -> None:
    """InitializeUpdatesInformation"""
    return call("vyr_updates_initialize_updates_information", NOTHING)


def set_type(type: str) -> None:
    """SetType"""
    return call("vyr_updates_set_type", NOTHING, (TEXT, type))


def get_type() -> str:
    """GetType"""
    return call("vyr_updates_get_type", TEXT)


def set_product_name(product_name: str) -> None:
    """SetProductName"""
    return call("vyr_updates_set_product_name", NOTHING, (TEXT, product_name))


def get_product_name() -> str:
    """GetProductName"""
    return call("vyr_updates_get_product_name", TEXT)


def set_version(version: str) -> None:
    """SetVersion"""
    return call("vyr_updates_set_version", NOTHING, (TEXT, version))


def get_version() -> str:
    """GetVersion"""
    return call("vyr_updates_get_version", TEXT)


def set_edition(edition: str) -> None:
    """SetEdition"""
    return call("vyr_updates_set_edition", NOTHING, (TEXT, edition))


def get_edition() -> str:
    """GetEdition"""
    return call("vyr_updates_get_edition", TEXT)


def set_platform_bit(platform_bit: str) -> None:
    """SetPlatformBit"""
    return call("vyr_updates_set_platform_bit", NOTHING, (TEXT, platform_bit))


def get_platform_bit() -> str:
    """GetPlatformBit"""
    return call("vyr_updates_get_platform_bit", TEXT)


def set_details_url(details_url: str) -> None:
    """SetDetailsURL"""
    return call("vyr_updates_set_details_url", NOTHING, (TEXT, details_url))


def get_details_url() -> str:
    """GetDetailsURL"""
    return call("vyr_updates_get_details_url", TEXT)


def set_download_url(download_url: str) -> None:
    """SetDownloadURL"""
    return call("vyr_updates_set_download_url", NOTHING, (TEXT, download_url))


def get_download_url() -> str:
    """GetDownloadURL"""
    return call("vyr_updates_get_download_url", TEXT)


def set_update_items_list(items: Sequence[Item]) -> None:
    """SetUpdateItemsList"""
    return call("vyr_updates_set_update_items_list", NOTHING, (List(Record(Item)), items))


def get_update_items_list() -> ListType[Item]:
    """GetUpdateItemsList"""
    return call("vyr_updates_get_update_items_list", List(Record(Item)))


def set_checked_date(checked_date: str) -> None:
    """SetCheckedDate"""
    return call("vyr_updates_set_checked_date", NOTHING, (TEXT, checked_date))


def get_checked_date() -> str:
    """GetCheckedDate"""
    return call("vyr_updates_get_checked_date", TEXT)


def check_for_updates(version: str) -> int:
    """CheckForUpdates"""
    return call("vyr_updates_check_for_updates", INT, (TEXT, version))


def get_check_for_updates_url() -> str:
    """GetCheckForUpdatesUrl"""
    return call("vyr_updates_get_check_for_updates_url", TEXT)


def get_agree_ignore_server() -> int:
    """GetAgreeIgnoreServer"""
    return call("vyr_updates_get_agree_ignore_server", INT)


def get_updates_information(path: str) -> int:
    """GetUpdatesInformation"""
    return call("vyr_updates_get_updates_information", INT, (TEXT, path))


def load_check_for_updates_date() -> None:
    """LoadCheckForUpdatesDate"""
    return call("vyr_updates_load_check_for_updates_date", NOTHING)


def save_check_for_updates_date() -> None:
    """SaveCheckForUpdatesDate"""
    return call("vyr_updates_save_check_for_updates_date", NOTHING)


def is_date_interval_check_for_updates(days: int) -> int:
    """IsDateIntervalCheckForUpdates"""
    return call("vyr_updates_is_date_interval_check_for_updates", INT, (INT, days))
