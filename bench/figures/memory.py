"""What the game takes of the machine's memory, and that it does not grow."""

import statistics
import time

from figures.session import BUTTONS, MAIN, Session
from figures.surroundings import Display

SETTLED = 2  # seconds, and three more of looking
ROUNDS = 3


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
    bare, young, used = [], [], []
    # One at a time: what it shares with another one would count half.
    with Display(managed=True) as display:
        for number in range(ROUNDS):
            with Session(floor, display) as session:
                time.sleep(SETTLED)
                bare.append(session.settled_memory())
                threads = session.threads()
            with Session(game, display) as session:
                session.begin_life()
                time.sleep(SETTLED)
                young.append(session.settled_memory())
                if number == 0:
                    table.heading("Memory, in proportion to who shares it")
                    table.told("threads", session.threads(), threads, "", 0)
                open_every_window(session)
                used.append(session.settled_memory())
                if number == ROUNDS - 1:
                    growth = grown(session, minutes)
    table.ratio("after 5 seconds", young, bare, 1.10, "MB")
    table.ratio("after every window was opened once", used, bare, 1.35, "MB")
    before, after, rounds = growth
    table.limit(f"own memory {minutes:g} min on, windows {rounds} times", after, None, before * 1.02,
                "MB", 2)
    table.note(f"bound: two hundredths above the first third's median, {before:.2f} MB")


def grown(session, minutes):
    """The medians of the first and the last third of so many minutes in which every
    window opens again and again, since caches come and go, and how often that was."""
    open_every_window(session)
    end, found = time.monotonic() + 60 * minutes, []
    while time.monotonic() < end or len(found) < 3:
        try:
            open_every_window(session)
            found.append(session.memory("Pss_Anon"))
        except RuntimeError:
            break  # a death ends the span
    third = max(1, len(found) // 3)
    return statistics.median(found[:third]), statistics.median(found[-third:]), len(found) + 2
