"""The operations of RegistryFuncs, which VyrLibraryFuncs/programs/RegistryFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def get_product_reg_key(vendor_name: str, product_name: str, version: int) -> str:
    """GetProductRegKey"""
    return call("vyr_registry_get_product_reg_key", TEXT, (TEXT, vendor_name), (TEXT, product_name), (INT, version))


def get_uninstall_product_reg_key(uninstall_key_name: str) -> str:
    """GetUninstallProductRegKey"""
    return call("vyr_registry_get_uninstall_product_reg_key", TEXT, (TEXT, uninstall_key_name))


def get_product_install_date(uninstall_key_name: str) -> str:
    """GetProductInstallDate"""
    return call("vyr_registry_get_product_install_date", TEXT, (TEXT, uninstall_key_name))
