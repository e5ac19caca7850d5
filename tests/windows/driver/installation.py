"""The installer of a package and what it leaves: files, the registry, the start menu."""

import re
import zipfile

from driver import paths
from driver.waiting import poll

KEY = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion"
USER = "C:\\users\\root"
DEFAULT = USER + "\\AppData\\Local\\Programs\\Kestrel"
SHORTCUT = USER + "\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Kestrel.lnk"
SETUP = "C:\\packages\\setup.exe"


class Installation:
    def __init__(self, stage):
        self._stage = stage
        packages = paths.PROJECT / "dist" / "packages"
        setup = list(packages.glob(f"kestrel-*-{stage.bits}-setup.exe"))
        packed = list(packages.glob(f"kestrel-*-{stage.bits}.zip"))
        if len(setup) != 1 or len(packed) != 1:
            raise RuntimeError("there are no packages: packaging/packages.py makes them")
        self.version = packed[0].name.split("-")[1]
        with zipfile.ZipFile(packed[0]) as portable:
            self.portable = {name.split("/", 1)[1]: portable.read(name) for name in portable.namelist()}
        # What starts the program from the zip has no place beside an entry in the start menu.
        self.files = {name: content for name, content in self.portable.items() if not name.startswith("Start ")}
        stage.prefix.path(SETUP).parent.mkdir()
        stage.prefix.path(SETUP).write_bytes(setup[0].read_bytes())

    def run(self, line):
        """Runs a command line to its end and gives the exit code."""
        return self._stage.witness.exit_code(self._stage.witness.run(line), 60)

    def install(self, options=""):
        return self.run(f"{SETUP} /S{options}")

    def standing(self, folder=DEFAULT):
        """The files in the folder: contents by name."""
        root = self._stage.prefix.path(folder)
        return {path.relative_to(root).as_posix(): path.read_bytes() for path in root.rglob("*") if path.is_file()}

    def registered(self, key):
        """The values of a key below KEY; empty if there is no such key."""
        exported = self._stage.prefix.path("C:\\packages\\key.reg")
        exported.unlink(missing_ok=True)
        self.run(f"reg.exe export {KEY}\\{key} C:\\packages\\key.reg /y")
        text = exported.read_bytes().decode("utf-16") if exported.exists() else ""
        return dict(re.findall(r'^"(\w+)"="?(.*?)"?\r?$', text.replace("\\\\", "\\").replace('\\"', '"'), re.M))

    def uninstall(self):
        """As Windows does it for the user; the uninstaller goes on in a copy of its own, so its end is not heard of."""
        self.run(self.registered("Uninstall\\Kestrel")["QuietUninstallString"])
        return poll(lambda: not self.registered("Uninstall\\Kestrel"))
