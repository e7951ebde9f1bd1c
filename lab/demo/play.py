"""Plays one scheduled backup on the real executable and tells what is seen.

usage: play.py INSTALLATION OBSERVER OUTPUT

INSTALLATION is a staged installation with the stand-ins, on the disk of the Wine prefix in use.
"""

import re
import sys
import time

from desk import Desk, wait_for, windows_path
from scenes import Scenes
from shared_files import SharedFiles
from timeline import Timeline

MAIN_FORM = "frmTVWinService"
MENU = "#32768"
MENU_ITEMS = (
    "Status", "Schedule Backup", "Explorer", "Activity Log", "Web Management", "Continuous Backup",
    "Stop Scheduled Backup", "Disable Automatic Backup", "Manage all the Scheduled Jobs",
    "Backup Now", "Check for Updates", "Send Error Report", "Help", "Exit")
NORMAL, RUNNING, DONE = "tvlog.ico", "tvlogyellow.ico", "tvloggreen.ico"


def without_numbers(text):
    """The minutes that a tip tells go on meanwhile."""
    return re.sub(r"\d+", "#", text)


class Demo:
    def __init__(self, installation, observer, output):
        self.installation = installation
        self.desk = Desk(windows_path(observer), windows_path(f"{installation}/Images"))
        self.timeline = Timeline(output, self.desk)
        self.files = SharedFiles(installation, self.timeline.tell)

    def program(self, name):
        return windows_path(f"{self.installation}/{name}")

    # What a person sees.

    def icon(self):
        icons = self.desk.icons()
        return icons[0] if len(icons) == 1 else None

    def wait_for_picture(self, picture, seconds=60):
        wait_for(f"the icon shows {picture}",
                 lambda: self.icon() and self.icon().picture == picture, seconds)

    def rest_on_icon(self, words, seconds=60):
        """Moves the mouse over the icon until its tip has these words; the tip is on show then."""

        def tip_tells():
            self.desk.move(self.icon().place)
            time.sleep(0.4)
            return words in self.icon().tip

        wait_for(f'the tip tells "{words}"', tip_tells, seconds)
        time.sleep(1.2)

    def leave_icon(self):
        self.desk.move((300, 200, 302, 202))

    def wait_for_window(self, class_name, seconds=60):
        window = wait_for(f"the window {class_name}", lambda: self.desk.window(class_name), seconds)
        time.sleep(1.5)  # a window that fades in
        return self.desk.window(class_name) or window

    def wait_until_closed(self, class_name, seconds=60):
        wait_for(f"the window {class_name} closes", lambda: not self.desk.window(class_name),
                 seconds)

    def close_with(self, caption, class_name):
        """Presses a button that closes its window, again when the window does not react."""
        for word in ("presses", "presses once more", "presses a third time"):
            self.timeline.tell("person", f'{word} "{caption}"')
            self.desk.click(self.button(class_name, caption).place)
            if self.closes(class_name):
                return
        raise TimeoutError(f"{class_name} does not close")

    def button(self, class_name, caption):
        window = self.wait_for_window(class_name)
        for control in window.controls:
            if control.text == caption:
                return control
        raise LookupError(f"{class_name} shows no control {caption!r}: "
                          + ", ".join(repr(c.text) for c in window.controls))

    def closes(self, class_name):
        try:
            self.wait_until_closed(class_name, seconds=8)
            return True
        except TimeoutError:
            return False

    # The story.

    def begin(self):
        self.timeline.tell("person", "logs in through the main program")
        self.desk.run(self.program("SorvaneEClassic.exe"), "login")
        self.timeline.tell("person", "starts the agent")
        self.desk.start(self.program("SorvaneETray.exe"))
        self.wait_for_picture(NORMAL)
        self.rest_on_icon("No backup has been scheduled.")
        self.timeline.photograph("started", "the agent is there, nothing is scheduled")
        self.leave_icon()

    def back_up(self):
        with open(f"{self.installation}/LabEngine.ini", "w", encoding="ascii") as script:
            script.write("[Job]\r\nFiles=14\r\n")
        self.timeline.tell("person", "plans a daily backup, due at once")
        self.desk.run(self.program("SorvaneEClassic.exe"), "schedule")
        self.wait_for_picture(RUNNING)
        self.timeline.photograph("running", "the backup runs, the icon blinks")
        self.rest_on_icon("Backed up files: 2")
        self.timeline.photograph("progress", "the tip counts the files")
        self.open_menu()
        self.choose("Status")
        self.wait_for_window("frmStatus")
        self.leave_icon()
        self.timeline.photograph("status", "the status window shows the transfer")
        self.wait_for_picture(DONE, seconds=90)
        time.sleep(1)
        self.timeline.photograph("done", "the backup has ended well, and its window tells it")
        self.close_with("Close", "frmStatus")
        self.leave_icon()

    def clear(self):
        time.sleep(6)  # green stays
        self.wait_for_picture(DONE, seconds=5)
        self.timeline.tell("person", "double clicks the icon")
        self.desk.click(self.icon().place, times=2)
        self.wait_for_picture(NORMAL)
        self.wait_for_window("LabMainProgram")
        self.timeline.photograph("cleared", "the double click clears it and opens the main program")
        self.desk.key("alt+F4")
        self.wait_until_closed("LabMainProgram")

    def renew_shell(self):
        before = without_numbers(self.icon().tip)
        self.timeline.tell("shell", "starts anew: its area is empty, and it tells all windows")
        self.desk.renew_shell(MAIN_FORM)
        wait_for("the icon is gone and back", lambda: self.icon())
        time.sleep(4)
        if len(self.desk.icons()) != 1 or without_numbers(self.icon().tip) != before:
            raise AssertionError(f"not one icon with its old tip: {self.desk.icons()}")
        self.timeline.photograph("shell-anew", "one icon again, with its old tip")

    def open_menu(self, photograph=False):
        self.timeline.tell("person", "clicks the icon with the right button")
        self.desk.click(self.icon().place, button=3)
        self.wait_for_window(MENU)
        if photograph:
            self.desk.move(self.desk.text_rows(self.desk.window(MENU).place)[1])
            time.sleep(1)
            self.timeline.photograph("menu", "the menu")

    def choose(self, item):
        rows = self.desk.text_rows(self.desk.window(MENU).place)
        if len(rows) != len(MENU_ITEMS):
            raise LookupError(f"the menu shows {len(rows)} items, not {len(MENU_ITEMS)}")
        # A busy desktop may not have seen the mouse yet when the click comes.
        for word in ("chooses", "chooses once more", "chooses a third time"):
            self.timeline.tell("person", f'{word} "{item}"')
            self.desk.click(rows[MENU_ITEMS.index(item)])
            if self.closes(MENU):
                return
        raise TimeoutError(f"the menu does not take {item!r}")

    def answer_a_question(self):
        self.open_menu(photograph=True)
        self.choose("Web Management")
        self.wait_for_window("frmGeneralMessage")
        self.timeline.photograph("message", "the product's own message box")
        self.close_with("Cancel", "frmGeneralMessage")

    def alert(self):
        self.timeline.tell("web plug-in", "reports an error")
        self.desk.run(self.program("SorvanePlugin.exe"), "error", "-3")
        self.wait_for_window("frmWelcome")
        self.timeline.photograph("web-alert", "the web alert at the lower right")
        self.close_with("Close", "frmWelcome")

    def end(self):
        self.open_menu()
        self.choose("Exit")
        wait_for("the icon goes", lambda: not self.desk.icons())
        time.sleep(1)
        self.timeline.photograph("ended", "the agent has ended and taken its icon along")

    def play(self):
        for act in (self.begin, self.back_up, self.clear, self.renew_shell, self.answer_a_question,
                    self.alert, Scenes(self).play, self.end):
            act()


def main():
    installation, observer, output = sys.argv[1:]
    demo = Demo(installation, observer, output)
    try:
        demo.play()
    except Exception as error:
        demo.timeline.tell("demo", f"ends early: {error}")
        demo.timeline.photograph("ended-early", "the screen at that moment")
        raise SystemExit(f"the demo ended early: {error}")
    finally:
        demo.files.stop()
        demo.timeline.save("One scheduled backup")
        demo.desk.close()


if __name__ == "__main__":
    main()
