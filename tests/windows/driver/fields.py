"""Lines of fields separated by tabs, as the programs of the stage read and write them (see text.h)."""

_ESCAPES = {"\\": "\\\\", "\t": "\\t", "\r": "\\r", "\n": "\\n"}
_LETTERS = {"t": "\t", "r": "\r", "n": "\n"}


def joined(fields):
    return "\t".join("".join(_ESCAPES.get(letter, letter) for letter in str(field)) for field in fields)


def _plain(field):
    result, letters = [], iter(field)
    for letter in letters:
        if letter == "\\":
            letter = next(letters, "")
            letter = _LETTERS.get(letter, letter)
        result.append(letter)
    return "".join(result)


def split(line):
    return [_plain(field) for field in line.split("\t")]


def lines_of(text):
    """The fields of each whole line; what follows the last line's end is still being written."""
    return [split(line) for line in text.split("\n")[:-1]]
