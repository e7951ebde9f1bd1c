"""The time line of a demo: printed while it happens, kept as a table with the pictures."""

import threading
import time


class Timeline:
    def __init__(self, folder, desk):
        self._folder = folder
        self._desk = desk
        self._start = time.monotonic()
        self._rows = []
        self._pictures = 0
        self._lock = threading.Lock()
        self._icon = None
        desk.on_change(self._look)
        self._known_windows = set()

    def tell(self, who, text):
        """One row: who did what, with the icon as it is at this moment."""
        with self._lock:
            seconds = time.monotonic() - self._start
            picture, tip = self._shown()
            self._rows.append((seconds, picture, tip, who, text))
            print(f"{seconds:7.1f}  {picture:<17} {who:<19} {text}", flush=True)

    def photograph(self, name, what):
        self._pictures += 1
        file = f"{self._pictures:02d}-{name}.png"
        self._desk.photograph(f"{self._folder}/{file}")
        self.tell("camera", f"{file}: {what}")

    def save(self, title):
        lines = [f"# {title}", "", "Observed from outside: the icon's pixels on the screen, its tip in the shell,", 
                 "the windows, and the changes of the shared files as they were found on the disk.", "",
                 "| time (s) | icon | tip | who | what |", "|---:|---|---|---|---|"]
        for seconds, picture, tip, who, text in self._rows:
            cells = [picture, tip.replace("\n", " / "), who, text]
            cells = [cell.replace("|", "\\|").replace("\b", "") for cell in cells]
            if who == "camera":
                file, words = cells[3].split(": ", 1)
                cells[3] = f"[{file}]({file}): {words}"
            lines.append(f"| {seconds:.1f} | " + " | ".join(cells) + " |")
        with open(f"{self._folder}/timeline.md", "w", encoding="utf-8") as out:
            out.write("\n".join(lines) + "\n")

    def _shown(self):
        icons = self._desk.icons()
        if not icons:
            return "(none)", ""
        return " + ".join(i.picture or "(unknown)" for i in icons), icons[0].tip

    def _look(self, icons, windows):
        shown = [(i.picture, i.tip) for i in icons]
        if shown != self._icon:
            before, self._icon = self._icon, shown
            self.tell("notification area", _icon_words(before, icons))
        names = {(w.program, w.class_name, w.title) for w in windows}
        for program, class_name, title in sorted(names - self._known_windows):
            self.tell("screen", f'{program} shows the window {class_name} "{title}"')
        for program, class_name, title in sorted(self._known_windows - names):
            self.tell("screen", f'the window {class_name} "{title}" is closed')
        self._known_windows = names


def _icon_words(before, icons):
    if not icons:
        return "no icon"
    picture, tip = icons[0].picture, icons[0].tip.replace("\n", " / ")
    words = "" if len(icons) == 1 else f"{len(icons)} icons, "
    if before and before[0][0] == picture:
        return f'{words}tip "{tip}"'
    if before and before[0][1] == icons[0].tip:
        return f"{words}picture {picture}"
    return f'{words}picture {picture}, tip "{tip}"'
