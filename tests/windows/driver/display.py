"""A virtual display of its own with a window manager and a tray, so that runs do not disturb one another or the user.

As a program it starts a command on such a display: python3 -m driver.display COMMAND [ARGUMENT]...
"""

import os
import signal
import subprocess
import sys

from driver.waiting import poll

WIDTH, HEIGHT = 1600, 1200
TRAY_HEIGHT = 32  # at the bottom


class Display:
    """Use it in a with statement. `environment` is what programs on the display need."""

    def __init__(self, width=WIDTH, height=HEIGHT):
        # Who is told to end clears away as well: with statements end in good order.
        signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
        read, write = os.pipe()
        # Without a reset: the look for the window manager could be the only client, and its end would throw out the
        # window manager that is about to connect.
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp", "-ac",
             "-noreset"],
            pass_fds=[write], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()  # empty when the server has ended instead
        if not number:
            raise RuntimeError("Xvfb does not start")
        self.name = f":{number}"
        self.environment = {**os.environ, "DISPLAY": self.name}
        self._clients = [self._start("openbox", "--sm-disable")]
        if not poll(self._managed):
            self.close()
            raise RuntimeError("the window manager does not start")
        # A plain colour behind the windows, so that their edges are seen in pictures. It reports a failure always.
        subprocess.run(["display", "-window", "root", "-size", f"{width}x{height}", "xc:#3A6EA5"],
                       env=self.environment, stderr=subprocess.DEVNULL, check=False)
        self._clients.append(self._start("trayer", "--edge", "bottom", "--align", "right", "--SetDockType", "true",
                                         "--widthtype", "pixel", "--width", "200", "--heighttype", "pixel",
                                         "--height", str(TRAY_HEIGHT)))

    def _start(self, *command):
        return subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def _managed(self):
        """Whether the window manager has taken over: it says so on the root window."""
        shown = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.environment,
                               capture_output=True, text=True, check=False)
        return "window id" in shown.stdout

    def close(self):
        for process in (*self._clients, self._server):
            process.terminate()
            process.wait()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


class UserDisplay:
    """The display that the user sits at, used as it is."""

    def __init__(self):
        self.environment = dict(os.environ)

    @staticmethod
    def there():
        """Whether there is one that answers."""
        return bool(os.environ.get("DISPLAY")) and subprocess.run(
            ["xdpyinfo"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False).returncode == 0

    def close(self):
        """It stays."""


if __name__ == "__main__":
    with Display() as display:
        sys.exit(subprocess.run(sys.argv[1:], env=display.environment, check=False).returncode)
