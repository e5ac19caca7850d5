"""A stage for a scene: display, prefix, the stand-in EAGLE and the real Kestrel, and what a user does with them."""

from dataclasses import dataclass

from driver import paths
from driver.bell import Bell
from driver.desktop import Window
from driver.display import Display
from driver.dragging import Drag
from driver.eagle import Eagle, PlacedEagle
from driver.prefix import Prefix
from driver.programs import Witness
from driver.screen import Screen
from driver.waiting import LIMIT, poll

KESTREL = "C:\\kestrel"
LOST = 3  # so many looks in a row find keys that go to nobody before they count as lost
PLAIN = 3  # colours of a button that has no picture, under the mouse or not


def _resolution(dpi):
    return {"Control Panel\\Desktop": {"LogPixels": dpi}} if dpi != 96 else {}


@dataclass
class Toolbar:
    """A toolbar of Kestrel's in an editor window."""

    form: Window
    bar: Window

    @property
    def buttons(self):
        """Those that can be clicked, in their order; the last is "Config"."""
        return [button for button in self.bar.buttons if not button.separator]

    @property
    def fits(self):
        """Whether the form shows all rows of its buttons and nothing more."""
        return self.bar.buttons and max(button.place.bottom for button in self.buttons) == self.form.client.bottom


class Stage:
    """Use it in a with statement. `bits` is win32 or win64, `pictures` the folder for screenshots. Without a display it
    makes a virtual one of its own. With `pixels` all places are in the screen's own, else in those of 96 to the inch.
    The options are those of Prefix."""

    def __init__(self, bits, pictures, display=None, dpi=96, pixels=False, registry=None, **prefix_options):
        self.bits = bits
        self._pictures = pictures
        self._display = display or Display()
        try:
            self.screen = Screen(self._display, 1 if pixels else dpi / 96)
            self.prefix = Prefix(self._display, registry={**(registry or {}), **_resolution(dpi)}, **prefix_options)
        except BaseException:
            self._display.close()
            raise
        try:
            self.witness = Witness(self.prefix, paths.built("win64", "witness.exe"), pixels)
            folder = paths.program_folder(bits)
            self.prefix.put(sorted(folder.iterdir()), KESTREL)
        except BaseException:
            self.close()
            raise

    def close(self):
        self.prefix.close()
        self._display.close()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def start_eagle(self, name="eagle", arguments=""):
        return Eagle(self.prefix, self.witness, paths.built(self.bits, "eagle.exe"), name, arguments)

    def place_eagle(self, folder):
        """Only puts it there, for Kestrel to start."""
        return PlacedEagle(self.prefix, paths.built(self.bits, "eagle.exe"), folder)

    def three_editors(self, eagle):
        """A board, a schematic and a library, by kind, that do not cover each other; EAGLE's control panel is covered."""
        editors = {"board": eagle.open("board", "C:\\work\\demo.brd"),
                   "schematic": eagle.open("schematic", "C:\\work\\demo.sch"),
                   "library": eagle.open("library", "C:\\work\\parts.lbr")}
        for editor, (left, top) in zip(editors.values(), ((0, 0), (660, 0), (330, 460))):
            editor.place(left, top, 640, 440)
        return editors

    def write_settings(self, text):
        """Kestrel's settings file; bytes are taken as they are."""
        data = text if isinstance(text, bytes) else text.replace("\n", "\r\n").encode("cp1252")
        self.prefix.path(KESTREL + "\\kestrel.ini").write_bytes(data)

    def settings(self):
        return self.prefix.path(KESTREL + "\\kestrel.ini").read_bytes().decode("cp1252")

    def start_kestrel(self, settings=None):
        """Gives the process id."""
        if settings is not None:
            self.write_settings(settings)
        return self.witness.run(KESTREL + "\\kestrel.exe")

    def look(self, editor=None):
        """The desktop, or one editor with what is in it."""
        return self.witness.look(editor and editor.handle)

    def toolbars(self, editor, desktop=None):
        """Those in the editor window now."""
        window = (desktop or self.look(editor)).windows.get(editor.handle)
        forms = [child for child in (window.children if window else []) if child.class_name == "KestrelForm"]
        found = []
        for form in forms:
            bars = [inner for inner in form.inside() if inner.class_name == "ToolbarWindow32"]
            if form.text == "EAGLE Kestrel Bench" and form.visible and bars:
                found.append(Toolbar(form, bars[0]))
        return found

    def toolbar(self, editor, seconds=LIMIT):
        """Waits for the editor's toolbar, finished and at rest; None if it does not come."""
        def find():
            found = self.toolbars(editor)
            return found[0] if found and found[0].fits and self.toolbars(editor) == found else None
        return poll(find, seconds)

    def painted(self, editor, seconds=LIMIT):
        """Waits until each button of the editor's toolbar shows a picture."""
        places = [button.place for button in self.toolbar(editor).buttons]
        return poll(lambda: min(self.screen.colours_of(places)) > PLAIN, seconds)

    def click_button(self, editor, number):
        """A click with the mouse on a toolbar's button, counted from 0, separators not counted."""
        self.screen.click(*self.toolbar(editor).buttons[number].place.middle)

    def wait_for_focus(self, handle, seconds=LIMIT):
        """Waits until this top-level window is in front and gets the user's keys. When a window goes the display's own focus
        may be left with nobody for good: the window manager asks EAGLE to take it, and Wine, in EAGLE, gives it to whatever
        the joined input has for active at that moment, be it a hidden window of Kestrel's, which the display refuses. What
        Windows has in front is never changed here: the window manager is asked once more for the window that is there."""
        looks = 0  # in a row at which nobody had the keys

        def come():
            nonlocal looks
            desktop = self.look()
            if desktop.foreground != handle:
                return False
            title = desktop.windows[handle].text.strip()
            if self.screen.focused() == title:
                return True
            looks = looks + 1 if self.screen.focus_lost() else 0
            if title and looks > LOST:
                self.screen.activate(title)
                looks = 0
            return False
        return poll(come, seconds)

    def copy_text(self, file, lines):
        """Has the notepad put a text into the clipboard, from a file that is made for it."""
        self.prefix.path(file).write_text("\r\n".join(lines), encoding="ascii", newline="")
        process = self.witness.run(f"C:\\windows\\notepad.exe {file}")
        notepad = poll(lambda: [window for window in self.look().top() if window.process == process])
        self.wait_for_focus(notepad[0].handle)
        self.screen.key("ctrl+a", "ctrl+c", "alt+F4")
        poll(lambda: not self.look().running("notepad.exe"))

    def drop_files(self, files, place):
        """Drops files, which are Windows paths, on a place of the screen. False if what is there takes none at all."""
        with Drag(self._display.environment["DISPLAY"], self.prefix, files) as drag:
            return drag.drop(*place)

    def bell(self):
        """Hears each beep from now on, in a with statement."""
        return Bell(self._display.environment["DISPLAY"])

    @staticmethod
    def field(editor, desktop):
        """The editor's command field."""
        fields = [child for child in desktop.windows[editor.handle].children if child.class_name == "Edit"]
        return fields[0]

    def command_field(self, editor):
        return self.field(editor, self.look(editor))

    def command_field_focused(self, editor):
        """Whether Windows has the keyboard's focus in the editor's command field."""
        desktop = self.look()
        return desktop.foreground == editor.handle and desktop.focus == self.field(editor, desktop).handle

    def picture(self, name, part=None):
        """Leaves a picture of the screen, or of a rectangle of it."""
        self.screen.picture(self._pictures / f"{name}.png", part)
