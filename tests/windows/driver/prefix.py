"""A fresh Wine prefix: a C: drive of its own for a run."""

import shutil
import subprocess
from pathlib import Path

from driver.paths import TOOLS


def _wine_prefix(*arguments):
    done = subprocess.run([TOOLS / "wine-prefix", *arguments], capture_output=True, text=True, check=False)
    if done.returncode != 0:
        raise RuntimeError(f"wine-prefix {arguments[0]}: {done.stderr.strip()}")
    return done.stdout.strip()


class Prefix:
    """Use it in a with statement: at its end all that runs in the prefix is ended and the prefix removed."""

    def __init__(self, display):
        self._display = display
        self._name = _wine_prefix("make")
        self.drive = Path(_wine_prefix("folder", self._name))

    def path(self, windows_path):
        """Where C:\\... stands on this machine."""
        return self.drive.joinpath(*windows_path.removeprefix("C:\\").split("\\"))

    def put(self, sources, windows_folder):
        """Copies files and folders into a folder, which is made."""
        folder = self.path(windows_folder)
        folder.mkdir(parents=True, exist_ok=True)
        for source in sources:
            if source.is_dir():
                shutil.copytree(source, folder / source.name, dirs_exist_ok=True)
            else:
                shutil.copy(source, folder)

    def start(self, program, *arguments):
        """Starts a Windows program and does not wait for it."""
        return subprocess.Popen([TOOLS / "wine-run", "--prefix", self._name, program, *arguments],
                                cwd="/", env=self._display.environment, stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def close(self):
        _wine_prefix("drop", self._name)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
