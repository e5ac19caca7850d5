"""The programs of the stage: they are given orders and heard through their journals (see orders.h, journal.h)."""

from dataclasses import dataclass

from driver import fields
from driver.desktop import Desktop
from driver.waiting import LIMIT, poll


class OrderFailed(Exception):
    pass


@dataclass
class Event:
    """A line of a journal."""

    process: int
    name: str
    words: list


class Program:
    def __init__(self, prefix, windows_folder, name):
        folder = prefix.path(windows_folder)
        self._control = folder / f"{name}-control.txt"
        self._journal = folder / f"{name}-journal.txt"
        self.orders = 0  # that it has been given

    def events(self, name=None):
        """All that the journal holds so far, or the events of a name."""
        if not self._journal.exists():
            return []
        lines = fields.lines_of(self._journal.read_text(encoding="utf-8", errors="replace"))
        events = [Event(int(process), event, words) for _, process, event, *words in lines]
        return [event for event in events if name in (None, event.name)]

    def wait_for(self, name, *words, after=0, seconds=LIMIT):
        """The first event of this name that begins with these words, behind the first `after` events of the name."""
        def find():
            for event in self.events(name)[after:]:
                if event.words[:len(words)] == [str(word) for word in words]:
                    return event
            return None
        return poll(find, seconds)

    def send(self, verb, *words):
        """Gives an order and does not wait for the answer."""
        self.orders += 1
        with self._control.open("a", encoding="utf-8") as control:
            control.write(fields.joined((self.orders, verb, *words)) + "\n")
        return self.orders

    def answered(self, number):
        """The event that answers the order with this number; None as long as there is none."""
        for event in self.events():
            if event.name in ("done", "failed") and event.words[0] == str(number):
                return event
        return None

    def answer(self, number, seconds=LIMIT):
        """What the order with this number was answered."""
        event = poll(lambda: self.answered(number), seconds)
        if event is None:
            raise OrderFailed(f"order {number} was not answered")
        if event.name == "failed":
            raise OrderFailed(event.words[1])
        return event.words[1]

    def order(self, verb, *words, seconds=LIMIT):
        return self.answer(self.send(verb, *words), seconds)


class Witness(Program):
    """The eyes inside the Windows world; it also starts the other programs, so that it knows how they end."""

    FOLDER = "C:\\witness"

    def __init__(self, prefix, executable, pixels=False):
        """With `pixels` it tells all places in the screen's own, else as programs see them that know of 96 to the inch."""
        super().__init__(prefix, self.FOLDER, "witness")
        self._dump = prefix.path(self.FOLDER + "\\dump.txt")
        prefix.put([executable], self.FOLDER)
        self._process = prefix.start(self.FOLDER + "\\witness.exe", *(["pixels"] if pixels else []))
        if not self.wait_for("ready", seconds=60):
            raise RuntimeError("the witness does not start")

    def alive(self):
        """False once it has ended, with its display for instance."""
        return self._process.poll() is None

    def look(self, window=None):
        """The desktop at this moment; with a top-level window's handle nothing but this window, which is quicker."""
        self.order("dump", self.FOLDER + "\\dump.txt", *([window] if window else []))
        return Desktop(fields.lines_of(self._dump.read_text(encoding="utf-8")))

    def run(self, line):
        """Starts a command line and gives the process id."""
        return int(self.order("run", line))

    def exit_code(self, process, seconds=LIMIT):
        """Waits for the end of a process that `run` has started; None if it goes on."""
        event = self.wait_for("exited", process, seconds=seconds)
        return int(event.words[1]) if event else None

    def runs(self, process):
        return not any(event.words[0] == str(process) for event in self.events("exited"))

    def answers(self, window, seconds):
        """Whether a window answers within the time."""
        try:
            self.order("ping", window, int(seconds * 1000), seconds=seconds + LIMIT)
        except OrderFailed:
            return False
        return True
