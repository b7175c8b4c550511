"""The declarations for C#."""

from .c_tests import layout, structures
from .description import HANDLES, NOTE, given_records, is_list, record_of, snake

FIELDS = {"int": "int", "uint32": "uint", "int64": "long", "uint64": "ulong", "text": "Text", "date_time": "DateAndTime",
          "file_time": "ulong", "guid": "Guid", "window": "IntPtr", "object": "IntPtr", "xml_document": "IntPtr"}
# C#'s own words among the names of arguments and fields.
RESERVED = {"object", "string", "base", "params", "namespace", "class", "checked", "event", "operator", "out", "ref", "in"}


def name_of(name):
    return "@" + snake(name) if snake(name) in RESERVED else snake(name)


def structure(record):
    """The name of a record's structure: that of C without its prefix, as a type's name."""
    return "".join(word.capitalize() for word in record.c.removeprefix("vyr_").split("_"))


def parameters(operation):
    written = []
    for kind, name in operation.arguments:
        bare, name = snake(name), name_of(name)
        record = record_of(operation.owner, kind)
        if kind.endswith("[]&"):
            written.append(f"out ulong {name}")
        elif kind.endswith("[]"):
            element = structure(record) if record else {"text[]": "Text", "text+int[]": "TextAndNumber"}[kind]
            written += [f"{element}[] {name}", f"UIntPtr {bare}_count"]
        elif record:
            written.append(f"ref {structure(record)} {name}")
        elif kind == "text":
            written += [f"[MarshalAs(UnmanagedType.LPWStr)] string {name}", f"IntPtr {bare}_length"]
        elif kind == "date_time":
            written += [f"double {name}", f"int {bare}_status"]
        elif kind == "file_time?":
            written.append(f"ulong[] {name}")
        elif kind in HANDLES + ("document",):
            written.append(f"IntPtr {name}")
        elif kind == "drain":
            written += [f"Drain {name}", "IntPtr context"]
        elif kind in ("rect", "guid", "value?"):
            written.append({"rect": f"ref Rect {name}", "guid": f"ref Guid {name}", "value?": f"ref Value {name}"}[kind])
        else:
            written.append(f"{FIELDS[kind]} {name}")
    text = ["[Out] char[] buffer", "UIntPtr capacity", "out UIntPtr length"]
    if operation.result in ("text", "text+int"):
        written += text + (["out int result"] if operation.result == "text+int" else [])
    elif is_list(operation.owner, operation.result):
        written.append("out ulong result")
    elif operation.result != "nothing":
        written.append(f"out {FIELDS[operation.result]} result")
    return ", ".join(written)


def imported(symbol, name, arguments):
    return [f'        [DllImport(Library, EntryPoint = "{symbol}", CharSet = CharSet.Unicode)]',
            f"        public static extern int {name}({arguments});"]


HEAD = """
using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;

namespace Vyr
{
    /// <summary>A text of a record: the address of its UTF-16, and its length.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct Text { public IntPtr units; public IntPtr length; }
    [StructLayout(LayoutKind.Sequential)]
    public struct DateAndTime { public double days; public int status; }
    [StructLayout(LayoutKind.Sequential)]
    public struct Rect { public int left, top, right, bottom; }
    [StructLayout(LayoutKind.Sequential)]
    public struct TextAndNumber { public Text text; public int number; }
    [StructLayout(LayoutKind.Sequential)]
    public struct Value
    {
        public UIntPtr struct_size; public int type; public long number; public double real; public Text text;
        public IntPtr bytes; public UIntPtr bytes_count; public Guid guid;
    }
    public delegate int Drain(IntPtr context);
""".splitlines()


def write_declarations(classes):
    given = {record for _, record in given_records(classes)}
    lines = [f"// The functions and records of vyr.h for C#; {NOTE}.", "// 64-bit. A function gives 0 when it succeeded; vyr.h and "
             "docs/c-interface.md describe them."] + HEAD
    for item in classes:
        for record in item.records.values():
            lines += ["    [StructLayout(LayoutKind.Sequential)]", f"    public struct {structure(record)}", "    {",
                      "        public UIntPtr struct_size;"]
            lines += [f"        public {FIELDS[field.kind]} {name_of(field.name)};" for field in record.fields]
            lines.append("    }")
    lines += ["", "    public static class Native", "    {", '        const string Library = "VyrLibraryC";',
              '        [DllImport(Library)]', "        public static extern uint vyr_version();"]
    for name, arguments in [("vyr_get_last_error", "[Out] char[] buffer, UIntPtr capacity, out UIntPtr length"),
                            ("vyr_list_get_count", "ulong list, out UIntPtr count"), ("vyr_list_release", "ulong list"),
                            ("vyr_text_get", "ulong list, UIntPtr index, out Text text")]:
        lines += imported(name, name, arguments)
    for item in classes:
        lines += [f"        // {item.name}"]
        for record in item.records.values():
            if record in given:
                lines += imported(f"{record.c}_get", f"{record.c}_get", f"ulong list, UIntPtr index, ref {structure(record)} record")
        for operation in item.operations:
            lines += imported(operation.symbol, operation.c, parameters(operation))
    lines += ["    }", "", "    /// <summary>The sizes that C gives the records, to be compared with those of C#.</summary>",
              "    public static class Layout", "    {", "        public static readonly Dictionary<Type, int> Sizes = new Dictionary<Type, int>",
              "        {"]
    names = {record.c: structure(record) for item in classes for record in item.records.values()}
    names.update(vyr_text="Text", vyr_date_time="DateAndTime", vyr_rect="Rect", vyr_text_and_number="TextAndNumber", vyr_value="Value")
    lines += [f"            {{ typeof({names[name]}), {layout(fields)[1]} }}," for name, fields in structures(classes)]
    return "\n".join(lines + ["        };", "    }", "}", ""])
