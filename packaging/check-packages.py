#!/usr/bin/env python3
"""Makes the packages twice, leaves them in dist/packages and checks them: the same bytes, all that belongs in, nothing
else. Also checks the button lists that come with them. Prints a line for each check and the counts."""

import hashlib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

import checkManifests
import packages
from packages import BITS, ROOT, samples

sys.path.insert(0, str(ROOT / "tests" / "windows"))
from driver import settings  # noqa: E402, the way to it stands above
from driver.checks import Checks  # noqa: E402

TARGET = ROOT / "dist" / "packages"
FILES = {"kestrel.exe", "brd.ico", "sch.ico", "lbr.ico", "EAGLE_Kestrel_Bench.chm", "LICENSE.txt", "README.txt",
         "samples/icons.dll", *(f"samples/{folder}/kestrel.ini" for folder in samples.FOLDERS.values())}
ZIP_FILES = FILES | {f"Start {folder}.cmd" for folder in samples.FOLDERS.values()}
CHECK_FILES = {"check.cmd", "README.txt", "LICENSE.txt",
               *(f"kit/{bits}/{file}" for bits in BITS for file in (
                   "kestrel-check.exe", "contract-tests.exe", "eagle.exe", "witness.exe",
                   *(f"contract-data/{name}" for name in ("profile.tsv", "brd.ico", "sch.ico", "lbr.ico")),
                   *(f"kestrel/{name}" for name in ("kestrel.exe", "kestrel.ini", "brd.ico", "sch.ico", "lbr.ico",
                                                    "EAGLE_Kestrel_Bench.chm", "samples/icons.dll"))))}
WINDOWED = 2  # subsystem of a program
WINDOWS_7 = (6, 1)
# Of a program's header: loaded anywhere, no data run as code, no help of a terminal server's; with 64 bits, anywhere in
# all of their room.
ANYWHERE, WIDELY, NO_DATA_RUN, NO_HELP = 0x40, 0x20, 0x100, 0x8000
FLAGS = {"win32": ANYWHERE | NO_DATA_RUN | NO_HELP, "win64": ANYWHERE | WIDELY | NO_DATA_RUN | NO_HELP}
# The system takes these from its own folder, or, the last, by the manifest; any other it looks for beside the program first.
# It would take those of dialogs, pictures and component objects so too: without them the program starts sooner and is smaller.
SAFE = {"advapi32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "shell32.dll", "user32.dll", "comctl32.dll"}
LONGEST = 254  # characters of a value that come back whole
WAITS = {"window", "ripup", "show", "display", "display none", "edit"}  # commands that take what follows, names or points
NOTATION = re.compile(r"[+^%~(){}\[\]]")  # has a meaning of its own in a command


def utf16(text):
    return text.encode("utf-16-le")


def copy_of_tree(folder):
    """What packages are made of, elsewhere and with other times."""
    for name in ("packaging", "samples", "resources", "tools", "dist/win32", "dist/win64"):
        shutil.copytree(ROOT / name, folder / name, copy_function=shutil.copyfile)
    of_check = [f"{built}/{name}" for built in packages.BUILT.values() for name in packages.OF_CHECK]
    for name in ("CMakeLists.txt", "LICENSE", *of_check):
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        copy = shutil.copytree if (ROOT / name).is_dir() else shutil.copyfile
        copy(ROOT / name, folder / name)


def made_twice(checks):
    with tempfile.TemporaryDirectory() as other:
        copy_of_tree(Path(other))
        for tree, zone in ((ROOT, "UTC0"), (Path(other), "XST-9")):
            environment = {**os.environ, "TZ": zone, "SOURCE_DATE_EPOCH": str(packages.moment())}
            subprocess.run([sys.executable, tree / "packaging" / "packages.py"], check=True, stdout=subprocess.DEVNULL,
                           env=environment)
        for name in packages.names():
            one, two = ((tree / "dist" / "packages" / name).read_bytes() for tree in (ROOT, Path(other)))
            checks.that(one == two, f"{name}: made twice, in another place, the same bytes", f"{len(one)} and {len(two)} bytes")
    seen = sorted(path.name for path in TARGET.iterdir())
    checks.equal(seen, sorted([*packages.names(), "SHA256SUMS", packages.MANIFESTS]), "nothing else stands in dist/packages")
    sums = dict(reversed(line.split()) for line in (TARGET / "SHA256SUMS").read_text().splitlines())
    checks.equal(sums, {name: hashlib.sha256((TARGET / name).read_bytes()).hexdigest() for name in packages.names()},
                 "SHA256SUMS names them all")


def zips(checks):
    for bits in BITS:
        with zipfile.ZipFile(TARGET / f"kestrel-{packages.version()}-{bits}.zip") as packed:
            top = f"Kestrel-{packages.version()}/"
            entries = packed.infolist()
            names = [entry.filename for entry in entries]
            checks.equal(set(names), {top + file for file in ZIP_FILES}, f"{bits}: the zip holds the program folder, whole")
            checks.equal(names, sorted(names), f"{bits}: its names are sorted")
            checks.equal(len({entry.date_time for entry in entries}), 1, f"{bits}: its files bear one time")
            checks.that(packed.testzip() is None, f"{bits}: it can be unpacked")
            built = ROOT / "dist" / bits
            same = [name for name in names if (built / name.removeprefix(top)).is_file()]
            checks.that(all(packed.read(name) == (built / name.removeprefix(top)).read_bytes() for name in same)
                        and top + "kestrel.exe" in same, f"{bits}: its files are those that were built")
            for folder in samples.FOLDERS.values():
                start = packed.read(f"{top}Start {folder}.cmd").decode("ascii")
                named = [line.replace("\\", "/") for line in re.findall(r'"%~dp0([^":]+)', start)]
                missing = {name for name in named if name != "kestrel.ini" and top + name not in names}
                checks.equal(missing, set(), f"{bits}: Start {folder}.cmd names files that are there")
                checks.that(f"samples\\{folder}\\kestrel.ini" in start and "@" not in start.removeprefix("@"),
                            f"{bits}: it begins with the buttons of {folder}")
                checks.that("[ZoneTransfer]\r\necho ZoneId=0\r\n" in start and ".chm:Zone.Identifier\"" in start,
                            f"{bits}: it takes the internet mark off the help")
                checks.equal(start.count("\n"), start.count("\r\n"), f"{bits}: it has the line ends of Windows")
            for file in ("README.txt", "LICENSE.txt"):
                text = packed.read(top + file)
                checks.equal(text.count(b"\n"), text.count(b"\r\n"), f"{bits}: {file} has the line ends of Windows")


def check_zip(checks):
    with zipfile.ZipFile(TARGET / packages.check_name()) as packed:
        top = f"Kestrel-{packages.version()}-check/"
        names = packed.namelist()
        checks.equal(set(names), {top + file for file in CHECK_FILES}, "the check: the zip holds all it needs")
        checks.equal(names, sorted(names), "the check: its names are sorted")
        script = packed.read(top + "check.cmd")
        checks.that(script.isascii() and script.count(b"\n") == script.count(b"\r\n"),
                    "the check: what is started is ASCII with the line ends of Windows, whatever the code page")
        for bits in BITS:
            folder = f"{top}kit/{bits}/"
            checks.equal(packed.read(folder + "kestrel/kestrel.exe"), (ROOT / "dist" / bits / "kestrel.exe").read_bytes(),
                         f"the check: {bits}: the program is the one that is installed")
            own = packed.read(folder + "kestrel-check.exe")
            checks.that(b"PerMonitorV2" in own and b'level="asInvoker"' in own,
                        f"the check: {bits}: it knows each screen's resolution and asks for no administrator")
            checks.that(utf16(packages.version()) in own, f"the check: {bits}: it bears the project's version")
            foreign = [name for name in names if name.startswith(folder) and str(ROOT).encode() in packed.read(name)]
            checks.equal(foreign, [], f"the check: {bits}: nothing tells where it was built")


def imported(bits):
    """The libraries that the system loads with the program, in lower case."""
    told = subprocess.run(["objdump", "-p", ROOT / "dist" / bits / "kestrel.exe"], check=True, capture_output=True, text=True)
    return {name.lower() for name in re.findall(r"DLL Name: (\S+)", told.stdout)}


def programs(checks):
    for bits in BITS:
        program = (ROOT / "dist" / bits / "kestrel.exe").read_bytes()
        installer = (TARGET / f"kestrel-{packages.version()}-{bits}-setup.exe").read_bytes()
        for name, data, texts in (("kestrel.exe", program, ("Kestrel, the button bar for EAGLE", "Kestrel, die Knopfleiste für EAGLE")),
                                  ("the installer", installer, ("Installs Kestrel", "Installiert Kestrel"))):
            checks.that(all(utf16(text) in data for text in texts), f"{bits}: {name} describes itself in both languages")
            checks.that(utf16(packages.version()) in data, f"{bits}: {name} bears the project's version")
            checks.that(b'level="asInvoker"' in data, f"{bits}: {name} asks for no administrator")
        checks.that(f'name="Kestrel" version="{packages.version()}.0"'.encode() in program, f"{bits}: so does its manifest")
        checks.that(re.search(rb"<dpiAware [^>]*>true</dpiAware>\s*<dpiAwareness [^>]*>PerMonitorV2, system</dpiAwareness>", program),
                    f"{bits}: which says that it knows each screen's resolution")
        header = int.from_bytes(program[0x3C:0x40], "little")
        checks.equal(program[header + 8:header + 12], bytes(4), f"{bits}: kestrel.exe does not hold the time of its making")
        checks.equal(program[header + 0x5C], WINDOWED, f"{bits}: kestrel.exe opens no console")
        version = tuple(int.from_bytes(program[header + place:header + place + 2], "little") for place in (0x48, 0x4A))
        checks.equal(version, WINDOWS_7, f"{bits}: it is made for Windows 7 and later")
        flags = int.from_bytes(program[header + 0x5E:header + 0x60], "little")
        checks.equal(flags, FLAGS[bits], f"{bits}: its header asks for the system's protections")
        checks.that(b"winpthreads" not in program, f"{bits}: it is linked over the system's own threads")
        checks.equal(imported(bits) - SAFE, set(),
                     f"{bits}: it starts with no library that another's could stand in for, or that only a dialog needs")
        checks.that(not (ROOT / "dist" / bits / "kestrel.ini").exists(), f"{bits}: the program folder has no settings of its own")


def changes(checks):
    newest = re.search(r"^## (\S+)", (ROOT / "CHANGELOG.md").read_text(encoding="utf-8"), re.M)
    checks.equal(newest and newest[1], packages.version(), "CHANGELOG.md begins with the project's version")


def there(file, place):
    """Whether a file of the program folder has an icon at this place."""
    if file == "samples\\icons.dll":
        return place < len(samples.ICONS)
    return file in FILES and place == 0


def icons(checks):
    drawn = {path.stem for path in (ROOT / "resources" / "samples").glob("*.ico")}
    checks.equal(set(samples.ICONS), drawn, "icons.dll is made of every icon for buttons")
    checks.equal(len(set(samples.ICONS)), len(samples.ICONS), "each stands in it once")
    for bits in BITS:
        listed = subprocess.run(["wrestool", "--list", "--type=group_icon", ROOT / "dist" / bits / "samples" / "icons.dll"],
                                check=True, capture_output=True, text=True).stdout
        places = [int(number) for number in re.findall(r"--name=(\d+)", listed)]
        checks.equal(places, list(range(1, len(samples.ICONS) + 1)), f"{bits}: icons.dll has them in their order")


def lists(checks):
    both = {}
    for language, folder in samples.FOLDERS.items():
        text = samples.settings(language).decode("cp1252")
        checks.equal(int(settings.value(text, "global", "language")), samples.LANGUAGES[language], f"{folder}: the language")
        checks.equal(settings.value(text, "global", "mend"), "1", f"{folder}: with the mends")
        for kind, section in settings.SECTIONS.items():
            rows = settings.rows(text, kind)
            keys = len(re.findall(r"^\d+\w+=", text.split(f"[{section}]")[1].split("[")[0], re.M))
            checks.equal(len(rows) * len(settings.KEYS), keys, f"{folder}, {kind}: the rows follow each other, each with all keys")
            buttons = [row for row in rows if int(row["type"]) != settings.SEPARATOR]
            names = [row["name"] for row in buttons]
            checks.equal(len(set(names)), len(names), f"{folder}, {kind}: {len(names)} buttons, each with a name of its own")
            pictures = [row["icon"] for row in buttons]
            checks.equal(len(set(pictures)), len(pictures), f"{folder}, {kind}: and an icon of its own")
            texts = [value for row in rows for value in row.values()]
            checks.that(max(map(len, texts)) <= LONGEST, f"{folder}, {kind}: no value is cut on reading")
            icons = [re.fullmatch(r"\{kestrelpath\}\\([^,]+),(\d+)", row["icon"]) for row in buttons]
            missing = [row["icon"] for row, icon in zip(buttons, icons) if not icon or not there(icon[1], int(icon[2]))]
            checks.equal(missing, [], f"{folder}, {kind}: every icon stands in the program folder")
            bad = [row["name"] for row in buttons if not row["path"] or not row["tooltip"]
                   or (int(row["dialog"]) != settings.NONE) != bool(row["param"]) or NOTATION.search(row["path"])]
            checks.equal(bad, [], f"{folder}, {kind}: every button has what it needs")
            waiting = [row["name"] for row in buttons if row["path"] in WAITS and int(row["dialog"]) == settings.NONE]
            checks.equal(waiting, [], f"{folder}, {kind}: no command waits for more than it is given")
            programs_of = [row["path"] for row in buttons if int(row["type"]) == settings.PROGRAM]
            checks.that(all(re.match(r"[A-Z]:\\", path) for path in programs_of),
                        f"{folder}, {kind}: a program has its whole path, since it is not searched for", programs_of)
            both.setdefault(kind, []).append([[row[key] for key in ("path", "icon", "dialog", "type")] for row in rows])
    for kind, (one, other) in both.items():
        checks.equal(one, other, f"{kind}: the buttons do the same in both languages")


def main():
    checks = Checks()
    made_twice(checks)
    zips(checks)
    check_zip(checks)
    programs(checks)
    checkManifests.check(checks, TARGET, TARGET / packages.MANIFESTS, packages.version())
    changes(checks)
    icons(checks)
    lists(checks)
    print(checks.summary())
    return 1 if checks.failed else 0


if __name__ == "__main__":
    sys.exit(main())
