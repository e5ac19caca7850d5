"""The check that users play on a Windows of their own: its zip, its start, and what it leaves."""

import re
import shutil
import zipfile

from driver import paths
from driver.waiting import poll

FOLDER = "C:\\kit"
PRINTED = "C:\\printed.txt"
TEMPORARY = "C:\\users\\root\\AppData\\Local\\Temp"


class CheckKit:
    def __init__(self, stage):
        packed = list((paths.PROJECT / "dist" / "packages").glob("kestrel-*-check.zip"))
        if len(packed) != 1:
            raise RuntimeError("there is no zip of the check: packaging/packages.py makes it")
        self._stage = stage
        self.folder = stage.prefix.path(FOLDER)
        with zipfile.ZipFile(packed[0]) as files:
            top = files.namelist()[0].split("/")[0]
            files.extractall(self.folder.parent)
        (self.folder.parent / top).rename(self.folder)

    def start(self, *arguments, system=64):
        """As a double click does it, but with arguments; `system` is the bitness that Windows seems to have. Gives the
        process."""
        seems = "set PROCESSOR_ARCHITECTURE=x86& set PROCESSOR_ARCHITEW6432=& " if system == 32 else ""
        line = " ".join((FOLDER + "\\check.cmd", *arguments))
        return self._stage.witness.run(f'cmd.exe /c "{seems}{line} > {PRINTED} 2>&1"')

    def run(self, *arguments, system=64, seconds=180):
        """To its end. Gives the exit code, None if it takes longer."""
        return self._stage.witness.exit_code(self.start(*arguments, system=system), seconds)

    def printed(self):
        """Lines that the console shows so far."""
        return self._stage.prefix.path(PRINTED).read_text(encoding="utf-8").splitlines()

    def report(self):
        """All of it so far; empty if there is none."""
        path = self.folder / "kestrel-check.txt"
        return path.read_bytes().decode("utf-8-sig").replace("\r\n", "\n") if path.exists() else ""

    def tells(self, words, seconds=60):
        """Waits until the report has these words."""
        return poll(lambda: words in self.report(), seconds)

    def counts(self):
        """Passed and failed, as its last line tells them; None if it has none."""
        found = re.search(r"^(\d+) passed, (\d+) failed\n\Z", self.report(), re.M)
        return tuple(map(int, found.groups())) if found else None

    def failures(self):
        return [line.strip() for line in self.report().splitlines() if line.startswith("   FAIL")]

    def pictures(self):
        return sorted(self.folder.glob("kestrel-check-*.png"))

    def temporary(self):
        """What stands in the user's temporary folder."""
        folder = self._stage.prefix.path(TEMPORARY)
        return sorted(path.name for path in folder.iterdir()) if folder.exists() else []

    def replace(self, name, source):
        """Another program under the name of one of the kit's."""
        shutil.copyfile(source, self.folder / "kit" / name)
