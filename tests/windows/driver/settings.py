"""Kestrel's settings file: reads it, to know what a toolbar has to show, and makes small ones."""

import configparser
import sys

from driver import paths

sys.path.insert(0, str(paths.PROJECT / "samples"))
import samples  # noqa: E402, the way to it stands above

PROGRAM, COMMAND, SEPARATOR = 0, 1, 2  # values of `type`
NONE, INPUT_BOX, FILE_DIALOG = 0, 1, 2  # values of `dialog`

KEYS = ("name", "path", "tooltip", "param", "icon", "dialog", "type")

SECTIONS = {"board": "board", "schematic": "schem", "library": "libr"}  # by the stand-in's names of the kinds


def start_set(language="en"):
    """The settings file that a new user begins with."""
    return samples.settings(language).decode("cp1252").replace("\r\n", "\n")


def _parsed(text):
    parser = configparser.ConfigParser(interpolation=None, strict=False)
    parser.read_string(text)
    return parser


def value(text, section, key):
    """Empty if it is not there; upper and lower case are the same."""
    parser = _parsed(text)
    for name in parser.sections():
        if name.lower() == section.lower() and key in parser[name]:
            return parser[name][key]
    return ""


def rows(text, kind):
    """The configured buttons of an editor kind, separators too: dictionaries with name, path, tooltip and so on."""
    section = _parsed(text)[SECTIONS[kind]]
    found = []
    while section.get(f"{len(found) + 1}name"):
        number = len(found) + 1
        found.append({key: section.get(f"{number}{key}", "") for key in KEYS})
    return found


def buttons(text, kind):
    """Those rows that can be clicked."""
    return [row for row in rows(text, kind) if int(row["type"]) != SEPARATOR]


def button(name, path, kind=COMMAND, dialog=NONE, **more):
    """A row for made()."""
    return {"name": name, "path": path, "type": kind, "dialog": dialog, **more}


def made(toolbar=None, **lists):
    """A settings file with options of the section `toolbar` and lists of rows by kind."""
    lines = ["[toolbar]", *(f"{key}={setting}" for key, setting in (toolbar or {}).items())]
    for kind, of_kind in lists.items():
        lines.append(f"[{SECTIONS[kind]}]")
        for number, row in enumerate(of_kind, 1):
            lines += [f"{number}{key}={row.get(key, '')}" for key in KEYS]
    return "\n".join(lines) + "\n"
