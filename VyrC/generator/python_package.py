"""The modules of the Python package."""
import keyword
import re

from .description import NOTE, record_of, snake

# The kind of conversion, the type hint, and the value that a record's field has at first.
PYTHON = {"text": ("TEXT", "str", '""'), "int": ("INT", "int", "0"), "uint32": ("UINT32", "int", "0"),
          "int64": ("INT64", "int", "0"), "uint64": ("UINT64", "int", "0"),
          "date_time": ("DATE_TIME", "Optional[datetime.datetime]", "ZERO"),
          "file_time": ("FILE_TIME", "Optional[datetime.datetime]", "None"),
          "file_time?": ("FILE_TIME", "Optional[datetime.datetime]", "None"),
          "text+int": ("TEXT_AND_INT", "Tuple[str, int]", ""), "nothing": ("NOTHING", "None", ""),
          "rect": ("RECT", "Tuple[int, int, int, int]", ""), "window": ("HANDLE", "int", "0"), "key": ("HANDLE", "int", "0"),
          "list_control": ("HANDLE", "int", "0"), "document": ("HANDLE", "int", "0"), "object": ("OBJECT", "Optional[Object]", ""),
          "xml_document": ("OBJECT", "Optional[Object]", ""), "guid": ("GUID", "uuid.UUID", "NO_ID"),
          "value?": ("VALUE", "Value", ""), "drain": ("DRAIN", "Optional[Callable[[], bool]]", "")}


def python_name(name):
    return snake(name) + ("_" if keyword.iskeyword(snake(name)) else "")


def python_kind(owner, kind):
    """The kind of conversion, and the type hint."""
    record = record_of(owner, kind)
    if kind in ("text[]", "text+int[]"):
        converter, hint, _ = PYTHON[kind[:-2]]
        return f"List({converter})", f"Sequence[{hint}]"
    if not record:
        return PYTHON[kind][:2]
    name = record.python
    if kind.endswith("[]&"):
        return f"Collected(Record({name}))", f"Optional[ListType[{name}]]"
    return (f"List(Record({name}))", f"Sequence[{name}]") if "[]" in kind else (f"Record({name})", name)


def in_words(lines):
    """A header's comment as it stands in a docstring."""
    text = "\n".join(lines)
    text = re.sub(r"^@param +(\w+(?:, ?\w+)*) +",
                  lambda found: ", ".join(map(python_name, re.findall(r"\w+", found[1]))) + ": ", text, flags=re.M)
    text = re.sub(r"^@return ", "Returns: ", text, flags=re.M)
    return re.sub(r"^@throws ", "Raises Error: ", text, flags=re.M).splitlines()


def docstring(indent, lines):
    lines = [line.rstrip() for line in lines]
    assert '"""' not in "\n".join(lines)
    shown = [indent + 'r"""' + lines[0]] + [(indent + line).rstrip() for line in lines[1:]]
    return shown + [indent + '"""']


def write_module(item):
    lines = docstring("", [f"The operations of {item.name} ({item.header}); {NOTE}.", ""] + in_words(item.about))
    lines += ["import dataclasses", "import datetime", "import uuid",
              "from typing import Callable, Optional, Sequence, Tuple", "from typing import List as ListType", "",
              "from ._library import *  # noqa: F403", "from ._library import call", "",
              "# 30 December 1899, the date-time with the number 0.", "ZERO = datetime.datetime(1899, 12, 30)",
              "NO_ID = uuid.UUID(int=0)", ""]
    for record in item.records.values():
        lines += ["", "@dataclasses.dataclass", f"class {record.python}:", f'    """{record.cpp}"""']
        lines += [f"    {field.c}: {PYTHON[field.kind][1]} = {PYTHON[field.kind][2]}" for field in record.fields]
        kinds = ", ".join(f'"{field.c}": {PYTHON[field.kind][0]}' for field in record.fields)
        lines += ["", "", f'{record.python}.c_name = "{record.c}"', f"{record.python}.c_kinds = {{{kinds}}}", ""]
    for operation in item.operations:
        lines += function(item, operation)
    return "\n".join(lines)


def function(item, operation):
    """The function for one operation."""
    arguments = [(python_name(name), *python_kind(item, kind)) for kind, name in operation.arguments]
    hints = ", ".join(f"{name}: {hint}" for name, _, hint in arguments)
    kind, hint = python_kind(item, operation.result)
    hint = hint.replace("Sequence", "ListType")
    values = "".join(f", ({kind}, {name})" for name, kind, _ in arguments)
    words = [operation.name] + ([""] if operation.about else []) + in_words(operation.about)
    for expression, result in operation.examples:
        words += ["", f">>> {expression}", result]
    return ["", f"def {operation.c.removeprefix(f'vyr_{item.c}_')}({hints}) -> {hint}:", *docstring("    ", words),
            f'    return call("{operation.symbol}", {kind}{values})', ""]
