"""Bulk renaming of files and editing of their metadata: VyrLibrary's operations for Python 3.9 and later.

There is a module for each class, with its operations and records by their names in small letters:

>>> from vyr import name
>>> item = name.Item(dir_path="/photos/", number_text1="trip-", digits=3, start_number=1, step=1, extension=".jpg")
>>> name.get_rename_file_path(item)
'/photos/trip-001.jpg'

What most programs begin with stands here, too:

>>> rename_path(item)
'/photos/trip-001.jpg'
>>> [rename_path(item, index) for index in range(2)]
['/photos/trip-001.jpg', '/photos/trip-002.jpg']

Texts are str, date-times datetime, or None where they are not valid. A wrong argument is a ValueError, any other failure
that a result cannot tell an Error. The library is looked for beside this package, where VYR_LIBRARY names it, and where
the system keeps libraries. It serves one thread.
"""
import dataclasses
from typing import Optional

from . import name
from ._library import Error, version

__all__ = ["Error", "name", "rename_path", "version"]


def rename_path(item: name.Item, index: Optional[int] = None) -> str:
    """The new path of an entry by the rule of `item`; `index`, if given, is its index in the list."""
    return name.get_rename_file_path(item if index is None else dataclasses.replace(item, index=index))
