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
    """A header's comment with its arguments and its result as a list."""
    shown, in_list = [], False
    for line in lines:
        command = re.match(r"@(param|return|throws) +(.*)", line)
        if not command:
            in_list = in_list and bool(line)
            shown.append("  " + line.strip() if in_list else line)
            continue
        if not in_list and shown and shown[-1]:
            # A list begins behind an empty line.
            shown.append("")
        in_list = True
        rule = re.sub(r"^(\w+(?:, ?\w+)*) +", r"`\1`: ", command[2]) if command[1] == "param" else command[2]
        shown.append("- " + {"param": "", "return": "Result: ", "throws": "Fails with: "}[command[1]] + rule)
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
