"""The display's bell, which Wine rings for a beep."""

from ctypes import byref

from driver import xlib
from driver.waiting import poll

_CORE_KEYBOARD = 0x100
_BELL = 8  # kind of an event of the keyboard's


class Bell(xlib.Connection):
    """Hears it from its making on. Use it in a with statement."""

    def __init__(self, display):
        super().__init__(display)
        code, self._first, error, major, minor = (xlib.INT(), xlib.INT(), xlib.INT(), xlib.INT(1), xlib.INT(0))
        if not self.call("XkbQueryExtension", *map(byref, (code, self._first, error, major, minor))):
            raise RuntimeError("the display tells nothing of its bell")
        self.call("XkbSelectEvents", _CORE_KEYBOARD, 1 << _BELL, 1 << _BELL)
        self.call("XSync", 0)

    def rings(self):
        """Waits for the next ring that has not been asked for yet."""
        return poll(self._rung)

    def _rung(self):
        # Later rings stay for the next call.
        return any(event.type == self._first.value and event.keyboard.what == _BELL for event in self.events())
