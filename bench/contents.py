"""What is in the program: the bytes of each library and of the largest symbols, from the linker's map."""

import collections
import re
import subprocess

import raw
from driver import paths

BUILD = paths.BUILD / "i686"
SYMBOLS = 25
NAMED = {"rc.res": "icons, pictures and dialogs", "dll stuff": "relocations", "crt2.o": "C start-up"}
# A line of the map, its name possibly on a line of its own; what is not in the program has no address.
PLACED = re.compile(r"^ (\S+)?\s+0x([0-9a-f]+)\s+0x([0-9a-f]+)\s+(\S.*)$")
ALONE = re.compile(r"^ (\.\S+)\s*$")


def _linked_map():
    """Links the program once more, beside the other one, for its map."""
    commands = subprocess.run(["ninja", "-C", BUILD, "-t", "commands", "kestrel"], check=True, text=True, stdout=subprocess.PIPE)
    command = commands.stdout.strip().splitlines()[-1].removeprefix(": && ").removesuffix(" && :")
    command = re.sub(r" -Wl,--out-implib,\S+", "", command)
    raw.FOLDER.mkdir(parents=True, exist_ok=True)
    target = raw.FOLDER / "kestrel.map"
    command = command.replace(" -o bin/kestrel.exe", f" -Wl,-Map={target} -o {raw.FOLDER / 'mapped.exe'}")
    subprocess.run(command, shell=True, check=True, cwd=BUILD)
    return target.read_text(errors="replace").split("Linker script and memory map")[1]


def _sections(text):
    """Name, size and source of all that is in the program and in its file."""
    alone = None
    for line in text.splitlines():
        placed = PLACED.match(line)
        if placed:
            name, address, size = placed[1] or alone, int(placed[2], 16), int(placed[3], 16)
            if name and address and size and not name.startswith((".bss", ".debug")):
                yield name, size, placed[4]
        named = ALONE.match(line)
        alone = named[1] if named else None


def _owner(source):
    archive = re.search(r"([^/\\]+)\.a\(", source)
    if archive:
        return f"`{archive[1]}`"
    return next((words for end, words in NAMED.items() if source.endswith(end)), "other")


def _named(section):
    """The symbol of a section of its own; none of one that holds many."""
    symbol = section.partition("$")[2] if "$" in section else ""
    return symbol if symbol.startswith("_Z") else ""


def _readable(symbols):
    done = subprocess.run(["c++filt"], input="\n".join(symbols), check=True, text=True, stdout=subprocess.PIPE)
    return done.stdout.splitlines()


def contents():
    owners, symbols = collections.Counter(), collections.Counter()
    for name, size, source in _sections(_linked_map()):
        owners[_owner(source)] += size
        if _named(name):
            symbols[_named(name)] += size
    largest = symbols.most_common(SYMBOLS)
    lines = ["| Library | Bytes |", "| --- | --- |", *(f"| {owner} | {size:,} |" for owner, size in owners.most_common() if size >= 1024),
             "", "| Symbol | Bytes |", "| --- | --- |"]
    names = _readable(symbol for symbol, _ in largest)
    lines += [f"| `{name[:100]}` | {size:,} |" for name, (_, size) in zip(names, largest)]
    return "\n".join(lines)
