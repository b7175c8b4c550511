"""The header, the functions and the lists of exports."""
import re

from .description import (C, CPP, HANDLES, HERE, NOTE, NUMBERS, ROOT, given_records, is_list, record_of, snake,
                          taken_records)


def parameters(operation):
    """The parameters of the function, as C writes them."""
    written = []
    for kind, name in operation.arguments:
        name = snake(name)
        record = record_of(operation.owner, kind)
        if kind.endswith("[]&"):
            written.append(f"vyr_list* {name}")
        elif kind == "text[]":
            written += [f"const vyr_text* {name}", f"size_t {name}_count"]
        elif kind == "text+int[]":
            written += [f"const vyr_text_and_number* {name}", f"size_t {name}_count"]
        elif kind.endswith("[]"):
            written += [f"const {record.c}* {name}", f"size_t {name}_count"]
        elif record:
            written.append(f"const {record.c}* {name}")
        elif kind == "text":
            written += [f"const uint16_t* {name}", f"ptrdiff_t {name}_length"]
        elif kind == "date_time":
            written += [f"double {name}", f"int32_t {name}_status"]
        elif kind == "file_time?":
            written.append(f"const uint64_t* {name}")
        elif kind in HANDLES:
            written.append(f"intptr_t {name}")
        elif kind == "drain":
            written += [f"vyr_drain {name}", "void* context"]
        elif kind in ("rect", "guid"):
            written.append(f"const vyr_{kind}* {name}")
        elif kind == "value?":
            written.append(f"const vyr_value* {name}")
        elif kind == "document":
            written.append(f"void* {name}")
        else:
            written.append(f"{C[kind]} {name}")
    text = ["uint16_t* buffer", "size_t capacity", "size_t* length"]
    if operation.result == "text":
        written += text
    elif operation.result == "text+int":
        written += text + ["int32_t* result"]
    elif is_list(operation.owner, operation.result):
        written.append("vyr_list* result")
    elif operation.result != "nothing":
        written.append(f"{C[operation.result]}* result")
    return written


def declaration(operation, end):
    start = f"vyr_status {operation.c}("
    written = parameters(operation) or ["void"] if end == ";" else parameters(operation)
    line = start + ", ".join(written) + ")" + end
    return line if len(line) <= 120 else start + "\n    " + ",\n    ".join(written) + ")" + end


def getter(record, end):
    return f"vyr_status {record.c}_get(vyr_list list, size_t index, {record.c}* record){end}"


def version():
    """The version of the project as three numbers."""
    project = (ROOT / "CMakeLists.txt").read_text()
    return tuple(map(int, re.search(r"VERSION (\d+)\.(\d+)\.(\d+)", project).groups()))


def write_header(classes):
    lines = []
    given = {record for _, record in given_records(classes)}
    for item in classes:
        lines += ["", f"/* {item.name}: {item.header} */"]
        for record in item.records.values():
            lines += ["", f"/* {record.cpp} */", f"typedef struct {record.c}", "{", "    size_t struct_size;"]
            for field in record.fields:
                since = f" /* since {field.since} */" if field.since else ""
                lines.append(f"    {C[field.kind]} {field.c};{since}")
            lines += [f"}} {record.c};", ""]
            if record in given:
                lines += ["/* Writes the record at `index`, from 0, of such a list. */", getter(record, ";")]
        for operation in item.operations:
            if operation.since:
                lines += [f"/* {operation.name}, since {operation.since} */", f"#define {operation.c} {operation.symbol}"]
            else:
                lines.append(f"/* {operation.name} */")
            lines.append(declaration(operation, ";"))
    major, minor, patch = version()
    text = (HERE / "vyr.h.in").read_text().replace("@declarations@", "\n".join(lines))
    return text.replace("@version@", str(major * 1000000 + minor * 1000 + patch))


def converted(operation, kind, name):
    """The C++ expression for an argument, and the statements before it."""
    c_name = snake(name)
    record = record_of(operation.owner, kind)
    if kind.endswith("[]&"):
        return f"{c_name} ? &{c_name}_made : nullptr", [
            f'RequireAligned({c_name}, "{c_name}");', f"std::list<{record.cpp}> {c_name}_made;"]
    if kind == "text[]":
        return (f'ToVector({c_name}, {c_name}_count, "{c_name}", '
                "[](const vyr_text& element, const char* argument) { return ToText(element, argument); })", [])
    if kind == "text+int[]":
        return (f'ToVector({c_name}, {c_name}_count, "{c_name}", [](const vyr_text_and_number& element, '
                "const char* argument) { return std::pair<CString, int>(ToText(element.text, argument), "
                "element.number); })", [])
    if kind.endswith("[]"):
        convert = "ToCpp(&element, argument)"
        if operation.repeats:
            convert = f"{operation.owner.name}::{operation.repeats.name}({convert})"
        return (f'ToRecords({c_name}, {c_name}_count, "{c_name}", '
                f"[](const {record.c}& element, const char* argument) {{ return {convert}; }})", [])
    if record:
        return f'ToCpp({c_name}, "{c_name}")', []
    if kind == "text":
        return f'ToText({c_name}, {c_name}_length, "{c_name}")', []
    if kind == "date_time":
        return f'ToDateTime({c_name}, {c_name}_status, "{c_name}")', []
    if kind == "file_time?":
        return f"{c_name}_made ? &*{c_name}_made : nullptr", [
            f'const auto {c_name}_made = ToOptionalFileTime({c_name}, "{c_name}");']
    if kind == "value?":
        return f"{c_name}_made.Get()", [f'PropertyValue {c_name}_made({c_name}, "{c_name}");']
    if kind == "list_control":
        return f"{c_name}_made", [f"CListCtrl {c_name}_made = ToListControl({c_name});"]
    if kind in HANDLES:
        return f"ToHandle<{CPP[kind]}>({c_name})", []
    if kind == "document":
        return f'HostObject({c_name}, "{c_name}")', []
    if kind == "object":
        return f'GivenObject({c_name}, "{c_name}")', []
    if kind == "drain":
        return f"ToDrain({c_name}, context)", []
    if kind == "rect":
        return f'ToRect({c_name}, "{c_name}")', []
    if kind == "guid":
        return f'ToGuid({c_name}, "{c_name}")', []
    return c_name, []


def is_passed_at_once(operation, kind):
    """Whether the argument needs no variable between its check and the call."""
    return kind in NUMBERS + ("file_time?", "list_control", "value?") or kind.endswith("[]&")


def body(operation):
    """The function's statements. Every argument is checked and converted before the operation is called."""
    lines, arguments = [], []
    result = operation.result
    if result in ("text", "text+int"):
        lines.append("const TextResult textResult(buffer, capacity, length);")
    if is_list(operation.owner, result):
        lines.append("const ListResult listResult(result);")
    elif result not in ("text", "nothing"):
        lines.append("const NumberResult numberResult(result);")
    kept = [kind for kind, _ in operation.arguments if record_of(operation.owner, kind) and "[]" not in kind]
    assert len(kept) == len(set(kept)), f"{operation.c}: ToCpp keeps one record of a type"
    for number, (kind, name) in enumerate(operation.arguments):
        expression, before = converted(operation, kind, name)
        lines += before
        if is_passed_at_once(operation, kind):
            arguments.append(expression)
        elif record_of(operation.owner, kind) and not kind.endswith("[]"):
            lines.append(f"const auto& argument{number} = {expression};")
            arguments.append(f"argument{number}")
        else:
            lines.append(f"auto argument{number} = {expression};")
            arguments.append(f"argument{number}" if kind in HANDLES + ("document", "object") else f"std::move(argument{number})")
    call = f"{operation.owner.name}::{operation.name}({', '.join(arguments)})"
    if operation.repeats:
        lines.append(f"return listResult.Give({arguments[0]});")
    elif result == "text":
        lines.append(f"return textResult.Give({call});")
    elif result == "text+int":
        lines += [f"const auto [given, number] = {call};", "const vyr_status status = textResult.Give(given);",
                  "return status == VYR_OK ? numberResult.Give(number) : status;"]
    elif result == "file_time":
        lines.append(f"return numberResult.Give(ToTicks({call}));")
    elif result in C and result not in NUMBERS:
        lines.append(f"return numberResult.Give(ToC({call}));")
    elif record_of(operation.owner, result) and "[]" not in result:
        lines.append(f"return listResult.Give(std::vector{{{call}}});")
    elif result == "nothing":
        lines += [f"{call};", "return VYR_OK;"]
    else:
        collected = [(record_of(operation.owner, kind), snake(name)) for kind, name in operation.arguments
                     if kind.endswith("[]&")]
        if collected:
            lines.append(f"const auto given = {call};")
            for record, name in collected:
                lines += [f"if ({name})",
                          f"    *{name} = Hold(std::make_shared<RecordList<{record.cpp}>>(",
                          f"        std::vector<{record.cpp}>({name}_made.begin(), {name}_made.end())));"]
            lines.append("return numberResult.Give(given);")
        else:
            place = "listResult" if is_list(operation.owner, result) else "numberResult"
            lines.append(f"return {place}.Give({call});")
    return lines


def sizes(record):
    """The size of the record's first version, and the assertion that a later field does not lie in its padding."""
    if not record.later:
        return f"sizeof({record.c})", []
    offset = f"offsetof({record.c}, {record.later.c})"
    return offset, [f"static_assert({offset} % alignof({record.c}) == 0);", ""]


def taken(record):
    """The function that reads a record of the host. What it returns is used before the next such record is read."""
    size, lines = sizes(record)
    lines += [f"const {record.cpp}& ToCpp(const {record.c}* record, const char* argument)", "{",
              f"    RequireRecord(record, argument, {size});", f"    {record.cpp}& kept = LastOf<{record.cpp}>();"]
    for field in record.fields:
        place, value = f"kept.{field.name}", f"record->{field.c}"
        if field.since:
            lines += [f"    if (!HasField(*record, offsetof({record.c}, {field.c})))",
                      f"        {place} = {record.cpp}().{field.name};", "    else"]
        if field.kind == "text":
            statement = f"Keep({place}, {value}, argument);"
        else:
            value = {"date_time": f"ToDateTime({value}, argument)", "guid": f"ToGuid({value})"}.get(field.kind, value)
            statement = f"{place} = {value};"
        lines.append(("        " if field.since else "    ") + statement)
    return lines + ["    return kept;", "}", ""]


def given(record):
    """The function that writes a record for the host."""
    size, lines = sizes(record)
    lines += [getter(record, ""), "{", "    return Guard([&] {", f'        RequireRecord(record, "record", {size});',
              "        const auto held = Held(list);", f"        const auto& found = RecordAt<{record.cpp}>(held, index);"]
    for field in record.fields:
        if field.since:
            lines.append(f"        if (HasField(*record, offsetof({record.c}, {field.c})))")
        value = f"found.{field.name}"
        value = value if field.kind in NUMBERS else f"ToC({value})"
        lines.append(("            " if field.since else "        ") + f"record->{field.c} = {value};")
    return lines + ["        return VYR_OK;", "    });", "}", ""]


def write_functions(classes):
    lines = [f"// The functions of vyr.h; {NOTE}.", "// clang-format off", "#include <VyrC/Marshal.h>",
             "#include <VyrC/PropertyValue.h>"]
    lines += [f"#include <{item.header}>" for item in classes]
    lines += ["", "#include <cstddef>", "#include <list>", "#include <utility>", "#include <vector>", "", "using namespace VyrC;",
              "using namespace VyrLibraryFuncs;", "", "namespace {", ""]
    for item in classes:
        for record in taken_records(item):
            lines += taken(record)
    lines += ["} // namespace", ""]
    for _, record in given_records(classes):
        lines += given(record)
    for item in classes:
        for operation in item.operations:
            # What is called for many records is inlined whole: a call is not much work beside the operation's own.
            is_often_called = any(other.repeats is operation for other in item.operations)
            lines += ["[[gnu::flatten]]"] * is_often_called + [declaration(operation, ""), "{", "    return Guard([&] {"]
            lines += ["        " + line for line in body(operation)]
            lines += ["    });", "}", ""]
    return "\n".join(lines)


def functions(classes):
    """The names of all functions."""
    names = ["vyr_version", "vyr_get_last_error", "vyr_list_get_count", "vyr_list_release", "vyr_text_get"]
    names += [f"{record.c}_get" for _, record in given_records(classes)]
    names += [operation.symbol for item in classes for operation in item.operations]
    return sorted(names)


def write_map(classes):
    symbols = "".join(f"        {name};\n" for name in functions(classes))
    return f"/* The functions of the library; {NOTE}. */\nVYR_0 {{\n    global:\n{symbols}    local:\n        *;\n}};\n"


def write_def(classes):
    symbols = "".join(f"    {name}\n" for name in functions(classes))
    return f"; The functions of the library; {NOTE}.\nLIBRARY VyrLibraryC.dll\nEXPORTS\n{symbols}"
