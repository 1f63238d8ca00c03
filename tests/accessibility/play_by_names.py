"""Plays a day over the accessibility bus, by accessible names alone: a name, a
job, a day, every window, and out. Every control that can be used must have a
name, the names must tell the job, the date and the money, and the program must
end with exit code 0. (accessibility_test.sh brings the display and the buses.)
"""

import subprocess
import sys
import time
from contextlib import suppress

import pyatspi
from gi.repository import Atspi, GLib

PATIENCE = 15  # seconds until something expected counts as missing
LONGEST_DAY = 45  # seconds: a message may be typed before the date moves on
MAIN = "Marshend Torvenhall 1.5 - Ньютон"
INTERACTIVE = {"push button", "check box", "radio button", "text", "entry", "combo box", "list",
               "list item", "menu", "menu item", "slider", "spin button", "page tab", "table"}
# What a new life reads like.
BEGINNING = ["1 января 2001 г. - ", "Работа: Безработный ($0/день)", "Бюджет: $15",
             "Семья: NO WIFE", "Настроение: 25%", "Процессор: Нет вооще", "Сложность: Нормальная"]
# What opens a window, the window, and what closes it again.
ROUND = [("Железо", "Железо", "Назад"), ("Программы", "Софт", "Назад"),
         ("Развлечения", "Развлечения", "Назад"), ("Больница", "Госпиталь", "Назад"),
         ("Магазин", "Магазин", "Назад"), ("Школа", "Повышение квалификации", "Назад"),
         ("Выход в свет", "Слабая машинка", "OK"), ("О программе...", "О Torvenhall 1.5", "OK"),
         ("Сохранить игру...", "Сохранение игры", "Отмена"),
         ("Загрузить игру...", "Загрузка игры", "Отмена")]


class Failure(Exception):
    """What a player would miss, in words."""


def below(node):
    yield node
    for child in filter(None, [node.getChildAtIndex(i) for i in range(node.childCount)]):
        yield from below(child)


def wait_for(what, look, patience=PATIENCE):
    """Repeats a look until it finds something."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        with suppress(GLib.Error):  # what is looked at may go away
            if found := look():
                return found
        time.sleep(0.1)
    raise Failure(f"{what}: not there after {patience} s")


class Player:
    def __init__(self, process):
        self.checked = set()
        self.game = wait_for("the program on the bus", lambda: next(
            (each for each in pyatspi.Registry.getDesktop(0)
             if each and each.get_process_id() == process.pid), None))
        self.game.setCacheMask(Atspi.Cache.NONE)  # every look asks the program itself

    def find_window(self, title):
        """The window of that title; closes the boxes that life brings meanwhile."""
        for window in [self.game.getChildAtIndex(i) for i in range(self.game.childCount)]:
            if window and window.getState().contains(pyatspi.STATE_SHOWING):
                if window.name == title:
                    return window
                if window.getRoleName() == "alert":
                    print(f"life brought a box: {window.name}")
                    self.press("OK", window)
        return None

    def window(self, title):
        """Waits for a window. The first time its controls are checked for names."""
        window = wait_for(f'the window "{title}"', lambda: self.find_window(title))
        if title not in self.checked:
            self.checked.add(title)
            controls = [each for each in below(window) if each.getRoleName() in INTERACTIVE]
            # The name of a combo box is what is chosen; what for, its description.
            nameless = [each.getRoleName() for each in controls if not each.name.strip() or
                        (each.getRoleName() == "combo box" and not each.description.strip())]
            if nameless or not controls:
                raise Failure(f'"{title}" has no name for: {nameless or "any control"}')
            print(f'"{title}": {len(controls)} controls, all with a name')
        return window

    @staticmethod
    def find(name, window, role="push button"):
        return wait_for(f'{role} "{name}" in "{window.name}"', lambda: next(
            (each for each in below(window)
             if each.getRoleName() == role and each.name == name), None))

    def press(self, name, window, role="push button"):
        actions = self.find(name, window, role).queryAction()
        actions.doAction([actions.getName(i) for i in range(actions.nActions)].index("Press"))

    def choose(self, item):
        self.press(item, self.window(MAIN), "menu item")

    def close(self, title, button):
        self.press(button, self.window(title))
        wait_for(f'the end of "{title}"', lambda: not self.find_window(title))

    def read(self, beginning, patience=PATIENCE):
        """Waits for a label of the main window that begins so; its text."""
        name = wait_for(f'the label "{beginning}"', lambda: next(
            (each.name for each in below(self.window(MAIN))
             if each.getRoleName() == "label" and each.name.startswith(beginning)), None), patience)
        print(f"read: {name}")


def play(game):
    player = Player(game)
    entry = player.find("Имя", player.window("Имя игрока"), "text")
    entry.queryEditableText().setTextContents("Ньютон")
    player.close("Имя игрока", "OK")
    for text in BEGINNING:
        player.read(text)
    player.press("Работа", player.window(MAIN))
    player.press("Дворник - $10", player.window("Работа"))
    player.read("Работа: Дворник ($10/день)")
    player.close("Работа", "Назад")
    player.choose("Быстрый")
    player.read("Скорость игры: Быстр")
    player.read("2 января 2001 г. - ", LONGEST_DAY)
    player.read("Бюджет: ")
    player.choose("Медленный")
    for opener, title, back in ROUND:
        player.press(opener, player.window(MAIN), "menu item" if "..." in opener else "push button")
        player.close(title, back)
    pyatspi.Registry.generateKeyboardEvent(ord("p"), None, pyatspi.KEY_SYM)
    player.close("Игра приостановлена", "Продолжить")
    player.choose("Выход")
    player.press("Нет", player.window("Вопрос"))
    if code := game.wait(PATIENCE):
        raise Failure(f"the program ended with exit code {code}")


# Milliseconds for an answer, and for one of a program that just started.
Atspi.set_timeout(3000, 15000)
with subprocess.Popen([sys.argv[1]]) as program:
    try:
        play(program)
    except (Failure, GLib.Error, subprocess.TimeoutExpired) as failure:
        sys.exit(f"FAILED: {failure}")
    finally:
        program.kill()
