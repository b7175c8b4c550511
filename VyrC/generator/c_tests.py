"""Tests: calls with wrong arguments, the same calls in C and in C++, and the layout of the structures."""
import re

from .c_interface import functions
from .description import (C, CPP, HANDLES, NOTE, ROOT, cpp_type, given_records, is_list, record_of, taken_records)

# Calls with wrong arguments.


def list_of(item, kind):
    """The type of a list argument's elements in C."""
    record = record_of(item, kind)
    return {"text[]": "vyr_text", "text+int[]": "vyr_text_and_number"}[kind] if record is None else record.c


def has_text(record):
    return any(field.kind == "text" for field in record.fields)


def good_and_bad(operation):
    """For each parameter or group of parameters: correct arguments, and wrong ones with the fault."""
    groups = []
    text = ("buffer, 64, &length", [
        ("0, 64, &length", "null buffer"), ("buffer, 64, 0", "null length"),
        ("(uint16_t*)misaligned, 64, &length", "misaligned buffer"), ("buffer, 64, (size_t*)misaligned", "misaligned length")])
    for kind, name in operation.arguments:
        record = record_of(operation.owner, kind)
        if kind.endswith("[]&"):
            groups.append(("0", [("(vyr_list*)misaligned", f"misaligned {name}")]))
        elif kind.endswith("[]"):
            c = list_of(operation.owner, kind)
            bad = [("0, 1", f"null {name}"), (f"(const {c}*)misaligned, 1", f"misaligned {name}"),
                   (f"(const {c}*)space, SIZE_MAX", f"more {name} than there can be")]
            if not record:
                bad.append((f"&null_{c}, 1", f"null text in {name}"))
            else:
                if has_text(record):
                    bad.append((f"&{c}_text, 1", f"null text in {name}"))
                bad += [(f"&{c}_{size}, 1", f"{size} size in {name}") for size in ("small", "large", "empty")]
            groups.append(("0, 0", bad))
        elif record:
            groups.append((f"&{record.c}_good", [
                ("0", f"null {name}"), (f"(const {record.c}*)misaligned", f"misaligned {name}"),
                (f"&{record.c}_small", f"{name} of a smaller size"), (f"&{record.c}_large", f"{name} of a larger size"),
                (f"&{record.c}_empty", f"{name} without size")]))
            if has_text(record):
                groups[-1][1].append((f"&{record.c}_text", f"null text in {name}"))
        elif kind == "text":
            groups.append(("text, -1", [("0, -1", f"null {name}"), ("0, 7", f"null {name} with a length"),
                                        ("text, PTRDIFF_MAX", f"{name} longer than there can be"),
                                        ("(const uint16_t*)misaligned, 1", f"misaligned {name}")]))
        elif kind == "date_time":
            groups.append(("45000.5, 0", [("45000.5, 3", f"unknown status of {name}"), ("45000.5, -1", f"negative status of {name}"),
                                          ("HUGE_VAL, 0", f"endless {name}"), ("NAN, 0", f"{name} that is no number")]))
        elif kind == "file_time?":
            groups.append(("0", [("(const uint64_t*)misaligned", f"misaligned {name}")]))
        elif kind == "value?":
            groups.append(("0", [("(const vyr_value*)misaligned", f"misaligned {name}"), ("&small_value", f"{name} of a smaller size"),
                                 ("&unknown_value", f"unknown type of {name}"), ("&null_text_value", f"null text in {name}"),
                                 ("&wide_value", f"{name} that its type cannot hold"),
                                 ("&null_bytes_value", f"null bytes in {name}")]))
        elif kind == "document":
            groups.append(("0", [("misaligned", f"misaligned {name}"), ("space", f"{name} without a table"),
                                 ("(void*)16", f"{name} where nothing is"), ("table", f"{name} whose table is nowhere"),
                                 ("&no_object", f"{name} whose functions are none")]))
        elif kind == "object":
            groups.append(("0", [("misaligned", f"misaligned {name}"), ("space", f"{name} that the library did not give")]))
        elif kind == "drain":
            groups.append(("0, 0", []))
        elif kind in ("rect", "guid"):
            groups.append((f"&{kind}", [("0", f"null {name}"), (f"(const vyr_{kind}*)misaligned", f"misaligned {name}")]))
        else:
            groups.append(("0", []))
    if operation.result in ("text", "text+int"):
        groups.append(text)
    if operation.result == "text+int":
        groups.append(("&int32_t_place", [("0", "null result"), ("(int32_t*)misaligned", "misaligned result")]))
    elif is_list(operation.owner, operation.result):
        groups.append(("&list", [("0", "null result"), ("(vyr_list*)misaligned", "misaligned result")]))
    elif operation.result not in ("nothing", "text"):
        c = C[operation.result]
        groups.append((f"&{place(c)}", [("0", "null result"), (f"({c}*)misaligned", "misaligned result")]))
    return groups


def place(c):
    """The variable for a result of a type."""
    return c.replace("*", "_pointer") + "_place"


def tolerated(operation, groups):
    """Calls that must be answered, whatever with: unusual numbers, and handles of nothing."""
    calls = []
    for number, (kind, name) in enumerate(operation.arguments):
        unusual = {"int": ("INT32_MIN", "INT32_MAX"), "uint32": ("UINT32_MAX",), "int64": ("INT64_MIN", "INT64_MAX"),
                   "uint64": ("UINT64_MAX",)}.get(kind, ("-1", "987654321") if kind in HANDLES else ())
        for value in unusual:
            calls.append((", ".join(value if at == number else good for at, (good, _) in enumerate(groups)), f"{name} {value}"))
    if operation.result in ("text", "text+int"):
        few = "buffer, 1, &length"
        calls.append((", ".join(few if good == "buffer, 64, &length" else good for good, _ in groups), "small buffer"))
    return [(", ".join(good for good, _ in groups), "good arguments")] + calls


def write_hostile(classes):
    lines = [f"/* Calls each function with each of its arguments wrong in turn; {NOTE}. */", "#include \"CalledFromC.h\"",
             "", "#include <math.h>", "#include <string.h>", "", "#include <VyrC/vyr.h>", "",
             "#define EXPECT_WRONG(call, what) \\", "    do { \\", "        ++count; \\",
             "        if ((call) != VYR_WRONG_ARGUMENT) \\", "            report(#call, what); \\", "    } while (0)",
             "#define EXPECT_ANSWER(call, what) \\", "    do { \\", "        const vyr_status status = (call); \\",
             "        ++count; \\", "        if (status != VYR_OK && status != VYR_FAILED && status != VYR_BUFFER_TOO_SMALL) \\",
             "            report(#call, what); \\", "    } while (0)", "",
             "static const uint16_t text[] = {'n', 'o', 'n', 'e', 0};", "static uint16_t buffer[64];", "static size_t length;",
             "static vyr_list list;", "static const vyr_rect rect = {0, 0, 800, 600};", "static const vyr_guid guid = {1, 2, 3, {4}};",
             "static vyr_value small_value, unknown_value, null_text_value, wide_value, null_bytes_value;"]
    results = {operation.result for item in classes for operation in item.operations}
    for c in sorted({C[result] for result in results if result in C and result != "text"} | {"int32_t"}):
        lines.append(f"static {c} {place(c)};")
    lines += ["static const vyr_text null_vyr_text = {0, 3};",
              "static const vyr_text_and_number null_vyr_text_and_number = {{0, 3}, 0};", "static uint64_t space[8];",
              "static void* table[3] = {space + 1, space, space};", "static void* no_object = table;",
              "/* Its address is odd. */", "static void* misaligned;", ""]
    for item in classes:
        for record in taken_records(item):
            is_single = any(kind == record.name for operation in item.operations for kind, _ in operation.arguments)
            names = ["good"] * is_single + ["small", "large", "empty"] + ["text"] * has_text(record)
            lines += [f"static {record.c} " + ", ".join(f"{record.c}_{name}" for name in names) + ";"]
    lines += ["", "static void make_records(void)", "{",
              "    small_value.struct_size = sizeof(vyr_value) - 8;",
              "    unknown_value.struct_size = null_text_value.struct_size = sizeof(vyr_value);",
              "    wide_value.struct_size = null_bytes_value.struct_size = sizeof(vyr_value);",
              "    unknown_value.type = 71;", "    null_text_value.type = 31;", "    null_text_value.text.length = 3;",
              "    wide_value.type = 2;", "    wide_value.number = 40000;",
              "    null_bytes_value.type = 65;", "    null_bytes_value.bytes_count = 3;"]
    for item in classes:
        for record in taken_records(item):
            if any(kind == record.name for operation in item.operations for kind, _ in operation.arguments):
                lines.append(f"    {record.c}_good.struct_size = sizeof({record.c});")
            smaller = f"offsetof({record.c}, {record.later.c})" if record.later else f"sizeof({record.c})"
            lines += [f"    {record.c}_small.struct_size = {smaller} - 1;",
                      f"    {record.c}_large.struct_size = sizeof({record.c}) + 8;"]
            texts = [field.c for field in record.fields if field.kind == "text"]
            if texts:
                lines += [f"    {record.c}_text.struct_size = sizeof({record.c});",
                          f"    {record.c}_text.{texts[0]}.length = 3;"]
    lines += ["}", ""]
    for item in classes:
        lines += [f"static int call_{item.c}(report_function report)", "{", "    int count = 0;",
                  "    (void)report;"]
        for operation in item.operations:
            groups = good_and_bad(operation)
            for at_bad, (_, bad) in enumerate(groups):
                for arguments, what in bad:
                    call = ", ".join(arguments if at == at_bad else good for at, (good, _) in enumerate(groups))
                    lines.append(f'    EXPECT_WRONG({operation.c}({call}), "{what}");')
            if not operation.acts:
                lines += [f'    EXPECT_ANSWER({operation.c}({call}), "{what}");' for call, what in tolerated(operation, groups)]
        lines += ["    return count;", "}", ""]
    lines += ["int call_with_wrong_arguments(report_function report)", "{", "    int count = 0;",
              "    misaligned = (char*)space + 1;", "    make_records();",
              '    EXPECT_WRONG(vyr_text_get(0, 0, 0), "no list");',
              '    EXPECT_WRONG(vyr_list_get_count(0, 0), "no place for the count");',
              '    EXPECT_WRONG(vyr_list_release(UINT64_MAX), "unknown list");',
              '    EXPECT_WRONG(vyr_get_last_error(0, 1, &length), "null buffer");']
    for _, record in given_records(classes):
        lines += [f'    EXPECT_WRONG({record.c}_get(0, 0, 0), "no list");',
                  f'    EXPECT_WRONG({record.c}_get(list, 0, ({record.c}*)misaligned), "misaligned record");']
    lines += [f"    count += call_{item.c}(report);" for item in classes]
    lines += ["    return count;", "}", ""]
    return "\n".join(lines)


# The same calls in C and in C++.


def compared(classes):
    """The operations that are called in both. On Windows the library for C has settings of its own, so operations that set
    them come first. The classes for hosts in C have no others to be compared with."""
    operations = [operation for item in classes if not item.is_own for operation in item.operations]
    return sorted(operations, key=lambda operation: operation.result != "nothing")


# What reads the registry of the machine.
WITH_REGISTRY = ("browser", "feature_control", "office_property", "programs", "registry")


def parts(operation):
    """What its calls need besides values, and how many rounds tell all."""
    needed = []
    if not operation.arguments:
        needed.append(".rounds = 1")
    elif operation.owner.c == "control_panel":
        needed.append(".rounds = 2")
    if operation.acts:
        needed.append(".acts = true")
    if operation.owner.c == "feature_control" and operation.arguments[0][0] == "int":
        # The system's library for pages keeps them.
        needed.append(".isSeen = false")
    if any(kind == "list_control" for kind, _ in operation.arguments):
        needed.append(".hasList = true")
    if operation.owner.c in WITH_REGISTRY:
        needed.append(".hasRegistry = true")
    return ", {" + ", ".join(needed) + "}" if needed else ""


def next_in_c(kind):
    """The next value of a type, in C; `values` is a pointer."""
    name = {"text": "text", "date_time": "date_time", "guid": "guid", "text+int": "text_and_number"}.get(kind)
    return f"next_{name}(values)" if name else f"({C[kind]})next_number(values)"


def chosen(operation, kind, name):
    """The type in C and the functions in C and in C++ for arguments that are not just any value of their type: what acts
    does so in the scratch folder."""
    if operation.acts and kind == "text" and name in ("path", "source", "destination"):
        return "vyr_text", "next_path", "NextPath"
    if operation.name == "GetResolveConflictFilePath" and kind == "text":
        # It may count for ever where a file is in the way.
        return "vyr_text", "next_free_path", "NextFreePath"
    if operation.acts and kind == "guid":
        return "vyr_guid", "next_handler", "NextHandler"
    return {"list_control": ("intptr_t", "next_list", "NextList"), "key": ("intptr_t", "next_key", "NextKey"),
            "document": ("void*", "next_page", "NextPage"), "rect": ("vyr_rect", "next_rect", "NextRect"),
            "file_time?": ("const uint64_t*", "next_file_time", "NextFileTime"),
            "value?": ("const vyr_value*", "next_value", "NextValue")}.get(kind)


def shown_in_c(kind, value):
    """The statement that shows a value in C."""
    shows = {"text": "show_text", "date_time": "show_date_time", "guid": "show_guid", "int": "show_signed",
             "int64": "show_signed", "xml_document": "show_object"}
    return f"{shows.get(kind, 'show_unsigned')}({value});"


def find_uncalled(classes):
    """The functions that are neither called in both languages nor by the hosts in C that tests bring: the calls that a
    test judges to have succeeded."""
    hosts = "".join((ROOT / "tests/VyrC" / name).read_text() for name in ("RenamesInC.c", "HostModelsInC.c"))
    called = set(re.findall(r"\b(vyr_\w+)\(", hosts + write_calls_in_c(classes)))
    return [f"{name}: no test in C calls it with good arguments" for name in functions(classes)
            if re.sub("_since_.*", "", name) not in called]


def write_calls_in_c(classes):
    lines = [f"/* Calls each operation with the shared values; {NOTE}. */", '#include "SameInC.h"', "",
             '#include "SharedValues.h"', "", "#include <stdlib.h>", ""]
    for item in [item for item in classes if not item.is_own]:
        for record in taken_records(item):
            lines += [f"static {record.c} make_{record.c}(shared_values* values)", "{", f"    {record.c} record = {{0}};",
                      "    record.struct_size = sizeof record;"]
            lines += [f"    record.{field.c} = {next_in_c(field.kind)};" for field in record.fields]
            lines += ["    return record;", "}", ""]
    for operation in compared(classes):
        lines += call_in_c(operation)
    return "\n".join(lines)


def write_calls_header(classes):
    lines = ["/* clang-format off */", f"/* Each calls an operation with the values of a round, and gives what came of it; {NOTE}. */",
             "#ifndef SAME_IN_C_H", "#define SAME_IN_C_H", "", "#include <stddef.h>", "", "#ifdef __cplusplus",
             'extern "C" {', "#endif", ""]
    lines += [f"const char* same_{operation.c[4:]}(size_t round);" for operation in compared(classes)]
    return "\n".join(lines + ["", "#ifdef __cplusplus", "}", "#endif", "", "#endif", ""])


def call_in_c(operation):
    """The function that calls one operation."""
    item = operation.owner
    lines = [f"const char* same_{operation.c[4:]}(size_t round)", "{", "    shared_values all = {0};",
             "    shared_values* const values = &all;", "    vyr_status status;"]
    made, given = ["    all.next = round;", "    begin_showing();"], []
    for number, (kind, name) in enumerate(operation.arguments):
        record, value = record_of(item, kind), f"a{number}"
        special = chosen(operation, kind, name)
        if special:
            c, function, _ = special
            place = {"file_time?": "uint64_t", "value?": "vyr_value"}.get(kind)
            lines += [f"    {place} {value}_place;"] * bool(place) + [f"    {c} {value};"]
            made.append(f"    {value} = {function}(values{f', &{value}_place' if place else ''});")
            given.append({"text": f"{value}.units, {value}.length", "guid": f"&{value}", "rect": f"&{value}"}.get(kind, value))
        elif kind.endswith("[]&"):
            lines += [f"    vyr_list {value} = 0;", f"    {record.c} found = {{0}};", "    size_t count = 0;", "    size_t index;"]
            given.append(f"&{value}")
        elif kind.endswith("[]"):
            c = list_of(item, kind)
            lines.append(f"    {c} {value}[2];")
            source = f"make_{c}(values)" if record else next_in_c(kind[:-2])
            made += [f"    {value}[{at}] = {source};" for at in (0, 1)]
            given.append(f"{value}, 2")
        elif record or kind in ("guid", "text", "date_time"):
            c = record.c if record else C[kind]
            lines.append(f"    {c} {value};")
            made.append(f"    {value} = {f'make_{c}(values)' if record else next_in_c(kind)};")
            given.append({"text": f"{value}.units, {value}.length", "date_time": f"{value}.days, {value}.status"}.get(kind, f"&{value}"))
        elif kind in HANDLES:
            lines.append(f"    intptr_t {value};")
            made.append(f"    {value} = next_handle(values);")
            given.append(value)
        else:
            lines.append(f"    {C[kind]} {value};")
            made.append(f"    {value} = {next_in_c(kind)};")
            given.append(value)
    result, record = operation.result, record_of(item, operation.result)
    if result in ("text", "text+int"):
        more = ", &number" if result == "text+int" else ""
        lines += ["    vyr_text text = {0, 0};", "    uint16_t* buffer = 0;", "    size_t length = 0;"]
        lines += ["    int32_t number = 0;"] * bool(more)
        first = ", ".join(given + ["0, 0, &length"]) + more
        again = ", ".join(given + ["buffer, length + 1, &length"]) + more
        made += [f"    status = {operation.c}({first});", "    if (status == VYR_BUFFER_TOO_SMALL) {",
                 "        buffer = malloc((length + 1) * sizeof *buffer);", f"        status = {operation.c}({again});",
                 "    }", "    text.units = buffer;", "    text.length = (ptrdiff_t)length;", "    if (status != VYR_OK)",
                 "        show_failure(status);", "    else", "        show_text(text);"]
        made += ['    show_word("/");', "    show_signed(number);"] * bool(more)
        made.append("    free(buffer);")
    elif result == "nothing":
        made += [f"    status = {operation.c}({', '.join(given)});", "    if (status != VYR_OK)", "        show_failure(status);",
                 "    else", '        show_word("done");']
    elif is_list(item, result):
        c = record.c if record else "vyr_text"
        lines += ["    vyr_list list = 0;", "    size_t count = 0;", "    size_t index;", f"    {c} found = {{0}};"]
        made += [f"    status = {operation.c}({', '.join(given + ['&list'])});", "    if (status != VYR_OK)",
                 "        show_failure(status);"] + shown_list("list", record)
    else:
        pointer = "0" if C[result].endswith("*") else "{0}" if result in ("date_time", "guid") else "0"
        lines.append(f"    {C[result]} result = {pointer};")
        made += [f"    status = {operation.c}({', '.join(given + ['&result'])});", "    if (status != VYR_OK)",
                 "        show_failure(status);", "    else", f"        {shown_in_c(result, 'result')}"]
        if result == "xml_document":
            made += ["    if (vyr_xml_release(result) != VYR_OK)", '        show_word("not released");']
        for number, (kind, _) in enumerate(operation.arguments):
            if kind.endswith("[]&"):
                made += ['    show_word("\\n");'] + shown_list(f"a{number}", record_of(item, kind))
    unused = ["    (void)values;"] if not any("values" in line for line in made) else []
    return lines + made + unused + ["    return all_shown();", "}", ""]


def shown_list(place, record):
    """The statements that show and release a list in C."""
    c = record.c if record else "vyr_text"
    made = [f"    if (status == VYR_OK && vyr_list_get_count({place}, &count) != VYR_OK)", '        show_word("no count");']
    made += ["    found.struct_size = sizeof found;"] * bool(record)
    made += ["    for (index = 0; index < count; ++index) {",
             f"        if ({c}_get({place}, index, &found) != VYR_OK)", '            show_word("no record");']
    shown = [shown_in_c(field.kind, f"found.{field.c}") for field in record.fields] if record else ["show_text(found);"]
    for number, statement in enumerate(shown):
        made += ['        show_word("|");'] * bool(number) + [f"        {statement}"]
    return made + ['        show_word("\\n");', "    }", f"    if (status == VYR_OK && vyr_list_release({place}) != VYR_OK)",
                   '        show_word("not released");']


def write_comparison(classes):
    classes = [item for item in classes if not item.is_own]
    lines = [f"// Calls each operation through C and in C++ with the same values; {NOTE}.", "// clang-format off",
             '#include "SameInC.h"', '#include "SameValues.h"', ""]
    lines += [f"#include <{item.header}>" for item in classes]
    lines += ["", "using namespace VyrLibraryFuncs;", "", "namespace VyrCTests {", ""]
    for item in classes:
        for record in taken_records(item):
            lines += [f"inline {record.cpp} Make(Values& values, const {record.cpp}*)", "{", f"    {record.cpp} record;"]
            lines += [f"    record.{field.name} = values.Next<{CPP[field.kind]}>();" for field in record.fields]
            lines += ["    return record;", "}"]
    for _, record in given_records(classes):
        lines += [f"inline std::string Show(const {record.cpp}& record)", "{", "    return "
                  + ' + "|" + '.join(f"Show(record.{field.name})" for field in record.fields) + ";", "}"]
    lines += ["", "} // namespace VyrCTests", "", '#include "SameCalls.h"', "", "using namespace VyrCTests;", ""]
    for operation in compared(classes):
        lines += compared_call(operation)
    return "\n".join(lines)


def compared_call(operation):
    """The test that compares one operation."""
    item, result = operation.owner, operation.result
    lines, own, lists = [], [], []
    for number, (kind, name) in enumerate(operation.arguments):
        record, value = record_of(item, kind), f"a{number}"
        special = chosen(operation, kind, name)
        if special:
            const = "" if kind in ("list_control", "document", "value?") else "const "
            lines.append(f"        {const}auto {value} = values.{special[2]}();")
        elif kind.endswith("[]&"):
            lines.append(f"        {cpp_type(kind)[:-1].replace(record.name, record.cpp)} {value};")
            lists.append(value)
        elif kind.endswith("[]"):
            cpp = CPP.get(kind[:-2], record.cpp if record else "")
            lines.append(f"        const std::vector<{cpp}> {value}{{values.Next<{cpp}>(), values.Next<{cpp}>()}};")
        else:
            lines.append(f"        const auto {value} = values.Next<{record.cpp if record else CPP[kind]}>();")
        own.append({"file_time?": f"{value} ? &*{value} : nullptr", "value?": f"{value}.Get()"}.get(
            kind, f"&{value}" if value in lists else value))
    call = f"{item.name}::{operation.name}({', '.join(own)})"
    if operation.repeats:
        call = f"Each({own[0]}, &{item.name}::{operation.repeats.name})"
    if record_of(item, result) and "[]" not in result:
        call = f"std::vector{{{call}}}"
    values = "values" if any("values." in line for line in lines) else ""
    shown = f"ShowCpp([&] {{ return {call}; }})"
    if lists:
        lines.append(f"        const std::string given = {shown};")
        shown = "given" + "".join(f" + '\\n' + Show({value})" for value in lists)
    return [f"TEST(SameInCAndCpp, {operation.c[4:]})", "{", f"    ExpectSame(&same_{operation.c[4:]}, [](Values& {values}) {{", *lines,
            f"        return {shown};", f"    }}{parts(operation)});", "}", ""]


# The layout, for every compiler with 64-bit pointers.

SIZES = {"int32_t": (4, 4), "uint32_t": (4, 4), "int64_t": (8, 8), "uint64_t": (8, 8), "intptr_t": (8, 8), "size_t": (8, 8),
         "double": (8, 8), "pointer": (8, 8), "vyr_text": (16, 8), "vyr_date_time": (16, 8), "vyr_guid": (16, 4),
         "vyr_rect": (16, 4), "vyr_text_and_number": (24, 8)}
FIXED = {"vyr_text": [("pointer", "units"), ("size_t", "length")],
         "vyr_date_time": [("double", "days"), ("int32_t", "status")],
         "vyr_rect": [("int32_t", name) for name in ("left", "top", "right", "bottom")],
         "vyr_text_and_number": [("vyr_text", "text"), ("int32_t", "number")],
         "vyr_value": [("size_t", "struct_size"), ("int32_t", "type"), ("int64_t", "number"), ("double", "real"),
                       ("vyr_text", "text"), ("pointer", "bytes"), ("size_t", "bytes_count"), ("vyr_guid", "guid")]}


def structures(classes):
    """All structures: their names, and their fields' types and names in C."""
    yield from FIXED.items()
    for item in classes:
        for record in item.records.values():
            yield record.c, [("size_t", "struct_size")] + [(C[field.kind], field.c) for field in record.fields]


def layout(fields):
    """The offsets of the fields and the size of the structure, by the rule that C's compilers share."""
    offsets, at, widest = {}, 0, 1
    for kind, name in fields:
        size, alignment = SIZES[kind]
        at = -(-at // alignment) * alignment
        offsets[name] = at
        at += size
        widest = max(widest, alignment)
    return offsets, -(-at // widest) * widest


def write_layout(classes):
    lines = [f"/* What every structure must look like; {NOTE}. It is only compiled. */", "#include <VyrC/vyr.h>", ""]
    for name, fields in structures(classes):
        offsets, size = layout(fields)
        lines.append(f'_Static_assert(sizeof({name}) == {size}, "{name}");')
        lines += [f'_Static_assert(offsetof({name}, {field}) == {offset}, "{name}.{field}");' for field, offset in offsets.items()]
    return "\n".join(lines + ['_Static_assert(sizeof(vyr_guid) == 16, "vyr_guid");', ""])
