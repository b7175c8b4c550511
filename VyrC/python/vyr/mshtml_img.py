r"""The operations of MSHTMLImgFuncs (VyrLibraryFuncs/html/MSHTMLImgFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Fits the pictures of a page into the window that shows it, through the page's document object
(VyrPlatform/documents/HtmlTypes.h).
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


def set_resize_img_style(document: int, client: Tuple[int, int, int, int]) -> None:
    r"""SetResizeImgStyle

    Gives each picture that is shown larger than `client` a style that makes it fit. One that is wider in proportion
    than `client` gets the width "100%" and the height "auto", any other the width "auto" and the height "100%".

    Pictures that fit, that have no address, or that the page gives no data about, are not changed, nor is a
    document that is not a page. The attributes of a picture are never changed. Call it when the page has been
    loaded, and again when the size of its window has changed.

    Example: in a window of 800 x 600, a picture of 2000 x 100 gets the width "100%", and one of 100 x 2000 the
    height "100%".
    document: the page, or a null pointer. COM must be initialised on this thread.
    client: the part of the window that shows the page. With an empty one every picture with an
    area gets the width "100%".
    Raises Error: _com_error with E_OUTOFMEMORY when there is no memory for the text of a style.
    """
    return call("vyr_mshtml_img_set_resize_img_style", NOTHING, (HANDLE, document), (RECT, client))
