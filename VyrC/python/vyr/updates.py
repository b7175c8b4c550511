r"""The operations of UpdatesFuncs (VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Update information and the schedule of update checks.

The information is kept for the life of the process, without a lock: for the host's interface thread. Two
private-profile files (VyrPlatform::PrivateProfile) have a section "Updates": the one that the host ships in the
program's local data (PathUtils::GetLocalDataUpdatesFilePath, keys "Url" and "AgreeIgnoreServer"), and the user's
own (PathUtils::GetUpdatesFilePath, key "CheckedDate").
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
    """UpdatesFuncs::UPDATEITEM"""
    category: int = 0
    description: str = ""


Item.c_name = "vyr_updates_item"
Item.c_kinds = {"category": INT, "description": TEXT}


def initialize_updates_information() -> None:
    r"""InitializeUpdatesInformation

    Empties the type, the product name, the version, the edition, both addresses and the list. The platform's bits
    and the checked date are kept.
    """
    return call("vyr_updates_initialize_updates_information", NOTHING)


def set_type(type: str) -> None:
    r"""SetType

    The settings from the update document, as texts, each with its setter.
    """
    return call("vyr_updates_set_type", NOTHING, (TEXT, type))


def get_type() -> str:
    r"""GetType
    """
    return call("vyr_updates_get_type", TEXT)


def set_product_name(product_name: str) -> None:
    r"""SetProductName
    """
    return call("vyr_updates_set_product_name", NOTHING, (TEXT, product_name))


def get_product_name() -> str:
    r"""GetProductName
    """
    return call("vyr_updates_get_product_name", TEXT)


def set_version(version: str) -> None:
    r"""SetVersion
    """
    return call("vyr_updates_set_version", NOTHING, (TEXT, version))


def get_version() -> str:
    r"""GetVersion
    """
    return call("vyr_updates_get_version", TEXT)


def set_edition(edition: str) -> None:
    r"""SetEdition
    """
    return call("vyr_updates_set_edition", NOTHING, (TEXT, edition))


def get_edition() -> str:
    r"""GetEdition
    """
    return call("vyr_updates_get_edition", TEXT)


def set_platform_bit(platform_bit: str) -> None:
    r"""SetPlatformBit
    """
    return call("vyr_updates_set_platform_bit", NOTHING, (TEXT, platform_bit))


def get_platform_bit() -> str:
    r"""GetPlatformBit
    """
    return call("vyr_updates_get_platform_bit", TEXT)


def set_details_url(details_url: str) -> None:
    r"""SetDetailsURL
    """
    return call("vyr_updates_set_details_url", NOTHING, (TEXT, details_url))


def get_details_url() -> str:
    r"""GetDetailsURL
    """
    return call("vyr_updates_get_details_url", TEXT)


def set_download_url(download_url: str) -> None:
    r"""SetDownloadURL
    """
    return call("vyr_updates_set_download_url", NOTHING, (TEXT, download_url))


def get_download_url() -> str:
    r"""GetDownloadURL
    """
    return call("vyr_updates_get_download_url", TEXT)


def set_update_items_list(items: Sequence[Item]) -> None:
    r"""SetUpdateItemsList
    """
    return call("vyr_updates_set_update_items_list", NOTHING, (List(Record(Item)), items))


def get_update_items_list() -> ListType[Item]:
    r"""GetUpdateItemsList
    """
    return call("vyr_updates_get_update_items_list", List(Record(Item)))


def set_checked_date(checked_date: str) -> None:
    r"""SetCheckedDate

    The date of the last check, in the form of DateTimeUtils::GetCurrentDateTime; empty when it is unknown.
    """
    return call("vyr_updates_set_checked_date", NOTHING, (TEXT, checked_date))


def get_checked_date() -> str:
    r"""GetCheckedDate
    """
    return call("vyr_updates_get_checked_date", TEXT)


def check_for_updates(version: str) -> int:
    r"""CheckForUpdates

    Whether `version` is newer than the running program (VersionUtils).
    version: major.minor.revision.build; the numbers are compared in this order.
    Returns: 1 when it is newer; 0 when it is not, and when it has not exactly four parts.
    """
    return call("vyr_updates_check_for_updates", INT, (TEXT, version))


def get_check_for_updates_url() -> str:
    r"""GetCheckForUpdatesUrl

    The address of the update information in the local-data updates file, truncated to 259 code units; empty when
    there is none.
    """
    return call("vyr_updates_get_check_for_updates_url", TEXT)


def get_agree_ignore_server() -> int:
    r"""GetAgreeIgnoreServer

    The number "AgreeIgnoreServer" in the local-data updates file; 0 when there is none.
    """
    return call("vyr_updates_get_agree_ignore_server", INT)


def get_updates_information(path: str) -> int:
    r"""GetUpdatesInformation

    Reads an update document into the settings, after InitializeUpdatesInformation:

        <updates>
          <update type="release" name="Product" version="1.2.3.4" edition="Standard" platformbit="64"
                  detailsURL="https://example.org/details" downloadURL="https://example.org/download">
            <moreinfo>
              <item><category>1</category><description>A line to show</description></item>
            </moreinfo>
          </update>
        </updates>

    Names match with their case, at any depth, without a prefix; the root may have any name. Of several `update`
    elements the first one gives the attributes and the last one the items. A missing attribute keeps its setting,
    an empty one empties it. An item without a category has that of the item before it, the first one 0. A stop ends
    only the list of elements that is being read: after one among the items of a `moreinfo`, the next `moreinfo` is
    read, and then the attributes.
    path: a path, or an address that the parser can load from.
    Returns: 1 when an `update` element was read; 0 when there is none, when a stop comes before the first, and when
    the document does not load.
    Raises Error: _com_error  as MSXMLFuncs::LoadXmlFile does.
    """
    return call("vyr_updates_get_updates_information", INT, (TEXT, path))


def load_check_for_updates_date() -> None:
    r"""LoadCheckForUpdatesDate

    Reads the checked date from the user's updates file: empty when that has none, unchanged when there is no file.
    """
    return call("vyr_updates_load_check_for_updates_date", NOTHING)


def save_check_for_updates_date() -> None:
    r"""SaveCheckForUpdatesDate

    Sets the checked date to the current date-time, and writes the user's updates file anew, with its folder if
    necessary. The file is UTF-16 with a byte order mark:

        ; Updates.ini
        [Updates]
        CheckedDate=2024/01/05 10:30:00

    Where the file cannot be written, the date is set all the same.
    """
    return call("vyr_updates_save_check_for_updates_date", NOTHING)


def is_date_interval_check_for_updates(days: int) -> int:
    r"""IsDateIntervalCheckForUpdates

    Whether at least `days` days have passed since the checked date, counted from date to date: a check on the same
    day is 0 days ago.
    Returns: 1 or 0; 0 when the checked date is not a date-time.
    Raises Error: boost::gregorian::bad_year  (a std::out_of_range) a checked date before 1400.
    """
    return call("vyr_updates_is_date_interval_check_for_updates", INT, (INT, days))
