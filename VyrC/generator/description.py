"""The description of the interface, interface.txt, and what the public headers say of the same operations."""
import pathlib
import re
import sys
from typing import NamedTuple

HERE = pathlib.Path(__file__).resolve().parent.parent
ROOT = HERE.parent
NOTE = "written by VyrC/generate from VyrC/interface.txt"

# The type in C++, and in C as a field of a record and as a result.
CPP = {"text": "CString", "int": "int", "uint32": "std::uint32_t", "int64": "std::int64_t", "uint64": "std::uint64_t",
       "date_time": "COleDateTime", "file_time": "FILETIME", "file_time?": "const FILETIME*", "window": "HWND",
       "list_control": "CListCtrl&", "key": "HKEY", "document": "IDispatch*", "object": "IDispatch*", "rect": "CRect", "guid": "GUID",
       "value?": "PROPVARIANT*", "xml_document": "MSXML2::IXMLDOMDocumentPtr",
       "drain": "VyrPlatform::MessageQueue::MainLoopPass", "text+int": "std::pair<CString, int>", "nothing": "void"}
C = {"int": "int32_t", "uint32": "uint32_t", "int64": "int64_t", "uint64": "uint64_t", "text": "vyr_text",
     "date_time": "vyr_date_time", "file_time": "uint64_t", "guid": "vyr_guid", "window": "intptr_t", "object": "void*",
     "xml_document": "void*"}
NUMBERS = ("int", "uint32", "int64", "uint64")
HANDLES = ("window", "list_control", "key")


def snake(name):
    return re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", name).lower()


class Field(NamedTuple):
    kind: str
    name: str
    # The version that added it; empty for the first.
    since: str

    @property
    def c(self):
        return snake(self.name)


class Record:
    def __init__(self, owner, name, c_name):
        self.name = name
        self.cpp = f"{owner.name}::{name}"
        self.c = f"vyr_{owner.c}_{c_name}"
        self.python = "".join(word.capitalize() for word in c_name.split("_"))
        self.fields = []

    @property
    def later(self):
        """The first field that is not in the first version."""
        return next((field for field in self.fields if field.since), None)


class Operation:
    def __init__(self, owner, result, name, arguments, c_name="", acts=False, since="", repeats=None):
        self.owner, self.result, self.name, self.arguments, self.acts, self.since = (
            owner, result, name, arguments, acts, since)
        # For an operation on an array: the one that it repeats.
        self.repeats = repeats
        self.c = f"vyr_{owner.c}_{c_name or snake(name)}"
        self.symbol = self.c + (f"_since_{since.replace('.', '_')}" if since else "")
        # What its class's header says of it, and calls of Python with their results.
        self.about = []
        self.examples = []

    def cpp(self):
        """Its declaration in the header."""
        arguments = ", ".join(f"{cpp_type(kind)} {name}" for kind, name in self.arguments)
        return plain(f"{cpp_type(self.result)} {self.name}({arguments})")


class Class:
    def __init__(self, name, header, c):
        self.name, self.header, self.c = name, header, c
        self.records = {}
        self.operations = []
        self.about = []

    @property
    def is_own(self):
        """Whether it is a part of VyrC: for hosts in C alone."""
        return self.header.startswith("VyrC/")


def read_interface():
    classes = []
    for line in (HERE / "interface.txt").read_text().splitlines():
        if not line.strip() or line.startswith("#"):
            continue
        if match := re.fullmatch(r"class (\w+) in (\S+) as (\w+)", line):
            classes.append(Class(*match.groups()))
        elif match := re.fullmatch(r"    record (\w+) as (\w+)", line):
            record = Record(classes[-1], *match.groups())
            classes[-1].records[record.name] = record
        elif match := re.fullmatch(r"        >>> (.+) gives (.+)", line):
            classes[-1].operations[-1].examples.append(match.groups())
        elif match := re.fullmatch(r"        (\w+) (\w+)(?: since ([\d.]+))?", line):
            record.fields.append(Field(match[1], match[2], match[3] or ""))
        elif match := re.fullmatch(r"    (\S+) (\w+)\((.*?)\)(?: as (\w+))?( acts)?( on many)?(?: since ([\d.]+))?", line):
            result, name, arguments, c_name, acts, on_many, since = match.groups()
            arguments = [tuple(argument.split(" ")) for argument in arguments.split(", ") if argument]
            operation = Operation(classes[-1], result, name, arguments, c_name, bool(acts), since or "")
            if acts and result.startswith("text"):
                sys.exit(f"interface.txt: {name}: what acts is not called again for a larger buffer, so it gives no text")
            classes[-1].operations.append(operation)
            if on_many:
                (kind, argument), = arguments
                classes[-1].operations.append(
                    Operation(classes[-1], result + "[]", name + "s", [(kind + "[]", argument + "s")], repeats=operation))
        else:
            sys.exit(f"interface.txt: not understood: {line}")
    add_what_headers_say(classes)
    return classes


def element(kind):
    """The type of a list's elements; None for other types."""
    return re.sub(r"\[\]&?$", "", kind) if "[]" in kind else None


def record_of(owner, kind):
    return owner.records.get(element(kind) or kind)


def is_list(owner, kind):
    """Whether a result is a list: records are one, too."""
    return kind.endswith("[]") or record_of(owner, kind) is not None


def given_records(classes):
    """The records in results of operations, each with its class."""
    for item in classes:
        kinds = {element(operation.result) or operation.result for operation in item.operations}
        kinds |= {element(kind) for operation in item.operations for kind, _ in operation.arguments
                  if kind.endswith("[]&")}
        for name, record in item.records.items():
            if name in kinds:
                yield item, record


def taken_records(item):
    kinds = {element(kind) or kind for operation in item.operations for kind, _ in operation.arguments
             if not kind.endswith("[]&")}
    return [record for name, record in item.records.items() if name in kinds]


# The operations in the headers.


def cpp_type(kind):
    if kind.endswith("[]&"):
        return f"std::list<{cpp_type(kind[:-3])}>*"
    if kind.endswith("[]"):
        return f"std::vector<{cpp_type(kind[:-2])}>"
    return CPP.get(kind, kind)


def plain(text):
    return re.sub(r"\s+", " ", text.replace("std::int32_t", "int")).strip()


def public_part(header):
    return (ROOT / header).read_text().split("private:")[0]


def add_what_headers_say(classes):
    """Adds the comments of the headers. An overload without one of its own is like the operation above it."""
    for item in classes:
        if not (ROOT / item.header).is_file():
            continue
        public = public_part(item.header)
        about = re.search(rf"((?:^///[^\n]*\n)+)class (?:VYR_FUNCS_API )?{item.name}$", public, re.M)
        item.about = comment_lines(about[1]) if about else []
        found, last, last_name = {}, [], ""
        for comment, declaration in re.findall(r"((?:^    ///[^\n]*\n)*)^    static ([^;]*?);", public, re.M | re.S):
            name = re.search(r"(\w+)\(", declaration)[1]
            last = comment_lines(comment) or (last if name == last_name else [])
            last_name = name
            found[plain(declaration)] = last
        for operation in item.operations:
            operation.about = found.get(operation.cpp(), [])
        for operation in item.operations:
            if operation.repeats:
                operation.about = [f"{operation.repeats.name} for each of `{snake(operation.arguments[0][1])}`: "
                                   "one call for an array."]


def comment_lines(text):
    return [re.sub(r"^\s*/// ?", "", line) for line in text.splitlines()]


def compare_with_headers(classes):
    """The differences between the description and the public headers."""
    described = {item.name: item for item in classes}
    faults = [f"{name}: it is in interface.txt, and its header is missing"
              for name, item in described.items() if not (ROOT / item.header).is_file()]
    headers = [path.relative_to(ROOT) for path in sorted((ROOT / "VyrLibraryFuncs").glob("*/*Funcs.h"))]
    for header in headers + [item.header for item in classes if item.is_own]:
        text = re.sub(r"//[^\n]*", "", public_part(header))
        name = re.search(r"^class (?:VYR_FUNCS_API )?(\w+)$", text, re.M)[1]
        declared = {plain(found) for found in re.findall(r"^    static ([^;]*?);", text, re.M | re.S)}
        fields = {found[1]: [(plain(kind), field) for kind, field in
                             re.findall(r"^\s*([\w:]+) (\w+)(?: = [^;]+)?;", found[2], re.M)]
                  for found in re.finditer(r"    struct (\w+)\s*\{(.*?)\n    \};", text, re.S)}
        item = described.get(name)
        written = {operation.cpp() for operation in item.operations if not operation.repeats} if item else set()
        faults += [f"{name}: interface.txt lacks {missing}" for missing in sorted(declared - written)]
        faults += [f"{name}: the header lacks {extra}" for extra in sorted(written - declared)]
        for record in item.records.values() if item else []:
            expected = [(plain(cpp_type(field.kind)), field.name) for field in record.fields]
            if fields.get(record.name) != expected:
                faults.append(f"{name}::{record.name}: other fields, or another order, than interface.txt has")
    return faults
