"""A display of its own with Wine, on which the packed programs are worked from outside."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import time

ROOT = pathlib.Path(__file__).parents[2]
WINE = ROOT / "tools/windows/wine.sh"
PATIENCE_S = 30
REST_S = 0.7


def windows_path(path):
    """A path of this machine as a program under Wine sees it."""
    return "Z:" + str(path).replace("/", "\\")


def await_that(condition, what):
    """The condition's value once it is true."""
    deadline = time.monotonic() + PATIENCE_S
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"in vain waited for: {what}")
        time.sleep(0.05)


class Desktop:
    """A virtual display with a window manager, which Wine's windows need to get the focus."""

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1400x900x24", "-nolisten", "tcp",
             "-noreset"], pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.display = ":" + number.readline().strip()
        self.environment = {**os.environ, "DISPLAY": self.display}
        self.manager = subprocess.Popen(["openbox"], env=self.environment,
                                        stderr=subprocess.DEVNULL)

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()

    def tool(self, *arguments):
        result = subprocess.run(["xdotool", *arguments], env=self.environment, text=True,
                                capture_output=True, timeout=PATIENCE_S, check=False)
        return result.stdout.split()

    def windows(self, title):
        """Those that are shown, the narrowest first: boxes before the program's window."""
        found = self.tool("search", "--onlyvisible", "--name", f"^{title}$")
        return sorted(found, key=self.width)

    def width(self, window):
        for field in self.tool("getwindowgeometry", "--shell", window):
            if field.startswith("WIDTH="):
                return int(field[6:])
        return 0

    def await_windows(self, count, title):
        return await_that(lambda: (found := self.windows(title)) and len(found) == count and found,
                          f"{count} windows {title}, there are {len(self.windows(title))}")

    def focus(self, window):
        self.tool("windowactivate", "--sync", window)
        self.tool("windowfocus", "--sync", window)
        time.sleep(0.1)

    def press(self, window, *keys):
        self.focus(window)
        for key in keys:
            self.tool("key", key)
            time.sleep(0.1)

    def write(self, text):
        self.tool("type", "--delay", "20", text)


class Program:
    """A started program, with a journal of its calls of its own."""

    def __init__(self, desktop, folder, executable, *arguments, variables=None):
        self.desktop = desktop
        self.title = "Mortane" if executable.stem == "mortane" else "Sadrel"
        self.journal_file = pathlib.Path(tempfile.mkstemp(".txt", "journal", folder)[1])
        environment = {**desktop.environment, "WINEPATH": "C:\\windows",
                       "MORTANE_JOURNAL": windows_path(self.journal_file), **(variables or {})}
        self.process = subprocess.Popen([WINE, str(executable), *arguments], env=environment,
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def journal(self):
        return self.journal_file.read_text(encoding="utf-8").splitlines()

    def called(self, text):
        """Whether a call reads so, whenever it was made and however long it took."""
        return any(line.split("  ")[-1].strip() == text for line in self.journal())

    def await_call(self, text):
        await_that(lambda: self.called(text), f"the call {text}")

    def await_rest(self):
        """Until no call has been made for a while: what is typed meanwhile would be dropped."""
        def rested():
            before = len(self.journal())
            time.sleep(REST_S)
            return len(self.journal()) == before
        await_that(rested, "rest")

    def await_sent(self, text):
        """Until a Send that makes this call has ended. The program stands still for three seconds
        after the last call, and drops what is typed before."""
        self.await_call(text)
        self.await_rest()
        time.sleep(4)

    def window(self):
        return self.desktop.await_windows(1, self.title)[0]

    def box(self):
        """The box in front of the program's window."""
        return self.desktop.await_windows(2, self.title)[0]

    def close_boxes(self):
        """Until the window stands alone."""
        def alone():
            windows = self.desktop.windows(self.title)
            if len(windows) > 1:
                self.desktop.press(windows[0], "Return")
                time.sleep(0.5)
            return len(windows) == 1
        await_that(alone, "the boxes gone")

    def press(self, window, *keys):
        self.desktop.press(window, *keys)

    def end_by_menu(self):
        self.await_rest()
        self.press(self.window(), "alt+f", "x")
        self.press(self.box(), "Return")
        return self.end()

    def end(self):
        return self.process.wait(PATIENCE_S)

    def kill(self):
        """At once, with no chance to clean up."""
        self.process.kill()
        self.process.wait()

    def close(self):
        if self.process.poll() is None:
            self.kill()
        self.process.stdout.close()
        self.process.stderr.close()


class Folder:
    """A folder for one test."""

    def __init__(self):
        self.path = pathlib.Path(tempfile.mkdtemp(prefix="mortane-windows-"))

    def bench(self, name):
        return pathlib.Path(shutil.copy(ROOT / f"benches/{name}.xml", self.path / "bench.xml"))

    def close(self):
        shutil.rmtree(self.path)
