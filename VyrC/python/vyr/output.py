"""The operations of OutputFuncs, which VyrLibraryFuncs/html/OutputFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def get_output_file_path() -> str:
    """GetOutputFilePath"""
    return call("vyr_output_get_output_file_path", TEXT)


def set_output_file_path(path: str) -> None:
    """SetOutputFilePath"""
    return call("vyr_output_set_output_file_path", NOTHING, (TEXT, path))


def get_output_filter_index() -> int:
    """GetOutputFilterIndex"""
    return call("vyr_output_get_output_filter_index", INT)


def set_output_filter_index(index: int) -> None:
    """SetOutputFilterIndex"""
    return call("vyr_output_set_output_filter_index", NOTHING, (INT, index))


def get_generator_output_string() -> str:
    """GetGeneratorOutputString"""
    return call("vyr_output_get_generator_output_string", TEXT)


def get_generator_output_string_with_name(name: str) -> str:
    """GetGeneratorOutputString"""
    return call("vyr_output_get_generator_output_string_with_name", TEXT, (TEXT, name))


def get_property_size(choice: int, custom: int) -> int:
    """GetPropertySize"""
    return call("vyr_output_get_property_size", INT, (INT, choice), (INT, custom))


def get_dialog_property_width(width: int) -> str:
    """GetDialogPropertyWidth"""
    return call("vyr_output_get_dialog_property_width", TEXT, (INT, width))
