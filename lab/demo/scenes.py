"""Further scenes of the demo: stops, companions, switches, logout, and the faces of the status
window. Each leaves the desk as it found it: no window open, no job running."""

import time
from pathlib import Path

from desk import wait_for

FAILED, CONTINUOUS = "tvlogred.ico", ("CDPBlue1.ico", "CDPBlue2.ico")
NORMAL, RUNNING = "tvlog.ico", "tvlogyellow.ico"
STATUS, BOX = "frmStatus", "frmGeneralMessage"
SHIFT = 4  # of stored keys and values


def shifted(text):
    return "".join(chr(ord(letter) + SHIFT) for letter in text)


def set_value(path, section, key, value):
    """Sets one key of an ini file, as another program would."""
    lines = path.read_bytes().decode("cp1252").split("\r\n") if path.exists() else []
    head = f"[{section}]"
    if head not in lines:
        lines += [head]
    at = lines.index(head) + 1
    while at < len(lines) and not lines[at].startswith("["):
        if lines[at].split("=", 1)[0].strip().lower() == key.lower():
            del lines[at]
            break
        at += 1
    lines.insert(lines.index(head) + 1, f"{key}={value}")
    path.write_bytes("\r\n".join(lines).encode("cp1252"))


def running(program):
    """Process ids of a program under Wine."""
    found = []
    for entry in Path("/proc").iterdir():
        if not entry.name.isdigit():
            continue
        try:
            words = (entry / "cmdline").read_bytes().decode("cp1252").split("\0")
        except OSError:
            continue
        if words[0].endswith(program):
            found.append(int(entry.name))
    return found


class Scenes:
    def __init__(self, demo):
        self.demo = demo
        self.tell = demo.timeline.tell
        self.photograph = demo.timeline.photograph
        self.folder = Path(demo.installation)
        self.user = self.folder / "SorvaneEanna"

    # What other programs do.

    def engine(self, section, key, value):
        set_value(self.folder / "LabEngine.ini", section, key, value)

    def profile(self, section, key, value):
        set_value(self.user / "SorvaneE.ini", section, key, value)

    def shared(self, key, value):
        set_value(self.folder / "UserName.ini", "Tolvex", key, value)

    def plan_job(self):
        self.tell("person", "plans a backup, due at once")
        self.demo.desk.run(self.demo.program("SorvaneEClassic.exe"), "schedule")

    def start_job(self):
        self.plan_job()
        self.demo.wait_for_picture(RUNNING, 90)

    # What a person does.

    def open_status(self, name, words):
        self.demo.open_menu()
        self.demo.choose("Status")
        self.demo.wait_for_window(STATUS)
        time.sleep(2.5)  # a fast tick
        self.photograph(name, words)

    def press(self, caption, window=STATUS):
        self.tell("person", f'presses "{caption}"')
        self.demo.desk.click(self.demo.button(window, caption).place)
        time.sleep(2.5)

    def clear(self):
        self.tell("person", "double clicks the icon")
        self.demo.desk.click(self.demo.icon().place, times=2)
        self.demo.wait_for_window("LabMainProgram")
        self.demo.desk.key("alt+F4")
        self.demo.wait_until_closed("LabMainProgram")
        self.demo.wait_for_picture(NORMAL)

    def end_of_job(self, name, words):
        """The window that a job leaves behind, and the red icon until it is cleared."""
        self.demo.wait_for_picture(FAILED, 90)
        self.demo.wait_for_window(STATUS)
        time.sleep(2.5)
        self.photograph(name, words)
        self.demo.close_with("Close", STATUS)
        self.clear()

    # The scenes.

    def keep_company(self):
        """The background process is ended, and comes back."""
        before = running("SorvaneEBackground.exe")
        self.tell("fate", "ends the background process")
        self.demo.desk.run("taskkill", "/F", "/IM", "SorvaneEBackground.exe")
        wait_for("the background process comes back",
                 lambda: set(running("SorvaneEBackground.exe")) - set(before), 60)
        self.tell("screen", "the background process runs again")

    def status_window(self):
        """Idle, running, paused, resumed, cancelled."""
        self.profile("QuotaStatus", "Max", "10737418240")
        self.profile("QuotaStatus", "Used", "3435973836")
        self.open_status("status-idle", "the status window at rest")
        self.demo.close_with("Close", STATUS)
        self.engine("Job", "Files", "40")
        self.start_job()
        self.open_status("status-running", "a running backup")
        self.press("Pause")
        self.photograph("status-paused", "paused; the engine waits")
        self.press("Resume")
        self.photograph("status-resumed", "and goes on")
        self.press("Cancel")
        self.demo.wait_for_window(BOX)
        self.photograph("status-cancel", "a question before it is cancelled")
        self.demo.close_with("Yes", BOX)
        self.demo.wait_until_closed(STATUS)
        self.demo.wait_for_picture(FAILED)
        self.photograph("status-cancelled", "the engine client has ended, the icon tells it")
        self.clear()

    def stop_from_menu(self):
        self.start_job()
        self.demo.open_menu()
        self.demo.choose("Stop Scheduled Backup")
        self.end_of_job("stopped", "the job was stopped from the menu")
        self.engine("Job", "Files", "4")

    def failure(self):
        self.engine("Job", "Ending", "failure")
        self.plan_job()  # too short for the blink to be waited for
        self.end_of_job("status-failed", "a backup that failed")
        self.engine("Job", "Ending", "success")

    def quota(self):
        self.tell("engine client", "tells an exceeded quota")
        self.demo.open_menu()
        self.demo.choose("Status")
        self.demo.wait_for_window(STATUS)
        self.profile("QuotaStatus", "Max", "1073741824")
        self.profile("QuotaStatus", "Used", "1610612736")
        time.sleep(12)  # a slow tick
        self.photograph("status-quota", "more is used than allowed")
        self.profile("QuotaStatus", "Used", "536870912")
        self.demo.close_with("Close", STATUS)

    def continuous_backup(self):
        self.engine("RealTime", "1", "1")
        self.engine("RealTime", "0", "0")
        self.demo.open_menu()
        self.demo.choose("Continuous Backup")
        self.demo.wait_for_window(BOX)
        self.photograph("continuous-question", "before continuous backup is switched on")
        self.demo.close_with("Proceed", BOX)
        wait_for("continuous backup runs",
                 lambda: self.demo.icon() and self.demo.icon().picture in CONTINUOUS, 60)
        self.photograph("continuous", "continuous backup is on")
        self.tell("continuous-backup module", "cannot reach the server")
        self.shared("RTBackup", "5")
        self.demo.wait_for_picture(FAILED)
        self.tell("person", "double clicks the icon")
        self.demo.desk.click(self.demo.icon().place, times=2)
        self.demo.wait_for_window(BOX)
        self.photograph("continuous-failed", "the failure is told in words")
        self.demo.close_with("OK", BOX)
        self.demo.wait_for_picture(NORMAL)

    def explorer_logout(self):
        self.tell("explorer extension", "logs out")
        self.demo.desk.run(self.demo.program("LabExplorer.exe"))
        time.sleep(3)
        self.demo.open_menu()
        self.photograph("logged-out", "the menu shows the login words")
        self.tell("person", "clicks elsewhere")
        self.demo.desk.click((40, 40, 42, 42))
        self.demo.wait_until_closed("#32768")

    def nobody(self):
        """The status window while nobody is logged in."""
        self.tell("person", "logs in through the main program")
        self.demo.desk.run(self.demo.program("SorvaneEClassic.exe"), "login")
        self.demo.open_menu()
        self.demo.choose("Status")
        self.demo.wait_for_window(STATUS)
        self.tell("main program", "takes the user's name away")
        set_value(self.folder / "UserName.ini", "Registry", "Default User name", "")
        time.sleep(5)
        self.photograph("status-logged-out", "nobody is logged in")
        self.demo.close_with("Close", STATUS)
        self.demo.desk.run(self.demo.program("SorvaneEClassic.exe"), "login")

    def new_user(self):
        """A user's first start makes the exclusion lists, the default set and a schedule."""
        self.tell("main program", "marks a new user")
        self.profile("Tolvex", shifted("FirstUser"), shifted("TRUE"))
        for name in ("scheduleData.txt", "SchStatusError.txt"):
            (self.user / name).unlink(missing_ok=True)
        wait_for("the default schedule", (self.user / "scheduleData.txt").exists, 60)
        self.demo.rest_on_icon("Backup will start in next")
        self.photograph("new-user", "a new user has a schedule; the tip tells it")
        self.demo.leave_icon()

    def play(self):
        for scene in (self.keep_company, self.status_window, self.stop_from_menu, self.failure,
                      self.quota, self.continuous_backup, self.explorer_logout, self.nobody,
                      self.new_user):
            scene()
