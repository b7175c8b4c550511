r"""The operations of ProgramsFeaturesFuncs (VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Lists installed programs and installer products from the registry, and helps to show and sort them.

The lists only read; they do not sort, merge or filter. A key that cannot be opened gives no record. A value that is
missing, of another type, not terminated or longer than 259 code units leaves its field empty or 0. Before each
value one pending event of the calling thread is handled (VyrPlatform::MessageQueue), so that a host's window stays
responsive; a stop ends the reading of the current key's values, and the list continues. Progress is written to the
debugger output.
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
    """ProgramsFeaturesFuncs::ITEM"""
    key_name: str = ""
    sub_key_name: str = ""
    display_icon: str = ""
    display_name: str = ""
    display_name_localized: str = ""
    display_version: str = ""
    install_location: str = ""
    publisher: str = ""
    url_info_about: str = ""
    url_update_info: str = ""
    comments: str = ""
    contact: str = ""
    help_link: str = ""
    help_telephone: str = ""
    install_date: str = ""
    install_source: str = ""
    readme: str = ""
    unused18: str = ""
    unused19: str = ""
    reg_company: str = ""
    reg_owner: str = ""
    unused22: str = ""
    last_write_time: str = ""
    parent_display_name: str = ""
    parent_key_name: str = ""
    uninstall_string: str = ""
    unused27: str = ""
    estimated_size_bytes: int = 0
    estimated_size: int = 0
    system_component: int = 0
    windows_installer: int = 0
    version_major: int = 0
    version_minor: int = 0
    unused34: int = 0
    language: int = 0
    no_modify: int = 0
    no_repair: int = 0
    no_remove: int = 0
    no_elevate_on_modify: int = 0
    full_key_name: str = ""
    formatted_size: str = ""
    unused42: str = ""
    is_wow6432_node: int = 0


Item.c_name = "vyr_programs_item"
Item.c_kinds = {"key_name": TEXT, "sub_key_name": TEXT, "display_icon": TEXT, "display_name": TEXT, "display_name_localized": TEXT, "display_version": TEXT, "install_location": TEXT, "publisher": TEXT, "url_info_about": TEXT, "url_update_info": TEXT, "comments": TEXT, "contact": TEXT, "help_link": TEXT, "help_telephone": TEXT, "install_date": TEXT, "install_source": TEXT, "readme": TEXT, "unused18": TEXT, "unused19": TEXT, "reg_company": TEXT, "reg_owner": TEXT, "unused22": TEXT, "last_write_time": TEXT, "parent_display_name": TEXT, "parent_key_name": TEXT, "uninstall_string": TEXT, "unused27": TEXT, "estimated_size_bytes": UINT64, "estimated_size": UINT32, "system_component": UINT32, "windows_installer": UINT32, "version_major": UINT32, "version_minor": UINT32, "unused34": UINT32, "language": UINT32, "no_modify": UINT32, "no_repair": UINT32, "no_remove": UINT32, "no_elevate_on_modify": UINT32, "full_key_name": TEXT, "formatted_size": TEXT, "unused42": TEXT, "is_wow6432_node": INT}


@dataclasses.dataclass
class Product:
    """ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM"""
    product_key: str = ""
    package_code: str = ""
    product_name: str = ""
    product_icon: str = ""
    deployment_flags: int = 0
    language: int = 0
    version: int = 0


Product.c_name = "vyr_programs_product"
Product.c_kinds = {"product_key": TEXT, "package_code": TEXT, "product_name": TEXT, "product_icon": TEXT, "deployment_flags": UINT32, "language": UINT32, "version": UINT32}


def get_programs_features_items_list(scope: int, include_wow6432_node: int) -> ListType[Item]:
    r"""GetProgramsFeaturesItemsList

    The entries of the uninstall keys: first those of this machine, then those of the user; each key in its own
    order.
    scope: 0: both. 1: only the user's. 2: only this machine's. Any other value gives an empty list.
    include_wow6432_node: non-zero: each key is followed by that of 32-bit programs.
    """
    return call("vyr_programs_get_programs_features_items_list", List(Record(Item)), (INT, scope), (INT, include_wow6432_node))


def get_programs_features_windows_installer_items_list(scope: int) -> ListType[Item]:
    r"""GetProgramsFeaturesWindowsInstallerItemsList

    The machine-wide products of Windows Installer, as the same records. Their values are read from the products'
    own keys, where installers store little.
    scope: 0 or 2; any other value gives an empty list.
    """
    return call("vyr_programs_get_programs_features_windows_installer_items_list", List(Record(Item)), (INT, scope))


def get_list_view_item_text(column: int, item: Item) -> str:
    r"""GetListViewItemText

    The text of a column of a list view: 0 name, 1 publisher,
    2 install date, 3 size, 4 version, 5 source, 6 about, 7 telephone, 8 empty, 9 help, 10 comments, 11 updates,
    12 empty, 13 location, 14 readme, 15 company, 16 owner, 17 contact.
    Returns: empty for any other column.
    """
    return call("vyr_programs_get_list_view_item_text", TEXT, (INT, column), (Record(Item), item))


def get_programs_features_installer_products_items_list() -> ListType[Product]:
    r"""GetProgramsFeaturesInstallerProductsItemsList

    The products of Windows Installer: first those of the machine, then those of the user.
    """
    return call("vyr_programs_get_programs_features_installer_products_items_list", List(Record(Product)))


def get_product_icon(icon_filter: str, product_name: str, products: Sequence[Product]) -> str:
    r"""GetProductIcon

    The icon of the first product whose name is exactly `productName` and whose icon contains `iconFilter` (an empty
    one is in every icon).
    Returns: empty when there is none, for an empty `productName`, and after a stop.
    """
    return call("vyr_programs_get_product_icon", TEXT, (TEXT, icon_filter), (TEXT, product_name), (List(Record(Product)), products))


def get_application_icon(icon_text: str) -> Tuple[str, int]:
    r"""GetApplicationIcon

    Splits an icon reference: a path, optionally in double quotes, optionally followed by a comma and an index.
    `"C:\a b.exe",-101` gives `C:\a b.exe` and -101. A path ends at its first comma.
    Returns: the path without double quotes, and the index, 0 where there is none; an empty path and 0 for a text of
    nothing but commas.

    >>> get_application_icon('"C:\\\\a b.exe",-101')
    ('C:\\\\a b.exe', -101)
    """
    return call("vyr_programs_get_application_icon", TEXT_AND_INT, (TEXT, icon_text))


def get_install_date(install_date: str, fallback_date: str) -> str:
    r"""GetInstallDate

    `installDate` where it is not empty, else the date of `fallbackDate` (a text for
    DateTimeUtils::GetParseDateTime) in the form of DateTimeUtils::GetFormatedDate.
    """
    return call("vyr_programs_get_install_date", TEXT, (TEXT, install_date), (TEXT, fallback_date))


def get_formated_size(text: str, size: int, format: int) -> str:
    r"""GetFormatedSize

    `size` in the form of FileUtils::GetFileSize; empty where `text` is empty. `text` is not used otherwise.
    size: in bytes.
    format: as of FileUtils::GetFileSize.
    """
    return call("vyr_programs_get_formated_size", TEXT, (TEXT, text), (UINT64, size), (INT, format))


def compare_reg_key(key1: str, key2: str, flag1: int, flag2: int, descending: int) -> int:
    r"""CompareRegKey

    Compares two registry keys for sorting.

    Keys with a flag come after those without. Then the last parts of the paths are compared: first those that begin
    with an ASCII letter, digit or sign, then product codes in braces, then all others. Product codes compare as
    texts of the user's locale. Other names compare by their numbers: a name of hexadecimal digits is read as a
    decimal number up to its first letter (`1F` is 1), and any other name is 0; equal ones compare as texts.

    This is not a consistent order of all keys: in most locales `z`, `{1}` and `é` form a cycle. Use a sort that
    tolerates this.
    flag1, flag2: only whether each is 0 matters.
    descending: non-zero reverses every result.
    Returns: -1, 0 or 1; 0 when the flags are equal and a key is empty or consists of backslashes.
    """
    return call("vyr_programs_compare_reg_key", INT, (TEXT, key1), (TEXT, key2), (INT, flag1), (INT, flag2), (INT, descending))


def get_key_parent_name(root: int) -> str:
    r"""GetKeyParentName

    The name of a root key, such as "HKEY_LOCAL_MACHINE"; empty for HKEY_PERFORMANCE_DATA and any other key.
    """
    return call("vyr_programs_get_key_parent_name", TEXT, (HANDLE, root))


def is_wow6432_node(key_path: str) -> int:
    r"""IsWow6432Node

    1 when `keyPath` contains "Wow6432Node" in exactly this case.
    """
    return call("vyr_programs_is_wow6432_node", INT, (TEXT, key_path))


def get_icon_folder_name() -> str:
    r"""GetIconFolderName

    "icons".
    """
    return call("vyr_programs_get_icon_folder_name", TEXT)


def set_output_file_path(path: str) -> None:
    r"""SetOutputFilePath
    """
    return call("vyr_programs_set_output_file_path", NOTHING, (TEXT, path))


def get_output_file_path() -> str:
    r"""GetOutputFilePath

    Empty at first.
    """
    return call("vyr_programs_get_output_file_path", TEXT)


def set_open_output_file(is_opened: int) -> None:
    r"""SetOpenOutputFile
    """
    return call("vyr_programs_set_open_output_file", NOTHING, (INT, is_opened))


def get_open_output_file() -> int:
    r"""GetOpenOutputFile

    Whether the output file is to be opened; 1 at first.
    """
    return call("vyr_programs_get_open_output_file", INT)
