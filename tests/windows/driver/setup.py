"""The setup dialog, as a user sees and uses it."""

from driver.waiting import poll

ENGLISH, GERMAN = "Configuration", "Konfiguration"
TITLES = (ENGLISH, GERMAN)
ROW = 13  # pixels of a row of a list box


def _shown(window):
    """What is in a window and not hidden, at any depth."""
    for child in window.children:
        if child.visible:
            yield child
            yield from _shown(child)


class Setup:
    def __init__(self, stage):
        self._stage = stage

    def form(self, language=None):
        """The dialog with all that is in it; None if it is not up, or not in this language."""
        titles = [language] if language else TITLES
        for window in self._stage.look().top(class_name="KestrelForm"):
            if window.text.strip() in titles:
                return window
        return None

    def open(self, editor):
        """By the "Config" button of the editor's toolbar, which is its last. Waits until it has the keyboard."""
        self._stage.screen.click(*self._stage.toolbar(editor).buttons[-1].place.middle)
        return self.comes()

    def comes(self):
        form = poll(self.form)
        return form and self._stage.wait_for_focus(form.handle) and form

    def gone(self):
        return poll(lambda: self.form() is None)

    # What is on it. All of it is looked at anew each time.

    def seen(self, *class_names):
        """Windows of these classes on the page in front and beneath it, from the top, lines from the left."""
        found = [window for window in _shown(self.form()) if window.class_name in class_names]
        return sorted(found, key=lambda window: (window.place.top, window.place.left))

    def captions(self):
        """All that is written on it, without the marks of the mnemonics."""
        return [window.text.replace("&", "") for window in self.seen("Button", "Static", "KestrelFrame")]

    def button(self, caption):
        """A button, check box or option button by its caption."""
        for window in self.seen("Button"):
            if window.text.replace("&", "") == caption:
                return window
        raise LookupError(caption)

    def arrows(self):
        """The buttons that move an entry up and down: those with a picture for a caption."""
        return [window for window in self.seen("Button") if window.text == ""]

    def fields(self):
        """Title, command, tip and question; on the general page, EAGLE's path alone."""
        return self.seen("Edit")

    def texts(self):
        return [field.text for field in self.fields()]

    def rows(self):
        return self.seen("ListBox")[0]

    def lists(self):
        """The drop-down lists: left and right unit, left and right accuracy, language."""
        return sorted(self.seen("ComboBox"), key=lambda window: (round(window.place.top / 10), window.place.left))

    def strip(self):
        """The row of tabs."""
        return next(window for window in self.form().inside() if window.class_name == "SysTabControl32")

    def page(self):
        """0 to 3: the tab whose frame is in front. The frames stand in the order of the tabs."""
        frames = [child for child in self.strip().children if child.class_name == "KestrelFrame"]
        front = [number for number, frame in enumerate(frames) if frame.visible]
        return front[0] if len(front) == 1 else None

    # What a user does.

    def press(self, caption):
        self._stage.screen.click(*self.button(caption).place.middle)

    def select(self, row):
        """A click on a row that is in sight, counted from 0."""
        rows = self.rows()
        self._stage.screen.click(rows.client.left + 40, rows.client.top + ROW * row + ROW // 2)

    def fill(self, number, text):
        """Overwrites a field. Gives whether the field shows it."""
        self._stage.screen.click(*self.fields()[number].place.middle)
        self._stage.screen.key("ctrl+a")
        if text:
            self._stage.screen.type(text)
        else:
            self._stage.screen.key("Delete")
        return poll(lambda: self.texts()[number] == text)

    def turn_to(self, page):
        """Ctrl+Tab until the page is in front."""
        for _ in range(4):
            now = self.page()
            if now == page:
                return True
            self._stage.screen.key("ctrl+Tab")
            poll(lambda now=now: self.page() not in (now, None))
        return self.page() == page

    def shows(self, *texts):
        """Waits until the first fields have these texts."""
        return poll(lambda: self.texts()[:len(texts)] == list(texts))
