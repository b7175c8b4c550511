"""The operations of ProgramsFeaturesFuncs, which VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
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
    """GetProgramsFeaturesItemsList"""
    return call("vyr_programs_get_programs_features_items_list", List(Record(Item)), (INT, scope), (INT, include_wow6432_node))


def get_programs_features_windows_installer_items_list(scope: int) -> ListType[Item]:
    """GetProgramsFeaturesWindowsInstallerItemsList"""
    return call("vyr_programs_get_programs_features_windows_installer_items_list", List(Record(Item)), (INT, scope))


def get_list_view_item_text(column: int, item: Item) -> str:
    """GetListViewItemText"""
    return call("vyr_programs_get_list_view_item_text", TEXT, (INT, column), (Record(Item), item))


def get_programs_features_installer_products_items_list() -> ListType[Product]:
    """GetProgramsFeaturesInstallerProductsItemsList"""
    return call("vyr_programs_get_programs_features_installer_products_items_list", List(Record(Product)))


def get_product_icon(icon_filter: str, product_name: str, products: Sequence[Product]) -> str:
    """GetProductIcon"""
    return call("vyr_programs_get_product_icon", TEXT, (TEXT, icon_filter), (TEXT, product_name), (List(Record(Product)), products))


def get_application_icon(icon_text: str) -> Tuple[str, int]:
    """GetApplicationIcon"""
    return call("vyr_programs_get_application_icon", TEXT_AND_INT, (TEXT, icon_text))


def get_install_date(install_date: str, fallback_date: str) -> str:
    """GetInstallDate"""
    return call("vyr_programs_get_install_date", TEXT, (TEXT, install_date), (TEXT, fallback_date))


def get_formated_size(text: str, size: int, format: int) -> str:
    """GetFormatedSize"""
    return call("vyr_programs_get_formated_size", TEXT, (TEXT, text), (UINT64, size), (INT, format))


def compare_reg_key(key1: str, key2: str, flag1: int, flag2: int, descending: int) -> int:
    """CompareRegKey"""
    return call("vyr_programs_compare_reg_key", INT, (TEXT, key1), (TEXT, key2), (INT, flag1), (INT, flag2), (INT, descending))


def get_key_parent_name(root: int) -> str:
    """GetKeyParentName"""
    return call("vyr_programs_get_key_parent_name", TEXT, (HANDLE, root))


def is_wow6432_node(key_path: str) -> int:
    """IsWow6432Node"""
    return call("vyr_programs_is_wow6432_node", INT, (TEXT, key_path))


def get_icon_folder_name() -> str:
    """GetIconFolderName"""
    return call("vyr_programs_get_icon_folder_name", TEXT)


def set_output_file_path(path: str) -> None:
    """SetOutputFilePath"""
    return call("vyr_programs_set_output_file_path", NOTHING, (TEXT, path))


def get_output_file_path() -> str:
    """GetOutputFilePath"""
    return call("vyr_programs_get_output_file_path", TEXT)


def set_open_output_file(is_opened: int) -> None:
    """SetOpenOutputFile"""
    return call("vyr_programs_set_open_output_file", NOTHING, (INT, is_opened))


def get_open_output_file() -> int:
    """GetOpenOutputFile"""
    return call("vyr_programs_get_open_output_file", INT)
