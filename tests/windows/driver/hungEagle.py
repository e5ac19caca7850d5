"""An EAGLE that hangs while it has the keyboard, and another one beside it whose toolbars the user can go on with."""

from driver.waiting import poll

HANG = 15  # seconds
FIRST_MOMENT = 5  # seconds in which Kestrel has to leave it to itself


class HungEagle:
    def __init__(self, stage):
        self._stage = stage
        self.other = stage.start_eagle("other")
        self.beside = self.other.open("board", "C:\\work\\beside.brd")
        self.beside.place(0, 0, 700, 500)
        self._eagle = stage.start_eagle()
        self.boards = []
        self._order = self._toolbar = self.board = None

    def joined(self):
        """Whether its input is joined with Kestrel's: it is by its latest toolbar."""
        return int(self._stage.witness.order("active", self._toolbar.form.handle)) == self.board.handle

    def ready(self):
        """Opens a window and waits until that has a toolbar and the keyboard. False if it has not come to that."""
        self.board = self._eagle.open("board", f"C:\\work\\hung{len(self.boards) + 1}.brd")
        self.boards.append(self.board)
        self.board.place(800, 20, 700, 500)
        self.board.to_front()
        self._toolbar = self._stage.toolbar(self.board)
        return bool(self._toolbar and poll(lambda: self._stage.command_field_focused(self.board)) and poll(self.joined))

    def sleep(self):
        """Hangs from now on."""
        self._order = self._eagle.hang(HANG)

    def hang(self):
        """Is ready and hangs then. False if it has not come to that."""
        if not self.ready():
            return False
        self.sleep()
        # What a user does in the first moment goes the way of what EAGLE does not take, and may be lost under Wine.
        poll(lambda: not self.joined(), FIRST_MOMENT)
        return True

    def hangs(self):
        return self._order is not None and not self._eagle.answered(self._order)

    def wake(self):
        """The window that hung comes to the front."""
        if self._order is not None:
            self._eagle.wake(self._order)
            self._order = None
            self.board.to_front()
