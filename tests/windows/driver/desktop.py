"""What stands on the Windows desktop at a moment, as the witness has written it down (see its windowTree.h)."""

from dataclasses import dataclass, field


@dataclass
class Rect:
    """Screen pixels."""

    left: int
    top: int
    right: int
    bottom: int

    @property
    def width(self):
        return self.right - self.left

    @property
    def height(self):
        return self.bottom - self.top

    @property
    def middle(self):
        return (self.left + self.right) // 2, (self.top + self.bottom) // 2


@dataclass
class Button:
    """A button of a toolbar control; separators are buttons too."""

    place: Rect
    state: int
    style: int

    @property
    def separator(self):
        return self.style & 1 != 0

    @property
    def hidden(self):
        return self.state & 8 != 0


@dataclass
class Window:
    handle: int
    parent: int
    owner: int
    process: int
    class_name: str
    style: int
    extended_style: int
    visible: bool
    enabled: bool
    place: Rect
    client: Rect
    text: str
    children: list = field(default_factory=list)  # direct ones, from the top of their order
    buttons: list = field(default_factory=list)
    items: int = 0  # of a tree

    def inside(self):
        """All windows inside this one, at any depth."""
        for child in self.children:
            yield child
            yield from child.inside()


class Desktop:
    def __init__(self, lines):
        self.windows = {}  # by handle, in window order
        self.processes = {}  # executable names by id
        self.foreground = self.focus = 0
        for name, *words in lines:
            getattr(self, "_" + name)(*words)

    def _window(self, handle, parent, owner, process, class_name, style, extended, visible, enabled, *rest):
        *numbers, text = rest
        numbers = list(map(int, numbers))
        window = Window(int(handle), int(parent), int(owner), int(process), class_name, int(style), int(extended),
                        visible == "1", enabled == "1", Rect(*numbers[:4]), Rect(*numbers[4:]), text)
        self.windows[window.handle] = window
        if window.parent in self.windows:
            self.windows[window.parent].children.append(window)

    def _button(self, toolbar, _index, left, top, right, bottom, state, style):
        place = Rect(int(left), int(top), int(right), int(bottom))
        self.windows[int(toolbar)].buttons.append(Button(place, int(state), int(style)))

    def _tree(self, tree, items):
        self.windows[int(tree)].items = int(items)

    def _focus(self, foreground, focus):
        self.foreground, self.focus = int(foreground), int(focus)

    def _process(self, number, name):
        self.processes[int(number)] = name

    def top(self, text=None, class_name=None):
        """Visible top-level windows, from the top of the window order; by a part of their title, by class."""
        return [window for window in self.windows.values()
                if window.parent == 0 and window.visible
                and (text is None or text in window.text)
                and (class_name is None or window.class_name == class_name)]

    def running(self, name):
        """Ids of the processes with this executable."""
        return [number for number, seen in self.processes.items() if seen.lower() == name.lower()]
