r"""The operations of OfficePropertyFuncs (VyrLibraryFuncs/metadata/OfficePropertyFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Writes a property of a document's summary information (title, subject, author and the like), and finds the handlers
that write properties of documents other than compound documents.

On Windows the calling thread must have COM initialised. VyrPlatform/documents/PropertyStorage.h describes how each
system writes a document. The two diagnostics below are written to the debugger output.
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


@dataclasses.dataclass
class Handler:
    """OfficePropertyFuncs::CLSID_ITEM"""
    extension: str = ""
    clsid: uuid.UUID = NO_ID
    flag: int = 0


Handler.c_name = "vyr_office_property_handler"
Handler.c_kinds = {"extension": TEXT, "clsid": GUID, "flag": INT}


def get_class_id_item_list(extensions: Sequence[Tuple[str, int]]) -> ListType[Handler]:
    r"""GetClassIdItemList

    The handlers for extensions, in their order, from the registry. Handles one pending event of the calling thread
    for each extension.
    extensions: each with its dot, and a number: 0 makes an entry without a handler; with any other number the
    handler is searched for, and without one (or where its value is not a class id) there is no entry.
    """
    return call("vyr_office_property_get_class_id_item_list", List(Record(Handler)), (List(TEXT_AND_INT), extensions))


def get_class_id(extension: str, items: Sequence[Handler]) -> uuid.UUID:
    r"""GetClassId

    The class id of the first entry of `items` with this extension, ignoring case; all zero when there is none.
    Handles one pending event of the calling thread for each entry.
    """
    return call("vyr_office_property_get_class_id", GUID, (TEXT, extension), (List(Record(Handler)), items))


def get_property_handler_reg_key(extension: str) -> str:
    r"""GetPropertyHandlerRegKey

    The path below HKEY_CLASSES_ROOT of the key whose default value is the class id of an extension's handler:
    ".docx" gives `.docx\ShellEx\PropertyHandler`.

    >>> get_property_handler_reg_key(".docx")
    '.docx\\ShellEx\\PropertyHandler'
    """
    return call("vyr_office_property_get_property_handler_reg_key", TEXT, (TEXT, extension))


def set_dump_props(path: str, property_id: int, value: Value, clsid: uuid.UUID) -> int:
    r"""SetDumpProps

    Writes a property of the document at `path`: of a compound document directly, of other documents by their
    handler.
    property_id: the id in the summary-information set: 2 is the title, 3 the subject, 4 the author, 5 the
        keywords, 6 the comments.
    value: the value with its type; VT_EMPTY removes the property. A null pointer is refused.
    clsid: the handler's class id, not needed for a compound document; all zero for none.
    Returns: 1 when it was written. 0 when the document could not be opened, has no handler, has no summary
    information (diagnostic: "No Summary-Information.") or could not be written (diagnostic:
    "IPropertyStg::WriteMultiple() failed w/error" and the result code in hexadecimal digits). Both end with a line
    end.
    """
    return call("vyr_office_property_set_dump_props", INT, (TEXT, path), (UINT32, property_id), (VALUE, value), (GUID, clsid))
