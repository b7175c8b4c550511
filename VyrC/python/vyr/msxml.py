r"""The operations of MSXMLFuncs (VyrLibraryFuncs/xmlinfo/MSXMLFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Loads XML documents, for the whole library.

The parser is the system's (VyrPlatform/documents/XmlTypes.h), with its defaults. On Windows COM must be initialised
on the calling thread, and there is no time limit for a server that never answers or redirects in a cycle; on Linux
there is.
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


def load_xml_file(path: str) -> Optional[Object]:
    r"""LoadXmlFile

    The document in a file.
    path: a path, or an address that the parser can load from.
    Returns: null when it cannot be read or is not well-formed.
    Raises Error: _com_error  COM is not initialised, or the system has no such parser.
    """
    return call("vyr_msxml_load_xml_file", OBJECT, (TEXT, path))


def load_xslt_file(path: str) -> Optional[Object]:
    r"""LoadXsltFile

    The same, as a document that several threads may use: XSLT processors need it for a style sheet.
    """
    return call("vyr_msxml_load_xslt_file", OBJECT, (TEXT, path))
