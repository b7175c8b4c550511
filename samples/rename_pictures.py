#!/usr/bin/env python3
"""Numbers the pictures of a folder, gives them the first of May 2024 as their date, and writes a report.

Use: rename_pictures.py FOLDER [--apply] [--report FILE]

Without --apply it only shows the names. The package vyr is in VyrC/python; VYR_LIBRARY names its library.
"""
import argparse
import datetime
import html as escaping
import os
import pathlib
import sys

import vyr
from vyr import date_time, filter, html, name

PICTURES = [filter.Condition(enabled=1, text=end, condition=3) for end in (".jpg", ".jpeg", ".png")]
RULE = name.Item(number_text1="trip-", digits=3, start_number=1, step=1)
DATE = datetime.datetime(2024, 5, 1, 12).astimezone()


def plan(folder):
    """The pictures with the paths that they get."""
    pictures = sorted(path for path in folder.iterdir() if filter.is_match_name(path.name, 0, PICTURES))
    RULE.dir_path = os.path.join(folder, "")
    moves = []
    for index, path in enumerate(pictures):
        RULE.extension = name.get_extension(str(path))
        moves.append((path, pathlib.Path(vyr.rename_path(RULE, index))))
    return moves


def apply(moves):
    """Renames what can be renamed without replacing anything."""
    for old, new in moves:
        if new.exists():
            sys.exit(f"{new.name} is there already")
        old.rename(new)
        if not date_time.set_modified_file_date_time(str(new), None, DATE, None):
            print(f"{new.name} keeps its date", file=sys.stderr)


def write_report(moves, file):
    rows = "".join(
        html.get_tr_pair_tag("".join(html.get_td_pair_tag_with_class_name(kind, escaping.escape(path.name))
                                     for kind, path in (("old", old), ("new", new))))
        for old, new in moves)
    page = html.get_doctype_tag() + html.get_html_tag("en") + html.get_body_tag() + html.get_table_tag("", "")
    page += rows + html.get_table_closing_tag() + html.get_body_closing_tag() + html.get_html_closing_tag()
    file.write_text(page, encoding="utf-8")


def main():
    arguments = argparse.ArgumentParser(description="Numbers the pictures of a folder.")
    arguments.add_argument("folder", type=pathlib.Path)
    arguments.add_argument("--apply", action="store_true")
    arguments.add_argument("--report", type=pathlib.Path)
    chosen = arguments.parse_args()
    moves = plan(chosen.folder)
    for old, new in moves:
        print(f"{old.name} -> {new.name}")
    if chosen.apply:
        apply(moves)
    if chosen.report:
        write_report(moves, chosen.report)


main()
