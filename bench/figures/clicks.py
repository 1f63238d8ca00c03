"""How soon the game answers: a click, a window, a menu, the end."""

import os
import statistics
import time

from figures.session import BUTTONS, FLOOR_BUTTON, MAIN, MENU, NOWHERE, TOWN, Session
from figures.surroundings import Display

ROUNDS, CLICKS, MENUS = 3, 10, 4
CLOSE_BUTTON = "alt+F4"


class Hand:
    """The same movements in the game's main window and in the floor."""

    def __init__(self):
        self.starts, self.clicks, self.windows, self.menus, self.ends = [], [], [], [], []

    def press(self, session, place):
        """A button pressed and left again, so that it does nothing."""
        session.move(place)
        time.sleep(0.2)
        self.clicks.append(session.painted_after(
            "press", lambda: session.display.tool("mousedown", 1), False))
        session.move(NOWHERE)
        session.display.tool("mouseup", 1)
        time.sleep(0.1)

    def open(self, session, place, title):
        session.move(place)
        time.sleep(0.2)
        self.windows.append(session.painted_after(
            "release", lambda: session.display.tool("click", 1), True))
        time.sleep(0.3)
        session.back_to(title)

    def pull(self, session, title):
        session.move(MENU)
        time.sleep(0.2)
        self.menus.append(session.painted_after(
            "press", lambda: session.display.tool("click", 1), True))
        session.key("Escape")
        session.key("Escape")
        session.back_to(title)

    def use(self, session, buttons, openers, title):
        session.come_to(title)
        time.sleep(0.5)
        for number in range(CLICKS):
            self.press(session, buttons[number % len(buttons)])
        for place in openers:
            self.open(session, place, title)
        for _ in range(MENUS):
            self.pull(session, title)

    def seconds_of_play(self, game, display):
        with Session(game, display, ["--still"]) as session:
            self.starts.append(session.begin_life())
            self.use(session, BUTTONS, TOWN, MAIN)
            session.key(CLOSE_BUTTON)
            session.come_to("Вопрос")
            time.sleep(0.3)
            session.key("Right")
            time.sleep(0.2)
            self.ends.append(session.end("Return"))

    def seconds_of_floor(self, floor, display):
        with Session(floor, display) as session:
            self.starts.append(session.first_window)
            self.use(session, [FLOOR_BUTTON], [FLOOR_BUTTON] * len(TOWN), "Floor")
            self.ends.append(session.end(CLOSE_BUTTON))


def attempt(act, times=3):
    """What life brings, a box at the wrong moment, spoils a round at times."""
    for left in reversed(range(times)):
        try:
            return act()
        except RuntimeError as trouble:
            if left == 0:
                raise
            print(f"    a round begins anew: {trouble}", flush=True)


def durable_write(folder, times=9):
    """The seconds that a small file takes to be replaced for good."""
    took = []
    for _ in range(times):
        began = time.monotonic()
        with open(folder / "new", "wb") as file:
            file.write(b"\0" * 600)
            file.flush()
            os.fsync(file.fileno())
        os.rename(folder / "new", folder / "kept")
        directory = os.open(folder, os.O_RDONLY)
        os.fsync(directory)
        os.close(directory)
        took.append(time.monotonic() - began)
    return statistics.median(took)


def figures(table, game, floor, rounds):
    hands = {game: Hand(), floor: Hand()}
    with Display(managed=True) as display:
        for _ in range(min(rounds or ROUNDS, ROUNDS)):
            attempt(lambda: hands[floor].seconds_of_floor(floor, display))
            attempt(lambda: hands[game].seconds_of_play(game, display))
    write = 1000 * durable_write(game.place.program.parent)
    def of(program, name):
        return [1000 * seconds for seconds in getattr(hands[program], name)]
    table.heading("Answers, under a window manager")
    table.ratio("OK to main window, floor's own start", of(game, "starts"), of(floor, "starts"),
                1.0, "ms")
    table.ratio("click to repaint, median", of(game, "clicks"), of(floor, "clicks"), 1.3, "ms", 2)
    table.limit("click to repaint, 95 %", late(of(game, "clicks")), late(of(floor, "clicks")), 2,
                "ms", 2)
    table.ratio("place in town painted, an empty dialog", of(game, "windows"),
                of(floor, "windows"), 1.5, "ms")
    table.told("the slowest of the places", max(of(game, "windows")), max(of(floor, "windows")),
               "ms")
    table.limit("menu painted", of(game, "menus"), of(floor, "menus"), 2, "ms", 2)
    table.told("one durable write", write, None, "ms")
    bound = 1.5 * statistics.median(of(floor, "ends")) + write
    table.limit("close to process gone", of(game, "ends"), of(floor, "ends"), bound, "ms")


def late(values):
    """What 95 of 100 do not exceed."""
    return statistics.quantiles(values, n=20)[-1]
