"""The reference document."""
import re

from .c_interface import declaration, functions
from .description import C, HERE, NOTE


def conventions():
    """The rules for all functions, from the header's first comment."""
    comment = (HERE / "vyr.h.in").read_text().split("*/")[1]
    lines = [re.sub(r"^ \*(?: |$)", "", line) for line in comment.splitlines()]
    # Each rule begins with its subject, and its other lines are indented.
    first = next(number for number, line in enumerate(lines) if line.startswith("Status "))
    joined = []
    for line in lines[first:]:
        rule = re.fullmatch(r"(\S+(?: \S+)?) {2,}(.*)", line)
        joined.append(f"- **{rule[1]}**: {rule[2]}" if rule else "  " + line.strip() if line.startswith("  ") else line)
    return joined


def in_markdown(lines):
    shown = []
    for line in lines:
        match = re.match(r"@param ([\w,]+) +(.*)", line)
        if match:
            shown.append(f"- `{match[1]}`: {match[2]}")
        elif line.startswith("@"):
            word, _, rest = line.partition(" ")
            shown.append(f"- {({'@return': 'Result', '@throws': 'Fails with'}).get(word, word)}: {rest.strip()}")
        else:
            shown.append(line)
            continue
        # A list begins behind an empty line.
        if len(shown) > 1 and shown[-2] and not re.match(r"- |  ", shown[-2]):
            shown.insert(-1, "")
    return shown


def write_reference(classes):
    lines = [f"<!-- {NOTE} -->", "# The interface for C", "",
             "Every operation of the library for C and for languages that call C, in `vyr.h`. The C++ names stand in the headings;",
             "arguments are described by their C++ names, which in C are in small letters with underscores.", ""]
    lines += conventions() + [f"{len(functions(classes))} functions."]
    for item in classes:
        lines += ["", f"## {item.name}", ""] + in_markdown(item.about)
        for record in item.records.values():
            lines += ["", f"### {record.cpp}", "", "| field | type |", "|---|---|"]
            lines += [f"| `{field.c}` | `{C[field.kind]}`{' since ' + field.since if field.since else ''} |" for field in record.fields]
        for operation in item.operations:
            since = f" (since {operation.since})" if operation.since else ""
            lines += ["", f"### {operation.name}{since}", "", "```c", declaration(operation, ";"), "```"]
            if operation.about:
                lines += [""] + in_markdown(operation.about)
    return "\n".join(line.rstrip() for line in lines) + "\n"
