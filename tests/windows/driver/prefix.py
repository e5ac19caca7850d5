"""A fresh Wine prefix: a C: drive of its own for a run."""

import shutil
import subprocess
from pathlib import Path

from driver.paths import TOOLS


def _wine_prefix(*arguments):
    done = subprocess.run([TOOLS / "wine-prefix.sh", *arguments], capture_output=True, text=True, check=False)
    if done.returncode != 0:
        raise RuntimeError(f"wine-prefix.sh {arguments[0]}: {done.stderr.strip()}")
    return done.stdout.strip()


class Prefix:
    """Use it in a with statement: at its end all that runs in the prefix is ended and the prefix removed. `locale` is the
    user's, such as de_DE: it is the language of Windows' own dialogs, and the code page is its. `channel` is one of Wine's own, such as htmlhelp, to
    be listened to: what it says stands in the file `heard`. `registry` are settings of the user's, {key: {name: value}}."""

    def __init__(self, display, locale=None, channel=None, registry=None):
        self._display = display
        self.name = _wine_prefix("make")
        self.drive = Path(_wine_prefix("folder", self.name))
        self._register(registry or {})
        self._options = ["--locale", locale] if locale else []
        self._channel = channel
        self.heard = self.drive.parent / "heard.txt"

    def _register(self, registry):
        """Before anything runs, the user's registry is a text file; what stands last in it holds."""
        with (self.drive.parent / "user.reg").open("a", encoding="ascii") as file:
            for key, values in registry.items():
                print(f"\n[{key}]".replace("\\", "\\\\"), file=file)
                for name, value in values.items():
                    print(f'"{name}"=' + (f"dword:{value:08x}" if isinstance(value, int) else f'"{value}"'), file=file)

    def path(self, windows_path):
        """Where C:\\... stands on this machine."""
        return self.drive.joinpath(*windows_path.removeprefix("C:\\").split("\\"))

    def inside(self, windows_path):
        """The same as programs in the sandbox see it that know no drives."""
        return f"/runs/{self.name}/drive_c/" + windows_path.removeprefix("C:\\").replace("\\", "/")

    def put(self, sources, windows_folder):
        """Copies files and folders into a folder, which is made."""
        folder = self.path(windows_folder)
        folder.mkdir(parents=True, exist_ok=True)
        for source in sources:
            if source.is_dir():
                shutil.copytree(source, folder / source.name, dirs_exist_ok=True)
            else:
                shutil.copy(source, folder)

    def start(self, program, *arguments, output=subprocess.DEVNULL):
        """Starts a Windows program and does not wait for it. `output` is where what it prints goes."""
        command = [TOOLS / "wine-run.sh", "--prefix", self.name, *self._options, program, *arguments]
        environment = dict(self._display.environment)
        if self._channel:
            environment["WINEDEBUG"] = f"-all,+{self._channel}"
        with self.heard.open("ab") as heard:
            return subprocess.Popen(command, cwd="/", env=environment, stdin=subprocess.DEVNULL,
                                    stdout=output, stderr=heard if self._channel else subprocess.DEVNULL)

    def close(self):
        _wine_prefix("drop", self.name)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
