#!/usr/bin/env python3
"""Makes the packages of both program folders: packages.py [TARGET], by default dist/packages.

For each of dist/win32 and dist/win64 a portable zip and an installer, one zip with which a user checks both on a Windows
of his own, and SHA256SUMS of all; beside them, in `manifests`, what package managers need. The same tree gives the
same bytes: names are sorted, and every time in a package is that of the last commit (or SOURCE_DATE_EPOCH).
"""

import hashlib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
HERE = ROOT / "packaging"
sys.path[:0] = [str(HERE), str(ROOT / "samples"), str(ROOT / "tools")]

import manifests  # noqa: E402, the way to it stands above
import samples  # noqa: E402, the way to it stands above
from version import version  # noqa: E402

BITS = {"win32": 32, "win64": 64}
BUILT = {"win32": "build/i686/bin", "win64": "build/x86_64/bin"}  # programs that users do not install
OF_CHECK = ("kestrel-check.exe", "contract-tests.exe", "eagle.exe", "witness.exe", "contract-data")
# Where a zip has been looked into and not unpacked, of the file that starts the program.
UNPACK = {"en": "Please unpack the whole zip into a folder of yours first, then start this file there.",
          "de": "Bitte entpacken Sie zuerst das ganze Zip-Archiv in einen eigenen Ordner und starten Sie dann diese Datei dort."}
PICTURES = {"ICON": "kestrel.ico", "SIDE": "installer.bmp"}  # of the installer
MANIFESTS = "manifests"  # folder beside the packages
ZIP_BEGINS = 315532800  # 1980: a zip knows no earlier time


def names():
    """Of the packages, in their order."""
    return [*(f"kestrel-{version()}-{bits}{end}" for bits in BITS for end in (".zip", "-setup.exe")), check_name()]


def check_name():
    return f"kestrel-{version()}-check.zip"


def moment():
    """Seconds since 1970 that every file in a package bears."""
    given = os.environ.get("SOURCE_DATE_EPOCH")
    if not given:
        done = subprocess.run(["git", "-C", ROOT, "log", "-1", "--format=%ct"], capture_output=True, text=True, check=False)
        given = done.stdout.strip()
    return max(int(given or 0), ZIP_BEGINS) // 2 * 2  # a zip counts in steps of two seconds


def windows_text(path):
    """A text file of the project with the line ends of Windows."""
    return path.read_text(encoding="utf-8").replace("\n", "\r\n").encode("utf-8")


def fill(stage, bits, when):
    """Lays out the program folder as the user gets it. Gives its files, sorted."""
    shutil.copytree(ROOT / "dist" / bits, stage)
    # A program folder that has been used here holds settings; they are nobody else's.
    (stage / "kestrel.ini").unlink(missing_ok=True)
    (stage / "LICENSE.txt").write_bytes(windows_text(ROOT / "LICENSE"))
    (stage / "README.txt").write_bytes(b"\xef\xbb\xbf" + windows_text(HERE / "README.txt"))
    for language, folder in samples.FOLDERS.items():
        (stage / "samples" / folder).mkdir()
        (stage / "samples" / folder / "kestrel.ini").write_bytes(samples.settings(language))
    return files_in(stage, when)


def add_starts(stage, when):
    """What the user of the zip starts, for each language. Gives all files, sorted."""
    text = windows_text(HERE / "start.cmd").decode("ascii")
    for language, folder in samples.FOLDERS.items():
        start = text.replace("@FOLDER@", folder).replace("@UNPACK@", UNPACK[language])
        (stage / f"Start {folder}.cmd").write_bytes(start.encode("ascii"))
    return files_in(stage, when)


def fill_check(stage, when):
    """Lays out the check: what the user starts, and a folder of programs for each bitness. Gives its files, sorted."""
    stage.mkdir()
    (stage / "check.cmd").write_bytes(windows_text(HERE / "check" / "check.cmd"))
    (stage / "README.txt").write_bytes(b"\xef\xbb\xbf" + windows_text(HERE / "check" / "README.txt"))
    (stage / "LICENSE.txt").write_bytes(windows_text(ROOT / "LICENSE"))
    for bits, built in BUILT.items():
        folder = stage / "kit" / bits
        shutil.copytree(ROOT / "dist" / bits, folder / "kestrel")
        (folder / "kestrel" / "kestrel.ini").write_bytes(samples.settings("en"))
        for name in OF_CHECK:
            path = ROOT / built / name
            (shutil.copytree if path.is_dir() else shutil.copyfile)(path, folder / name)
    return files_in(stage, when)


def files_in(stage, when):
    """Its files, sorted, which now bear this time."""
    files = sorted((path.relative_to(stage) for path in stage.rglob("*") if path.is_file()), key=Path.as_posix)
    for file in files:
        os.utime(stage / file, (when, when))
    return files


def make_zip(target, folder, stage, files, when):
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        for file in files:
            entry = zipfile.ZipInfo(f"{folder}/{file.as_posix()}", time.gmtime(when)[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 0  # made for Windows: no Unix rights
            packed.writestr(entry, (stage / file).read_bytes(), compresslevel=9)


def file_lists(folder, files):
    """What the installer's script includes: which files it lays down, and which the uninstaller removes - those only."""
    install, remove = [], []
    folders = sorted({file.parent for file in files}, key=lambda path: path.parts)
    for place in folders:
        windows = "\\".join(("$INSTDIR", *place.parts))
        install.append(f'SetOutPath "{windows}"')
        for file in files:
            if file.parent == place:
                install.append(f'File "{file.as_posix()}"')
                remove.append(f'Delete "{windows}\\{file.name}"')
    remove += ['RMDir "' + "\\".join(("$INSTDIR", *place.parts)) + '"' for place in reversed(folders) if place.parts]
    (folder / "install.nsh").write_text("\n".join(install) + "\n", encoding="utf-8")
    (folder / "remove.nsh").write_text("\n".join(remove) + "\n", encoding="utf-8")


def make_installer(target, stage, files, bits, when):
    lists = stage.parent
    file_lists(lists, files)
    # The installer's page breaks the lines itself.
    licence = re.sub(r"(?<!\n)\n(?!\n)", " ", (ROOT / "LICENSE").read_text(encoding="utf-8"))
    (lists / "licence.txt").write_text(licence, encoding="utf-8", newline="\r\n")
    # A picture of a page is carried as a file, with its time.
    for name in PICTURES.values():
        shutil.copyfile(ROOT / "resources" / name, lists / name)
        os.utime(lists / name, (when, when))
    size = sum((stage / file).stat().st_size for file in files)
    defines = {"VERSION": version(), "BITS": BITS[bits], "TARGET": target.resolve(), "LISTS": lists, "HERE": HERE,
               "SIZE_KB": -(-size // 1024), **{define: lists / name for define, name in PICTURES.items()}}
    done = subprocess.run(["makensis", "-NOCD", "-V2", "-WX", "-INPUTCHARSET", "UTF8",
                           *(f"-D{name}={value}" for name, value in defines.items()), HERE / "kestrel.nsi"],
                          cwd=stage, env={**os.environ, "SOURCE_DATE_EPOCH": str(when)},
                          capture_output=True, text=True, check=False)
    if done.returncode != 0:
        sys.exit(f"makensis failed:\n{done.stdout}{done.stderr}")


def make(target):
    target.mkdir(parents=True, exist_ok=True)
    for old in target.glob("kestrel-*"):
        old.unlink()  # of another version
    when = moment()
    for bits in BITS:
        with tempfile.TemporaryDirectory() as scratch:
            stage = Path(scratch) / "program"
            files = fill(stage, bits, when)
            make_installer(target / f"kestrel-{version()}-{bits}-setup.exe", stage, files, bits, when)
            make_zip(target / f"kestrel-{version()}-{bits}.zip", f"Kestrel-{version()}", stage, add_starts(stage, when), when)
    with tempfile.TemporaryDirectory() as scratch:
        stage = Path(scratch) / "check"
        make_zip(target / check_name(), f"Kestrel-{version()}-check", stage, fill_check(stage, when), when)
    sums = [f"{hashlib.sha256((target / name).read_bytes()).hexdigest()}  {name}\n" for name in names()]
    (target / "SHA256SUMS").write_text("".join(sums), encoding="ascii")
    manifests.make(target, target / MANIFESTS, version())


def main():
    target = Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT / "dist" / "packages"
    make(target)
    for name in names():
        print(f"   {(target / name).stat().st_size / 1024:5.0f} KB  {name}")


if __name__ == "__main__":
    main()
