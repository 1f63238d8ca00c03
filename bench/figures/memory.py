"""What the game takes of the machine's memory, and that it does not grow."""

import time

from figures.session import BUTTONS, MAIN, Session
from figures.surroundings import Display

SETTLED = 5  # seconds


def open_every_window(session):
    """Each by its button, then the pause and the two dialogs of saved games."""
    for place in BUTTONS:
        session.move(place)
        session.display.tool("click", 1)
        time.sleep(0.4)
        session.back_to(MAIN)
    for keys in ("p", "ctrl+s", "ctrl+o"):
        session.key(keys)
        time.sleep(0.4)
        session.back_to(MAIN)


def figures(table, game, floor, minutes):
    # Both at once: what they share counts half for each.
    with Display(managed=True) as display, Session(floor, display) as bare, \
            Session(game, display) as played:
        played.begin_life()
        time.sleep(SETTLED)
        table.heading("Proportional memory, both running")
        table.ratio(f"after {SETTLED} seconds", played.memory(), bare.memory(), 1.10, "MB")
        table.told("threads", played.threads(), bare.threads(), "", 0)
        open_every_window(played)
        time.sleep(1)
        table.ratio("after every window was opened once", played.memory(), bare.memory(), 1.35,
                    "MB")
        open_every_window(played)
        before, end, rounds = played.memory(), time.monotonic() + 60 * minutes, 2
        while time.monotonic() < end:
            open_every_window(played)
            rounds += 1
        table.limit(f"{minutes:g} min on, all windows {rounds} times", played.memory(), before,
                    before * 1.01, "MB", 2)
        table.note("the floor's column: what it was after two times")
