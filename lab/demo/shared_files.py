"""Watches the files of an installation and tells who changed what.

Every change is seen in the files themselves. The stand-ins note their own writes in LabWrites.txt;
a change that none of them noted is the agent's.
"""

import threading
import time
from pathlib import Path

NOTES = "LabWrites.txt"
# Not part of what the programs tell each other, or known before.
QUIET = {NOTES.lower(), "labcalls.txt", "traytracefile.txt", "configuration.ini", "labengine.ini"}
QUIET_FOLDERS = {"images"}
PERIOD = 0.1  # seconds

STAND_INS = {
    "SorvaneEClsClient.exe": "engine client",
    "SorvaneEBackground.exe": "background process",
    "SorvaneEClassic.exe": "main program",
    "SorvanePlugin.exe": "web plug-in",
}


def read_ini(text):
    values, section = {}, ""
    for line in text.splitlines():
        line = line.strip()
        if line.startswith("[") and line.endswith("]"):
            section = line[1:-1]
        elif "=" in line:
            key, value = line.split("=", 1)
            values[section, key.strip()] = value.strip()
    return values


class SharedFiles:
    """Calls `tell(who, text)` for each change until `stop`."""

    def __init__(self, folder, tell):
        self._folder = Path(folder)
        self._tell = tell
        self._texts = {}
        self._texts = self._snapshot()
        self._inis = {}
        self._notes_read = 0
        self._notes = []
        self._stopped = threading.Event()
        for name, text in self._texts.items():
            if name.lower().endswith(".ini"):
                self._inis[name] = read_ini(text)
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()

    def stop(self):
        self._stopped.set()
        self._thread.join()
        self._look()

    def _run(self):
        while not self._stopped.is_set():
            self._look()
            time.sleep(PERIOD)

    def _snapshot(self):
        texts = {}
        for path in sorted(self._folder.rglob("*")):
            name = path.relative_to(self._folder).as_posix()
            if (path.suffix.lower() not in (".ini", ".txt") or path.name.lower() in QUIET
                    or name.split("/")[0].lower() in QUIET_FOLDERS):
                continue
            text = self._read(path)
            if text is None and path.exists():
                text = self._texts.get(name)
            if text is not None:
                texts[name] = text
        return texts

    @staticmethod
    def _read(path):
        """The content, or nothing while somebody is writing it anew."""
        try:
            before = path.read_bytes()
            time.sleep(0.005)
            if before != path.read_bytes() or (not before and path.suffix.lower() == ".ini"):
                return None
            return before.decode("cp1252", "replace")
        except OSError:
            return None

    def _look(self):
        texts = self._snapshot()
        self._read_notes()
        for name in sorted(set(texts) | set(self._texts)):
            before, now = self._texts.get(name), texts.get(name)
            if before == now:
                continue
            if name.lower().endswith(".ini"):
                self._tell_ini(name, now or "")
            else:
                self._tell_text(name, before, now)
        self._texts = texts

    def _tell_ini(self, name, text):
        before, now = self._inis.get(name, {}), read_ini(text)
        changes = {}
        for place in now:
            if before.get(place) != now[place]:
                section, key = place
                who = self._writer(name, section, key, now[place])
                changes.setdefault((who, section), []).append(f'{key}="{now[place]}"')
        for (who, section), parts in changes.items():
            self._tell(who, f"{name} [{section}] " + ", ".join(parts))
        self._inis[name] = now

    def _tell_text(self, name, before, now):
        if now is None:
            self._tell(self._writer(name, "", "remove"), f"{name} is deleted")
            return
        what = "is made" if before is None else "changes"
        who = self._writer(name, "", "replace")
        if who == "agent":
            who = self._writer(name, "", "append")
        first = now.split("\r\n", 1)[0].replace("\b\b", " | ")
        shown = "" if "\0" in first or name.startswith("session") or not first else f': "{first}"'
        self._tell(who, f"{name} {what}{shown}")

    def _read_notes(self):
        try:
            text = (self._folder / NOTES).read_bytes().decode("cp1252", "replace")
        except OSError:
            return
        lines = text.split("\r\n")[:-1]
        for line in lines[self._notes_read:]:
            program, path, section, key, value = line.split("\t")
            self._notes.append((program, path.replace("\\", "/").lower(), section, key, value))
        self._notes_read = len(lines)

    def _writer(self, name, section, key, value=""):
        """Who noted this write; the note and older ones of the same place are used up."""
        same_place = [n for n in self._notes if n[1:4] == (name.lower(), section, key)]
        matching = [n for n in same_place if n[4] == value]
        if not matching:
            return "agent"
        last = matching[-1]
        for note in same_place[: same_place.index(last) + 1]:
            self._notes.remove(note)
        return STAND_INS.get(last[0], last[0])
