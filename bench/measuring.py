"""Windows programs whose CPU time and memory are measured from outside, the Wine server's part of it among it."""

import os
import re
import resource
import select
import signal
import subprocess
import time
from pathlib import Path

from driver import paths
from driver.prefix import Prefix

BITS = "win32"
FOLDER = "C:\\bench"
START = 60  # seconds until a program that is to stay says that it is ready
LOOK_EVERY = 0.01  # seconds between two looks at the tray


def processes(prefix, program):
    """Folders in /proc of those that run in the prefix, and there alone: others may run the same program."""
    mark = f"WINEPREFIX=/runs/{prefix.name}".encode()
    found = []
    for process in Path("/proc").glob("[0-9]*"):
        try:
            if (process / "comm").read_text().startswith(program) and mark in (process / "environ").read_bytes().split(b"\0"):
                found.append(process)
        except OSError:
            continue  # it has ended
    return found


def cpu_seconds(process):
    """CPU time of a process so far: of its threads, exact where the kernel tells."""
    try:
        return sum(int((thread / "schedstat").read_text().split()[0]) for thread in (process / "task").iterdir()) / 1e9
    except FileNotFoundError:
        fields = (process / "stat").read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def private_kb(prefix, program):
    """Private memory of the program, 0 while it does not run."""
    most = 0
    for process in processes(prefix, program):
        try:
            lines = (process / "smaps_rollup").read_text().splitlines()
        except OSError:
            continue
        most = max(most, sum(int(line.split()[1]) for line in lines if line.startswith("Private_")))
    return most


class Bench:
    """A prefix with a bench program and its icons, in which the program runs and, to keep the Wine server, stays once. Use
    it in a with statement."""

    def __init__(self, display, program, *keeper):
        self._display = display
        self._panel = ["-name", "panel"]
        self._prefix = Prefix(display)
        try:
            icons = sorted((paths.PROJECT / "resources").glob("???.ico"))
            self._prefix.put([paths.built(BITS, f"{program}.exe"), *icons], FOLDER)
            self._program = f"{FOLDER}\\{program}.exe"
            self._keeper = self._ready(*keeper)
        except BaseException:
            self.close()
            raise

    def close(self):
        self._prefix.close()

    def put(self, sources, folder=FOLDER):
        """Copies files and folders into a folder of the prefix."""
        self._prefix.put(sources, folder)

    def _ready(self, *arguments):
        """A run of the program that has said that it is ready."""
        started = self._prefix.start(self._program, *map(str, arguments), output=subprocess.PIPE)
        said, _, _ = select.select([started.stdout], [], [], START)
        if not said or not started.stdout.readline():
            raise RuntimeError(f"{self._program} {arguments[0]} does not say that it is ready")
        return started

    def cpu(self, *arguments):
        """Seconds of CPU that a run of the program takes, with the server's part."""
        server = self._server_cpu()
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        code = self._prefix.start(self._program, *map(str, arguments)).wait()
        if code != 0:
            raise RuntimeError(f"{self._program} {' '.join(map(str, arguments))} ends with {code}")
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        own = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        return own + self._server_cpu() - server

    def until_icon(self, file):
        """Seconds of CPU from the start of a program to its icon in the tray, with the server's part. Another program starts it,
        as a user's shell does. The display alone is looked at meanwhile, of which the server hears nothing. The program is
        killed then, and leaves its icon behind."""
        before = self._icons()
        launcher = self._ready("launch", file)
        server = self._server_cpu()
        end = time.monotonic() + START
        while self._icons() <= before:
            if time.monotonic() > end:
                raise RuntimeError(f"{file} shows no icon")
            time.sleep(LOOK_EVERY)
        server = self._server_cpu() - server
        started = processes(self._prefix, file.rsplit("\\", 1)[1])[0]
        own = cpu_seconds(started)
        os.kill(int(started.name), signal.SIGKILL)
        launcher.wait()
        return own + server

    def _icons(self):
        """How many windows the tray has in its panel."""
        told = subprocess.run(["xwininfo", *self._panel, "-tree"], env=self._display.environment, check=True, text=True,
                              stdout=subprocess.PIPE).stdout
        self._panel = ["-id", re.search(r"Window id: (\w+)", told)[1]]  # by name all windows are asked, also one that goes
        return told.count("explorer.exe") // 2

    def _server_cpu(self):
        """Seconds of CPU that the prefix's Wine server has taken."""
        servers = processes(self._prefix, "wineserver")
        if not servers:
            raise RuntimeError("the Wine server is not there")
        return cpu_seconds(servers[0])

    def each(self, work, few, many, *size):
        """Milliseconds for one round of some work, its start-up left out."""
        return (self.cpu(work, many, *size) - self.cpu(work, few, *size)) / (many - few) * 1000

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
