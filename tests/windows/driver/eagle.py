"""The stand-in EAGLE and its editor windows."""

from driver.programs import Program


class Editor:
    def __init__(self, eagle, number, handle):
        self.eagle = eagle
        self.number = number
        self.handle = handle

    def place(self, left, top, width, height):
        """Outer rectangle, screen pixels."""
        self.eagle.order("place", self.number, left, top, width, height)

    def count(self):
        """Puts its number in front of the title, as EAGLE does: "1 Board - ..."."""
        title = [event.words[3] for event in self.eagle.events("opened") if event.words[0] == str(self.number)][-1]
        self.eagle.order("title", self.number, f"{self.number} {title}")

    def to_front(self):
        self.eagle.order("raise", self.number)

    def close(self):
        self.eagle.order("close", self.number)

    def executed(self):
        """The commands that this editor has run so far."""
        return [event.words[2] for event in self.eagle.events("execute") if event.words[0] == str(self.number)]


class PlacedEagle(Program):
    """A stand-in that stands in its folder for others to start."""

    def __init__(self, prefix, executable, folder):
        super().__init__(prefix, folder, "eagle")
        prefix.put([executable], folder)

    def editor(self, number):
        """The latest editor with this number, which EAGLE counts from 1."""
        handle = [int(event.words[2]) for event in self.events("opened") if event.words[0] == str(number)][-1]
        return Editor(self, int(number), handle)


class Eagle(PlacedEagle):
    """A running stand-in. Each stands in a folder of its own, since its journal and orders stand beside it."""

    def __init__(self, prefix, witness, executable, name="eagle", arguments=""):
        folder = "C:\\" + name
        super().__init__(prefix, executable, folder)
        before = len(self.events("ready"))
        self.process = witness.run(f"{folder}\\eagle.exe {arguments}".strip())
        if not self.wait_for("ready", after=before):
            raise RuntimeError("the stand-in EAGLE does not start")

    def open(self, kind, file, german=False):
        """Opens an editor: board, schematic or library."""
        return self.editor(self.order("open", kind, "de" if german else "en", file))

    def open_titled(self, kind, title):
        """Opens an editor with a title as it stands."""
        return self.editor(self.order("openas", kind, "en", title))

    def hang(self, seconds):
        """All its windows answer nothing as long. Gives the order, which is answered when that is over."""
        before = len(self.events("hangs"))
        order = self.send("hang", int(seconds * 1000))
        self.wait_for("hangs", after=before)
        return order

    def wake(self, order):
        """Ends that before its time."""
        self.order("wake")
        self.answer(order)
