r"""The operations of OutputFuncs (VyrLibraryFuncs/html/OutputFuncs.h); written by VyrC/generate from VyrC/interface.txt.

The generator text of a report, its picture sizes, and the last chosen output file.

The two settings live as long as the process; the library only stores them. Use them on one thread.
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


def get_output_file_path() -> str:
    r"""GetOutputFilePath

    The last chosen output file; empty at first.
    """
    return call("vyr_output_get_output_file_path", TEXT)


def set_output_file_path(path: str) -> None:
    r"""SetOutputFilePath
    """
    return call("vyr_output_set_output_file_path", NOTHING, (TEXT, path))


def get_output_filter_index() -> int:
    r"""GetOutputFilterIndex

    The file-type filter chosen with it; 0 at first.
    """
    return call("vyr_output_get_output_filter_index", INT)


def set_output_filter_index(index: int) -> None:
    r"""SetOutputFilterIndex
    """
    return call("vyr_output_set_output_filter_index", NOTHING, (INT, index))


def get_generator_output_string() -> str:
    r"""GetGeneratorOutputString

    Product name, a blank and product version of the running program, such as "Trip Reports 2.1" (VersionUtils).
    """
    return call("vyr_output_get_generator_output_string", TEXT)


def get_generator_output_string_with_name(name: str) -> str:
    r"""GetGeneratorOutputString

    `name`, a blank and the product version of the running program.
    """
    return call("vyr_output_get_generator_output_string_with_name", TEXT, (TEXT, name))


def get_property_size(choice: int, custom: int) -> int:
    r"""GetPropertySize

    The picture size for a choice.
    choice: 0 to 4; every other value counts as 1.
    custom: the size for the choice 4, in pixels.
    Returns: in pixels: 0, 1024, 800, 640 or `custom` for the choices 0 to 4.
    """
    return call("vyr_output_get_property_size", INT, (INT, choice), (INT, custom))


def get_dialog_property_width(width: int) -> str:
    r"""GetDialogPropertyWidth

    The width of a dialog as a CSS value.
    width: in pixels.
    Returns: `width` in decimal; "auto" where it is 0 or negative.
    """
    return call("vyr_output_get_dialog_property_width", TEXT, (INT, width))
