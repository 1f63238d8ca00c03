"""Plays a day over the accessibility bus, by accessible names alone.

given  the program, a display and the buses (see accessibility_test.sh)
when   a person who sees nothing takes a name and a job, lives a day, opens
       and closes every window that the main window offers, and leaves
then   every control that can be used has a name, the names tell the job, the
       date and the money, and the program ends with exit code 0.
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
             "Статус: BEGIN", "Семья: NO WIFE", "Настроение: 25%", "Сытость: 75%",
             "Здоровье: 40%", "Образование: 20%", "Процессор: Нет вооще", "ОС: Нет вооще",
             "Сложность: Нормальная", "Скорость игры: Нормальная"]
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
    """The node and all below it."""
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
        self.process = process
        self.checked = set()
        look = lambda: next((each for each in pyatspi.Registry.getDesktop(0)
                             if each and each.get_process_id() == process.pid), None)
        self.game = wait_for("the program on the bus", look)
        # Every look asks the program itself.
        self.game.setCacheMask(Atspi.Cache.NONE)

    def windows(self):
        nodes = [self.game.getChildAtIndex(i) for i in range(self.game.childCount)]
        return [each for each in nodes if each and each.getState().contains(pyatspi.STATE_SHOWING)]

    def find_window(self, title):
        """The window of that title; reads and closes the boxes that life brings meanwhile."""
        for window in self.windows():
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
            self.check_names(window)
        return window

    @staticmethod
    def check_names(window):
        controls = [each for each in below(window) if each.getRoleName() in INTERACTIVE]
        # The name of a combo box is what is chosen; what for, its description.
        nameless = [each for each in controls if not each.name.strip() or
                    (each.getRoleName() == "combo box" and not each.description.strip())]
        if nameless or not controls:
            what = ", ".join(f'{each.getRoleName()} "{each.name}" in the '
                             f'{each.parent.getRoleName()}' for each in nameless)
            raise Failure(f'"{window.name}" has no name for: {what or "any control"}')
        print(f'"{window.name}": {len(controls)} controls, all with a name')

    @staticmethod
    def find(name, window, role="push button"):
        look = lambda: next((each for each in below(window)
                             if each.getRoleName() == role and each.name == name), None)
        return wait_for(f'{role} "{name}" in "{window.name}"', look)

    def press(self, name, window, role="push button"):
        actions = self.find(name, window, role).queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        if "Press" not in names:
            raise Failure(f'{role} "{name}" cannot be pressed')
        # A menu item that opens a question answers only after the question.
        with suppress(*[GLib.Error] if role == "menu item" else []):
            actions.doAction(names.index("Press"))

    def choose(self, item):
        self.press(item, self.window(MAIN), "menu item")

    def close(self, title, button):
        self.press(button, self.window(title))
        wait_for(f'the end of "{title}"',
                 lambda: all(window.name != title for window in self.windows()))

    def labels(self):
        return [each for each in below(self.window(MAIN)) if each.getRoleName() == "label"]

    def read(self, beginning, patience=PATIENCE):
        """Waits for a label of the main window that begins so; its text."""
        look = lambda: next((each.name for each in self.labels()
                             if each.name.startswith(beginning)), None)
        name = wait_for(f'the label "{beginning}"', look, patience)
        print(f"read: {name}")
        return name


def take_name(player):
    entry = player.find("Имя", player.window("Имя игрока"), "text")
    entry.queryEditableText().setTextContents("Ньютон")
    player.close("Имя игрока", "OK")
    for text in BEGINNING:
        player.read(text)


def take_job(player):
    player.press("Работа", player.window(MAIN))
    player.press("Дворник - $10", player.window("Работа"))
    player.read("Работа: Дворник ($10/день)")
    player.close("Работа", "Назад")


def live_a_day(player):
    player.choose("Быстрый")
    player.read("Скорость игры: Быстр")
    player.read("2 января 2001 г. - ", LONGEST_DAY)
    money = player.read("Бюджет: ")
    # The empty message line describes itself by what it has told.
    told = [each.description for each in player.labels() if each.description and not each.name]
    print(f"the day's messages: {told}")
    if money != "Бюджет: $25" and not told:
        raise Failure(f"{money} after a day without events, not $25")


def look_around(player):
    player.choose("Медленный")
    for opener, title, back in ROUND:
        player.press(opener, player.window(MAIN), "menu item" if "..." in opener else "push button")
        player.close(title, back)
    pyatspi.Registry.generateKeyboardEvent(ord("p"), None, pyatspi.KEY_SYM)
    player.close("Игра приостановлена", "Продолжить")


def leave(player):
    player.choose("Выход")
    player.press("Нет", player.window("Вопрос"))
    if code := player.process.wait(PATIENCE):
        raise Failure(f"the program ended with exit code {code}")
    print("the program ended with exit code 0")


# Milliseconds for an answer, and for one of a program that just started.
Atspi.set_timeout(3000, 15000)
with subprocess.Popen([sys.argv[1]]) as game:
    try:
        newton = Player(game)
        for step in (take_name, take_job, live_a_day, look_around, leave):
            step(newton)
    except (Failure, GLib.Error, subprocess.TimeoutExpired) as failure:
        sys.exit(f"FAILED: {failure}")
    finally:
        game.kill()
