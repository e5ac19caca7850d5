"""The finished program ticking by itself, beside a bare one that makes the calls of a tick from a timer."""

import contextlib
import ctypes
import itertools
import os
import signal
import statistics
import struct
import time

import raw
from driver import paths, settings
from driver.stage import KESTREL, Stage
from driver.tray import Tray
from driver.waiting import poll
from measuring import BITS, FOLDER, cpu_seconds, processes
from work import PICTURES, row

WINDOWS = (10, 100, 500)
ROUNDS = 7
SECONDS = 5  # of each round, for each of the two
SELDOM, USUAL = 500, 20  # milliseconds between two looks of the witness and the stand-in EAGLE for orders
SETTLE = 0.6  # seconds until a program that goes on has done what it was late with
BENCH = FOLDER + "\\tick-bench.exe"
# How much of the bare program the ticks may be, with no editor or all behind the other windows.
MOST = {10: "1.00", 100: "0.65", 500: "0.50"}
MOST_IN_FRONT = "1.05"


class Looks:
    """How often a folder has been looked through: each tick does so once. A machine with much else to do skips ticks."""

    OPENED, READ = 0x20, 0x1  # of the system's events
    HEAD = struct.Struct("iIII")  # of an event; the last number is the length of what follows it

    def __init__(self, folder):
        system = ctypes.CDLL(None, use_errno=True)
        self._events = system.inotify_init1(os.O_NONBLOCK)
        if self._events < 0 or system.inotify_add_watch(self._events, os.fsencode(folder), self.OPENED | self.READ) < 0:
            raise OSError(ctypes.get_errno(), f"cannot watch {folder}")

    def count(self):
        """Since the last count."""
        kinds = [mask & (self.OPENED | self.READ) for mask in self._masks()]
        return sum(kind == self.READ for kind, _ in itertools.groupby(kinds))

    def _masks(self):
        """Of the events of the folder itself, whose equal neighbours the system may have made one."""
        with contextlib.suppress(BlockingIOError):
            while True:
                data = os.read(self._events, 1 << 20)
                place = 0
                while place < len(data):
                    _, mask, _, length = self.HEAD.unpack_from(data, place)
                    place += self.HEAD.size + length
                    if length == 0:
                        yield mask

    def close(self):
        os.close(self._events)


class Ticking:
    """A program that ticks and is held except while it is measured. `folder` is where it looks for its file."""

    def __init__(self, process, folder):
        self._process = process
        self._looks = Looks(folder)
        self._signal(signal.SIGSTOP)

    def _signal(self, what):
        os.kill(int(self._process.name), what)

    @contextlib.contextmanager
    def going_on(self):
        self._signal(signal.SIGCONT)
        try:
            time.sleep(SETTLE)
            yield
        finally:
            self._signal(signal.SIGSTOP)

    def measure(self, server):
        """Seconds of CPU of the program and of the Wine server, and the ticks that it was for."""
        with self.going_on():
            self._looks.count()
            own, served = cpu_seconds(self._process), cpu_seconds(server)
            time.sleep(SECONDS)
            own, served = cpu_seconds(self._process) - own, cpu_seconds(server) - served
            return own, served, self._looks.count()

    def let_go(self):
        self._signal(signal.SIGCONT)
        self._looks.close()

    def end(self):
        self._signal(signal.SIGKILL)
        self._looks.close()


class Desk:
    """A stage with Kestrel, EAGLE's control panel, N windows of another program, and the bare programs."""

    def __init__(self, windows):
        self._windows = windows
        self._stage = Stage(BITS, PICTURES)
        try:
            self._set_up()
        except BaseException:
            self.close()
            raise

    def _set_up(self):
        stage = self._stage
        stage.prefix.put([paths.built(BITS, "tick-bench.exe")], FOLDER)
        stage.witness.run(f"{BENCH} windows {self._windows}")
        if not poll(self._windows_are_there, 120):
            raise RuntimeError(f"the {self._windows} windows do not come")
        self._eagle = stage.start_eagle()
        stage.start_kestrel(settings.start_set())
        if not poll(Tray(stage).icon):
            raise RuntimeError("the tray icon is missing")
        self._server = processes(stage.prefix, "wineserver")[0]
        self._kestrel = processes(stage.prefix, "kestrel.exe")[0]

    def _windows_are_there(self):
        return sum("of another program" in window.text for window in self._stage.look().windows.values()) == self._windows

    def close(self):
        self._stage.close()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def open_editors(self):
        """In front of all others, with their toolbars."""
        editors = self._stage.three_editors(self._eagle)
        for kind, editor in editors.items():
            if not self._stage.toolbar(editor):
                raise RuntimeError(f"the {kind}'s toolbar is missing")
        return editors

    def send_behind(self, editors):
        handles = [editor.handle for editor in editors.values()]
        self._stage.witness.exit_code(self._stage.witness.run(f"{BENCH} behind {' '.join(map(str, handles))}"))
        order = [window.handle for window in self._stage.look().windows.values() if window.parent == 0]
        if order[-len(handles):] != handles:
            raise RuntimeError("the editors are not behind all others")

    def _started(self, bare):
        """A bare program that has just been started."""
        def running():
            return set(processes(self._stage.prefix, "tick-bench.exe"))
        before = running()
        self._stage.witness.run(f"{BENCH} {bare}")
        found = poll(lambda: running() - before)
        if not found:
            raise RuntimeError(f"tick-bench {bare} does not start")
        return found.pop()

    @contextlib.contextmanager
    def _still(self):
        """The driver's own programs hardly look for orders: the server would be busy with that."""
        def pace(milliseconds):
            for program in (self._stage.witness, self._eagle):
                program.order("pace", milliseconds)
        pace(SELDOM)
        try:
            yield
        finally:
            pace(USUAL)

    def compare(self, name, bare, rounds=ROUNDS):
        """Milliseconds of a tick of both, the middle of some rounds: in turn, so that what else the machine does meets both
        alike, and one in which the server had other work to do does not count."""
        prefix = self._stage.prefix
        programs = {"kestrel": Ticking(self._kestrel, prefix.path(KESTREL)),
                    "bare": Ticking(self._started(bare), prefix.path(FOLDER))}
        costs = {who: [] for who in programs}
        try:
            with self._still():
                for turn in range(rounds):
                    for who, program in programs.items():
                        own, served, count = program.measure(self._server)
                        raw.note("ticks", windows=self._windows, editors=name, round=turn, program=who, own_s=own,
                                 server_s=served, ticks=count)
                        if count == 0:
                            raise RuntimeError(f"{who} makes no tick in {SECONDS} s beside {self._windows} windows")
                        costs[who].append((own + served) / count * 1000)
        finally:
            programs["bare"].end()
            programs["kestrel"].let_go()
        return [statistics.median(of_rounds) for of_rounds in costs.values()]


def ticks(_display):
    for windows in WINDOWS:
        with Desk(windows) as desk:
            title = f"One tick, {windows} further windows"
            yield row(f"{title}, no editor", *desk.compare("none", "bare"), "ms", MOST[windows])
            editors = desk.open_editors()
            yield row(f"{title}, three editors in front", *desk.compare("front", "bare-found"), "ms", MOST_IN_FRONT)
            desk.send_behind(editors)
            yield row(f"{title}, three editors behind", *desk.compare("behind", "bare"), "ms", MOST[windows])
