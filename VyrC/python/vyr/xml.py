r"""The operations of XmlNodes (VyrC/XmlNodes.h); written by VyrC/generate from VyrC/interface.txt.

Reads the documents that MSXMLFuncs loads. On Windows these are the system's own objects, which a host may also use
by their interfaces; on Linux they are the library's. Each document and element that an operation gives is one
reference, which the host must release.
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


def get_root(document: Optional[Object]) -> Optional[Object]:
    r"""GetRoot

    The root element of a document; null for null and for another kind of object.
    """
    return call("vyr_xml_get_root", OBJECT, (OBJECT, document))


def get_text(element: Optional[Object]) -> str:
    r"""GetText

    The text below an element; empty for null and for another kind of object.
    """
    return call("vyr_xml_get_text", TEXT, (OBJECT, element))


def get_attribute(element: Optional[Object], name: str) -> str:
    r"""GetAttribute

    The attribute `name` of an element; empty where there is none.
    """
    return call("vyr_xml_get_attribute", TEXT, (OBJECT, element), (TEXT, name))


def count_elements(element: Optional[Object], name: str) -> int:
    r"""CountElements

    The number of elements with that name, at any depth below `element`; "*" is every name.
    """
    return call("vyr_xml_count_elements", INT, (OBJECT, element), (TEXT, name))


def get_element(element: Optional[Object], name: str, index: int) -> Optional[Object]:
    r"""GetElement

    The element at `index`, from 0 in document order, of those that CountElements counts; null when there is none.
    """
    return call("vyr_xml_get_element", OBJECT, (OBJECT, element), (TEXT, name), (INT, index))


def release(object: Optional[Object]) -> None:
    r"""Release

    Gives a reference back. Null is accepted.
    """
    return call("vyr_xml_release", NOTHING, (OBJECT, object))
