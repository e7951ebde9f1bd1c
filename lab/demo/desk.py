"""A desktop to work at: programs under Wine, the real mouse and keyboard, pictures of the screen,
and what the observer tells of icons and windows. Nothing here knows what any program should do."""

import os
import subprocess
import threading
import time
from dataclasses import dataclass, field


@dataclass
class Control:
    place: tuple
    ident: int
    class_name: str
    text: str


@dataclass
class Window:
    place: tuple
    program: str
    class_name: str
    title: str
    controls: list = field(default_factory=list)


@dataclass
class Icon:
    place: tuple
    picture: str
    tip: str


def middle(place):
    left, top, right, bottom = place
    return (left + right) // 2, (top + bottom) // 2


def unfold(text):
    return text.replace("\\n", "\n")


class Desk:
    """Programs are started with `run` (waits) or `start`; what was started is ended by `close`."""

    def __init__(self, observer, pictures):
        self._started = []
        self._lock = threading.Lock()
        self._windows = {}
        self._icons = []
        self._listeners = []
        self._aside = False
        self._observer = observer
        self._watch = self.start(observer, "watch", pictures, stdout=subprocess.PIPE)
        threading.Thread(target=self._listen, daemon=True).start()

    def on_change(self, listener):
        """`listener(icons, windows)` is called after each change."""
        self._listeners.append(listener)

    # Programs.

    def start(self, program, *arguments, **options):
        options.setdefault("stdout", subprocess.DEVNULL)
        process = subprocess.Popen(
            ["wine", program, *arguments], stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL,
            **options)
        self._started.append(process)
        return process

    def run(self, program, *arguments, seconds=60):
        return subprocess.run(
            ["wine", program, *arguments], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            stdin=subprocess.DEVNULL, timeout=seconds, check=True)

    def renew_shell(self, owner_class):
        self.run(self._observer, "renew-shell", owner_class)

    def close(self):
        for process in self._started:
            if process.poll() is None:
                process.terminate()

    # What is on the screen.

    def icons(self):
        with self._lock:
            return list(self._icons)

    def windows(self):
        with self._lock:
            return list(self._windows.values())

    def window(self, class_name):
        return next((w for w in self.windows() if w.class_name == class_name), None)

    def photograph(self, path):
        subprocess.run(["import", "-window", "root", path], check=True)

    def text_rows(self, place):
        """The places of the lines of text in a menu, from its pixels: dark rows parted by light
        ones; a line that goes from edge to edge is a separator."""
        left, top, right, bottom = place
        width, height = right - left - 8, bottom - top - 8
        pixels = subprocess.run(
            ["import", "-window", "root", "-crop", f"{width}x{height}+{left + 4}+{top + 4}",
             "-colorspace", "gray", "-depth", "8", "gray:-"],
            check=True, stdout=subprocess.PIPE).stdout
        lines = [pixels[y * width:(y + 1) * width] for y in range(height)]
        inked = [sum(abs(pixel - pixels[0]) > 40 for pixel in line) for line in lines]
        rows, start = [], None
        for y, ink in enumerate([*inked, 0]):
            has_text = 0 < ink < width * 0.9
            if has_text and start is None:
                start = y
            elif not has_text and start is not None:
                if y - start > 3:
                    rows.append((left, top + 4 + start, right, top + 4 + y))
                start = None
        return rows

    # Mouse and keyboard.

    def move(self, place):
        x, y = middle(place)
        # A pointer that comes back to where it was makes no event.
        self._aside = not self._aside
        self._xdotool("mousemove", x + self._aside, y)

    def click(self, place, button=1, times=1):
        self.move(place)
        time.sleep(0.3)  # as a hand does; a menu takes no click before it has seen the mouse
        for _ in range(times):
            self._xdotool("mousedown", button, "sleep", 0.06, "mouseup", button, "sleep", 0.06)

    def key(self, name):
        self._xdotool("key", name)

    @staticmethod
    def _xdotool(*words):
        subprocess.run(["xdotool", *map(str, words)], check=True)

    # The observer's lines.

    def _listen(self):
        window = None
        for raw in self._watch.stdout:
            line = raw.decode("cp1252").rstrip("\r\n")
            with self._lock:
                window = self._take(line.split("\t"), window)
            for listener in self._listeners:
                listener(self.icons(), self.windows())

    def _take(self, words, window):
        kind = words[0]
        if kind == "no icon":
            self._icons = []
        elif kind == "icon":
            icon = Icon(_place(words[1]), words[2], unfold(words[3]))
            self._icons = [i for i in self._icons if i.place != icon.place] + [icon]
        elif kind == "window":
            window = Window(_place(words[2]), words[3], words[4], unfold(words[5]))
            self._windows[words[1]] = window
        elif kind == "control" and window:
            window.controls.append(
                Control(_place(words[2]), int(words[3]), words[4], unfold(words[5])))
        elif kind == "closed":
            self._windows.pop(words[1], None)
        return window


def _place(text):
    return tuple(int(word) for word in text.split(" "))


def wait_for(what, test, seconds=60):
    """Waits until `test()` gives something true and returns it; raises with the words otherwise."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        result = test()
        if result:
            return result
        time.sleep(0.05)
    raise TimeoutError(f"waited {seconds} seconds in vain: {what}")


def windows_path(path):
    return "Z:" + os.path.abspath(path).replace("/", "\\")
