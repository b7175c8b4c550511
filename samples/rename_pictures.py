#!/usr/bin/env python3
"""Numbers the pictures of a folder and dates them noon of the first of May 2024; lists the programs of a Windows' hive.

Use: rename_pictures.py FOLDER [--apply] [--hive SOFTWARE] [--report FILE]     (it shows the names without --apply)
"""
import argparse
import datetime
import html as escaping
import pathlib
import sys

from vyr import date_time, filter, host_registry, html, name, programs

PICTURES = [filter.Condition(enabled=1, text=end, condition=3) for end in (".jpg", ".jpeg", ".png")]
DATE = datetime.datetime(2024, 5, 1, 12).astimezone()


def plan(folder):
    pictures = sorted(path for path in folder.iterdir() if filter.is_match_name(path.name, 0, PICTURES))
    rules = [name.Item(dir_path=f"{folder.resolve()}/", number_text1="trip-", digits=3, start_number=1, step=1, index=index,
                       extension=path.suffix) for index, path in enumerate(pictures)]
    return list(zip(pictures, map(pathlib.Path, name.get_rename_file_paths(rules))))


def apply(moves):
    """Renames what can be renamed without replacing anything."""
    for old, new in moves:
        if new.exists():
            sys.exit(f"{new.name} is there already")
        old.rename(new)
        if not date_time.set_modified_file_date_time(str(new), None, DATE, None):
            print(f"{new.name} keeps its date", file=sys.stderr)


def list_programs(hive):
    if host_registry.show_hives(host_registry.HiveFiles(software=str(hive))).outcome != 0:
        sys.exit(f"{hive} is no hive")
    return [(item.display_name, item.display_version) for item in programs.get_programs_features_items_list(0, 1)]


def write_report(rows, file):
    cells = ["".join(html.get_td_pair_tag(escaping.escape(text)) for text in row) for row in rows]
    file.write_text(html.get_doctype_tag() + html.get_html_tag("en") + html.get_body_tag() + html.get_table_tag("", "")
                    + "".join(map(html.get_tr_pair_tag, cells)) + html.get_table_closing_tag()
                    + html.get_body_closing_tag() + html.get_html_closing_tag(), encoding="utf-8")


parser = argparse.ArgumentParser(description="Numbers the pictures of a folder.")
parser.add_argument("folder", type=pathlib.Path)
parser.add_argument("--apply", action="store_true")
parser.add_argument("--hive", type=pathlib.Path, help="the file SOFTWARE of a Windows that is not running")
parser.add_argument("--report", type=pathlib.Path)
chosen = parser.parse_args()
moves = plan(chosen.folder)
rows = [(old.name, new.name) for old, new in moves] + (list_programs(chosen.hive) if chosen.hive else [])
print("\n".join(" -> ".join(row) for row in rows))
if chosen.apply:
    apply(moves)
if chosen.report:
    write_report(rows, chosen.report)
