"""Tests: calls with wrong arguments, the same calls in C and in C++, and the layout of the structures."""
from .description import C, CPP, HANDLES, NOTE, NUMBERS, given_records, is_list, record_of, snake, taken_records

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
        elif kind == "object":
            groups.append(("0", [("misaligned", f"misaligned {name}")]))
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


def write_comparison(classes):
    # The classes for hosts in C have no others to be compared with.
    classes = [item for item in classes if not item.is_own]
    lines = [f"// Calls each operation through C and in C++ with the same values; {NOTE}.", "// clang-format off",
             '#include "SameValues.h"', ""]
    lines += [f"#include <{item.header}>" for item in classes]
    lines += ["", "using namespace VyrLibraryFuncs;", "", "namespace VyrCTests {", ""]
    for item in classes:
        for record in item.records.values():
            if record in taken_records(item):
                lines += [f"inline {record.cpp} Make(Values& values, const {record.cpp}*)", "{", f"    {record.cpp} record;"]
                lines += [f"    record.{field.name} = values.Next<{CPP[field.kind]}>();" for field in record.fields]
                lines += ["    return record;", "}", f"inline {record.c} InC(const {record.cpp}& record)", "{", f"    {record.c} made{{}};",
                          "    made.struct_size = sizeof made;"]
                lines += [f"    made.{field.c} = {f'record.{field.name}' if field.kind in NUMBERS else f'InC(record.{field.name})'};"
                          for field in record.fields]
                lines += ["    return made;", "}"]
    for _, record in given_records(classes):
        lines += [f"inline std::string Show(const {record.cpp}& record)", "{", "    return "
                  + ' + "|" + '.join(f"Show(record.{field.name})" for field in record.fields) + ";", "}",
                  f"inline std::string Show(const {record.c}& record)", "{", "    return "
                  + ' + "|" + '.join(f"Show(record.{field.c})" for field in record.fields) + ";", "}"]
    lines += ["", "} // namespace VyrCTests", "", '#include "SameCalls.h"', "", "using namespace VyrCTests;", ""]
    # On Windows the library for C has settings of its own, so operations that set them come first in both.
    compared = [operation for item in classes for operation in item.operations if not operation.acts]
    for operation in sorted(compared, key=lambda operation: operation.result != "nothing"):
        lines += compared_calls(operation)
    return "\n".join(line for line in lines if line is not None)


def compared_calls(operation):
    """The test that compares one operation."""
    item = operation.owner
    lines = [f"TEST(SameInCAndCpp, {operation.c[4:]})", "{", "    for (int round = 0; round < rounds; ++round) {",
             "        ExpectSame([&] {", "            Values values(round);"]
    given, own = [], []
    for number, (kind, name) in enumerate(operation.arguments):
        record = record_of(item, kind)
        value = f"a{number}"
        if kind.endswith("[]"):
            cpp = CPP.get(kind[:-2], record.cpp if record else "")
            lines += [f"            const std::vector<{cpp}> {value}{{values.Next<{cpp}>(), values.Next<{cpp}>()}};",
                      f"            const {list_of(item, kind)} c{number}[] = {{InC({value}[0]), InC({value}[1])}};"]
            given.append(f"c{number}, 2")
        elif record or kind == "guid":
            cpp, c = (record.cpp, record.c) if record else ("GUID", "vyr_guid")
            lines += [f"            const auto {value} = values.Next<{cpp}>();",
                      f"            const {c} c{number} = InC({value});"]
            given.append(f"&c{number}")
        elif kind == "text":
            lines.append(f"            const auto {value} = values.Next<CString>();")
            given.append(f"InC({value}).units, InC({value}).length")
        elif kind == "date_time":
            lines.append(f"            const auto {value} = values.Next<COleDateTime>();")
            given.append(f"InC({value}).days, InC({value}).status")
        elif kind == "list_control":
            lines.append(f"            CListCtrl {value};")
            given.append("0")
        elif kind in HANDLES:
            lines.append(f"            const auto {value} = values.Next<{CPP[kind]}>();")
            given.append(f"reinterpret_cast<std::intptr_t>({value})")
        else:
            lines.append(f"            const auto {value} = values.Next<{CPP[kind]}>();")
            given.append(value)
        own.append(value)
    call = f"{item.name}::{operation.name}({', '.join(own)})"
    if operation.repeats:
        call = f"Each({own[0]}, &{item.name}::{operation.repeats.name})"
    result = operation.result
    record = record_of(item, result)
    if result in ("text", "text+int"):
        more = given + ["buffer", "capacity", "length"] + (["&number"] if result == "text+int" else [])
        lines.append("            std::int32_t number = 0;" if result == "text+int" else "")
        seen = "ShowText" if result == "text" else "ShowTextAndNumber"
        extra = ", number" if result == "text+int" else ""
        lines.append(f"            return Pair{{{seen}([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) "
                     f"{{ return {operation.c}({', '.join(more)}); }}{extra}), ShowCpp([&] {{ return {call}; }})}};")
    elif result == "nothing":
        lines.append(f"            return Pair{{ShowStatus({operation.c}({', '.join(given)})), "
                     f"ShowNothing([&] {{ {call}; }})}};")
    elif is_list(item, result):
        c, get = (record.c, f"{record.c}_get") if record else ("vyr_text", "vyr_text_get")
        lines.append(f"            return Pair{{ShowList<{c}>([&](vyr_list* list) "
                     f"{{ return {operation.c}({', '.join(given + ['list'])}); }}, &{get}), "
                     f"ShowCpp([&] {{ return {call if '[]' in result else f'std::vector{{{call}}}'}; }})}};")
    else:
        lines.append(f"            return Pair{{ShowNumber<{C[result]}>([&]({C[result]}* place) "
                     f"{{ return {operation.c}({', '.join(given + ['place'])}); }}), ShowCpp([&] {{ return {call}; }})}};")
    return lines + ["        });", "    }", "}", ""]


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
