"""The display's own library, for what no tool of the stage does: a connection, its events and messages."""

import ctypes

LONG, INT, POINTER = ctypes.c_ulong, ctypes.c_int, ctypes.c_void_p

CLIENT_MESSAGE, SELECTION_NOTIFY, SELECTION_REQUEST = 33, 31, 30  # types of events

_HEAD = [("type", INT), ("serial", LONG), ("sent", INT), ("display", POINTER)]

_ROUTINES = (
    ("XOpenDisplay", POINTER, ctypes.c_char_p), ("XCloseDisplay", INT, POINTER), ("XDefaultRootWindow", LONG, POINTER),
    ("XInternAtom", LONG, POINTER, ctypes.c_char_p, INT),
    ("XCreateSimpleWindow", LONG, POINTER, LONG, INT, INT, INT, INT, INT, LONG, LONG),
    ("XSetSelectionOwner", INT, POINTER, LONG, LONG, LONG), ("XSync", INT, POINTER, INT),
    ("XSendEvent", INT, POINTER, LONG, INT, ctypes.c_long, POINTER), ("XPending", INT, POINTER),
    ("XNextEvent", INT, POINTER, POINTER), ("XFree", INT, POINTER),
    ("XTranslateCoordinates", INT, POINTER, LONG, LONG, INT, INT, POINTER, POINTER, POINTER),
    ("XListProperties", POINTER, POINTER, LONG, POINTER),
    ("XChangeProperty", INT, POINTER, LONG, LONG, LONG, INT, INT, POINTER, INT),
    ("XkbQueryExtension", INT, POINTER, POINTER, POINTER, POINTER, POINTER, POINTER),
    ("XkbSelectEvents", INT, POINTER, ctypes.c_uint, LONG, LONG))


class Message(ctypes.Structure):
    _fields_ = [*_HEAD, ("window", LONG), ("name", LONG), ("format", INT), ("data", ctypes.c_long * 5)]


class Request(ctypes.Structure):
    _fields_ = [*_HEAD, ("owner", LONG), ("requestor", LONG), ("selection", LONG), ("target", LONG), ("property", LONG),
                ("time", LONG)]


class Answer(ctypes.Structure):
    _fields_ = [*_HEAD, ("requestor", LONG), ("selection", LONG), ("target", LONG), ("property", LONG), ("time", LONG)]


class Keyboard(ctypes.Structure):
    _fields_ = [*_HEAD, ("time", LONG), ("what", INT), ("device", ctypes.c_uint)]


class Event(ctypes.Union):
    _fields_ = [("type", INT), ("message", Message), ("request", Request), ("answer", Answer), ("keyboard", Keyboard),
                ("room", ctypes.c_long * 24)]


def _loaded():
    library = ctypes.CDLL("libX11.so.6")
    for name, result, *arguments in _ROUTINES:
        routine = getattr(library, name)
        routine.restype, routine.argtypes = result, arguments
    return library


class Connection:
    """To a display, by its name. Use it in a with statement."""

    def __init__(self, name):
        self._library = _loaded()
        self._display = self._library.XOpenDisplay(name.encode())
        if not self._display:
            raise RuntimeError("the display cannot be opened")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._library.XCloseDisplay(self._display)

    def call(self, name, *arguments):
        """A routine of the library whose first argument is the display."""
        return getattr(self._library, name)(self._display, *arguments)

    def atom(self, name):
        return self.call("XInternAtom", name.encode(), 0)

    def events(self):
        """Those that have come."""
        while self.call("XPending"):
            event = Event()
            self.call("XNextEvent", ctypes.byref(event))
            yield event

    def send(self, window, event):
        event.message.display, event.message.sent = self._display, 1
        self.call("XSendEvent", window, 0, 0, ctypes.byref(event))
        self.call("XSync", 0)

    def properties(self, window):
        """Atoms of those that a window has."""
        count = INT()
        found = self.call("XListProperties", window, ctypes.byref(count))
        names = ctypes.cast(found, ctypes.POINTER(LONG))[:count.value] if found else []
        if found:
            self._library.XFree(found)
        return names

    def child_at(self, window, x, y):
        """The direct child at a place of the screen; 0 if there is none."""
        left, top, child = INT(), INT(), LONG()
        root = self.call("XDefaultRootWindow")
        self.call("XTranslateCoordinates", root, window, x, y, *map(ctypes.byref, (left, top, child)))
        return child.value

    def keep(self, window, name, kind, bits, data, count):
        """Puts something into a window's property."""
        self.call("XChangeProperty", window, name, kind, bits, 0, ctypes.cast(data, POINTER), count)
