"""The button lists that a new user begins with: the tables beside this file, as settings files of each language.

A table has a line for each button: its icon, whether it types a `command` or starts a `program`, whether it asks for
nothing, an `input` or a `file`, what it types or starts, and its texts in each language. A line `gap` is a separator.
"""

import csv
import re
from pathlib import Path

HERE = Path(__file__).resolve().parent

FOLDERS = {"en": "English", "de": "Deutsch"}  # of the settings files in a package
LANGUAGES = {"en": 10000, "de": 0}  # values of the key `language`
LISTS = {"board": "board", "schematic": "schem", "library": "libr"}  # the table of each section
KINDS = {"program": 0, "command": 1}
DIALOGS = {"nothing": 0, "input": 1, "file": 2}
GAP = {"name": 34 * "-", "path": "", "tooltip": "", "param": "", "icon": "", "dialog": 0, "type": 2}
EDITOR_ICONS = ("brd", "sch", "lbr")  # they stand beside the program, all others in one library
LIBRARY = HERE.parent / "resources" / "samples" / "icons.rc"
ICONS = re.findall(r'^\d+ ICON "([\w-]+)\.ico"', LIBRARY.read_text(encoding="ascii"), re.M)


def icon_reference(name):
    """As a settings file has it."""
    file, place = (f"{name}.ico", 0) if name in EDITOR_ICONS else ("samples\\icons.dll", ICONS.index(name))
    return f"{{kestrelpath}}\\{file},{place}"


def rows(table, language):
    """The buttons of a list with the keys and values that the settings file has for them."""
    with (HERE / f"{table}.tsv").open(encoding="utf-8", newline="") as file:
        for row in csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE, strict=True):
            if row["icon"] == "gap":
                yield GAP
                continue
            yield {"name": row[f"name:{language}"], "path": row["command"], "tooltip": row[f"tooltip:{language}"],
                   "param": row[f"question:{language}"], "icon": icon_reference(row["icon"]),
                   "dialog": DIALOGS[row["asks"]], "type": KINDS[row["kind"]]}


def settings(language):
    """A whole settings file as Windows reads it."""
    lines = ["[global]", f"language={LANGUAGES[language]}", "mend=1"]
    for table, section in LISTS.items():
        lines += ["", f"[{section}]"]
        for number, row in enumerate(rows(table, language), 1):
            lines += [f"{number}{key}={value}" for key, value in row.items()]
    return "".join(f"{line}\r\n" for line in lines).encode("cp1252")
