"""The operations of MSHTMLImgFuncs, which VyrLibraryFuncs/html/MSHTMLImgFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def set_resize_img_style(document: int, client: Tuple[int, int, int, int]) -> None:
    """SetResizeImgStyle"""
    return call("vyr_mshtml_img_set_resize_img_style", NOTHING, (HANDLE, document), (RECT, client))
