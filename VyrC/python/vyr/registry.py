r"""The operations of RegistryFuncs (VyrLibraryFuncs/programs/RegistryFuncs.h); written by VyrC/generate from VyrC/interface.txt.

The registry paths of a product's settings and of its uninstall entry, and the date of its installation.
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


def get_product_reg_key(vendor_name: str, product_name: str, version: int) -> str:
    r"""GetProductRegKey

    The path of a product's settings below a root key that the caller chooses: "Maker", "Tool" and 3 give
    `SOFTWARE\Maker\Tool\3.0`.
    version: the major version; a negative one is written with its sign.
    """
    return call("vyr_registry_get_product_reg_key", TEXT, (TEXT, vendor_name), (TEXT, product_name), (INT, version))


def get_uninstall_product_reg_key(uninstall_key_name: str) -> str:
    r"""GetUninstallProductRegKey

    The path of a product's uninstall entry, below the key of this machine or of the user.
    uninstall_key_name: the entry's own name; an empty one gives the path of all entries and a backslash.
    """
    return call("vyr_registry_get_uninstall_product_reg_key", TEXT, (TEXT, uninstall_key_name))


def get_product_install_date(uninstall_key_name: str) -> str:
    r"""GetProductInstallDate

    The last write of the product's uninstall entry, which is the time of its installation: local time, in the form
    of DateTimeUtils::GetFormatedDateTime. The text is also written to the debugger output.
    Returns: empty when this machine has no such entry. The entries of 32-bit programs and of the user are not read.
    """
    return call("vyr_registry_get_product_install_date", TEXT, (TEXT, uninstall_key_name))
