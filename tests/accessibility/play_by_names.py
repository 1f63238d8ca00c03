"""Plays a day over the accessibility bus, by accessible names alone: a name, a
job, a day, a window, and out. Every control that can be used must have a name,
the names must tell the job and the date, and the program must end with exit
code 0. (accessibility_test.sh brings the display and the buses.)
"""

import subprocess
import sys
import time
from contextlib import suppress

import pyatspi
from gi.repository import Atspi, GLib

PATIENCE = 40  # seconds until something expected counts as missing
LONGEST_DAY = 90  # seconds: a message may be typed before the date moves on
MAIN = "Marshend Torvenhall 1.5 - Ньютон"
INTERACTIVE = {"push button", "text", "combo box", "list", "menu", "menu item"}


def wait_for(what, look, patience=PATIENCE):
    """Repeats a look until it finds something."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        with suppress(GLib.Error):  # what is looked at may go away
            if found := look():
                return found
        time.sleep(0.1)
    sys.exit(f"FAILED: {what}: not there after {patience} s")


class Player:
    def __init__(self, process):
        self.checked = set()
        self.game = wait_for("the program on the bus", lambda: next(
            (each for each in pyatspi.Registry.getDesktop(0)
             if each and each.get_process_id() == process.pid), None))
        self.game.setCacheMask(Atspi.Cache.NONE)  # every look asks the program itself

    def find_window(self, title):
        """The window of that title, after the boxes that life brought are closed."""
        showing = [each for each in (self.game.getChildAtIndex(i)
                                     for i in range(self.game.childCount))
                   if each and each.getState().contains(pyatspi.STATE_SHOWING)]
        for box in showing:
            # A question is no surprise: it waits for its answer.
            if box.name != title and box.getRoleName() == "alert":
                if accept := self.button_of(box, "OK"):
                    print(f"life brought a box: {box.name}")
                    self.activate(accept)
        return next((each for each in showing if each.name == title), None)

    def window(self, title):
        """Waits for a window. The first time its controls are checked for names."""
        window = wait_for(f'the window "{title}"', lambda: self.find_window(title))
        if title not in self.checked:
            self.checked.add(title)
            controls = pyatspi.findAllDescendants(
                window, lambda each: each.getRoleName() in INTERACTIVE)
            # The name of a combo box is what is chosen; what for, its description.
            nameless = [each.getRoleName() for each in controls if not each.name.strip() or
                        (each.getRoleName() == "combo box" and not each.description.strip())]
            if nameless or not controls:
                sys.exit(f'FAILED: "{title}" has no name for: {nameless or "any control"}')
            print(f'"{title}": {len(controls)} controls, all with a name')
        return window

    def find(self, name, title, role="push button"):
        return wait_for(f'{role} "{name}" in "{title}"',
                        lambda: self.button_of(self.window(title), name, role))

    @staticmethod
    def button_of(window, name, role="push button"):
        return pyatspi.findDescendant(
            window, lambda each: each.getRoleName() == role and each.name == name)

    def press(self, name, title, role="push button"):
        self.activate(self.find(name, title, role))

    @staticmethod
    def activate(control):
        actions = control.queryAction()
        actions.doAction([actions.getName(i) for i in range(actions.nActions)].index("Press"))

    def close(self, title, button):
        self.press(button, title)
        wait_for(f'the end of "{title}"', lambda: not self.find_window(title))

    def read(self, beginning, patience=PATIENCE):
        """Waits for a label of the main window that begins so."""
        wait_for(f'the label "{beginning}"', lambda: pyatspi.findDescendant(
            self.window(MAIN),
            lambda each: each.getRoleName() == "label" and each.name.startswith(beginning)), patience)


def play(game):
    player = Player(game)
    entry = player.find("Имя", "Имя игрока", "text")
    entry.queryEditableText().setTextContents("Ньютон")
    player.close("Имя игрока", "OK")
    player.read("1 января 2001 г. - ")
    player.press("Работа", MAIN)
    player.press("Дворник - $10", "Работа")
    player.read("Работа: Дворник ($10/день)")
    player.close("Работа", "Назад")
    player.press("Быстрый", MAIN, "menu item")
    player.read("2 января 2001 г. - ", LONGEST_DAY)
    player.press("Выход", MAIN, "menu item")
    player.press("Нет", "Вопрос")
    if code := game.wait(PATIENCE):
        sys.exit(f"FAILED: the program ended with exit code {code}")


# Milliseconds for an answer, and for one of a program that just started.
Atspi.set_timeout(15000, 30000)
with subprocess.Popen([sys.argv[1]]) as program:
    try:
        play(program)
    finally:
        program.kill()
