"""Files that a user drags out of a file manager and drops on a window: a source of the display's own drag and drop (XDND),
which Wine hands on as the shell does, by WM_DROPFILES."""

from urllib.parse import quote

from driver import xlib
from driver.waiting import poll

_ATOM = 4  # kind of a property that holds atoms
_VERSION = 5  # of the protocol
_NOW = 0  # for the time of an event
_ACCEPTED = 1


class Drag(xlib.Connection):
    """Use it in a with statement. The files are Windows paths."""

    def __init__(self, display, prefix, files):
        super().__init__(display)
        self._list = "".join(f"file://{quote(prefix.inside(file))}\r\n" for file in files).encode()
        self._uris, self._targets = self.atom("text/uri-list"), self.atom("TARGETS")
        self._root = self.call("XDefaultRootWindow")
        self._window = self.call("XCreateSimpleWindow", self._root, 0, 0, 1, 1, 0, 0, 0)
        self.call("XSetSelectionOwner", self.atom("XdndSelection"), self._window, _NOW)
        self._target = 0

    def drop(self, x, y):
        """Lets the files go over a place of the screen. False if what is there takes none at all."""
        self._target = self._taker(x, y)
        if not self._target:
            return False
        self._tell("XdndEnter", _VERSION << 24, self._uris)
        self._tell("XdndPosition", 0, x << 16 | y, _NOW, self.atom("XdndActionCopy"))
        status = poll(lambda: self._heard("XdndStatus"))
        if not status or not status[1] & _ACCEPTED:
            self._tell("XdndLeave")
            return False
        self._tell("XdndDrop", 0, _NOW)
        return poll(lambda: self._heard("XdndFinished")) is not None

    def _taker(self, x, y):
        """The outermost window at the place that takes part in this; 0 if none does."""
        seen, aware = self._root, self.atom("XdndAware")
        while seen and aware not in self.properties(seen):
            seen = self.child_at(seen, x, y)
        return seen

    def _tell(self, name, *data):
        event = xlib.Event()
        event.message = xlib.Message(type=xlib.CLIENT_MESSAGE, window=self._target, name=self.atom(name), format=32,
                                     data=(self._window, *data))
        self.send(self._target, event)

    def _heard(self, name):
        """The data of a message that has come; None if it has not. Who asks for the list meanwhile is given it."""
        for event in self.events():
            if event.type == xlib.SELECTION_REQUEST:
                self._give(event.request)
            elif event.type == xlib.CLIENT_MESSAGE and event.message.name == self.atom(name):
                return list(event.message.data)
        return None

    def _give(self, request):
        kept = request.property
        if request.target == self._uris:
            self.keep(request.requestor, kept, self._uris, 8, self._list, len(self._list))
        elif request.target == self._targets:
            self.keep(request.requestor, kept, _ATOM, 32, (xlib.LONG * 2)(self._targets, self._uris), 2)
        else:
            kept = 0
        event = xlib.Event()
        event.answer = xlib.Answer(type=xlib.SELECTION_NOTIFY, requestor=request.requestor, selection=request.selection,
                                   target=request.target, property=kept, time=request.time)
        self.send(request.requestor, event)
