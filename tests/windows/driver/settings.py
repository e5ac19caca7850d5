"""Reads Kestrel's settings file, to know what a toolbar has to show."""

import configparser

SEPARATOR = 2  # value of `type`

KEYS = ("name", "path", "tooltip", "param", "icon", "dialog", "type")

SECTIONS = {"board": "board", "schematic": "schem", "library": "libr"}  # by the stand-in's names of the kinds


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
