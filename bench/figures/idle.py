"""What a window costs that is only looked at, with the clock running and paused."""

import time

from figures.session import Session
from figures.surroundings import Display

SETTLING, RUNNING, PAUSED = 1.5, 8, 30  # seconds; a game day is twelve
ROUNDS = 3


class Watched:
    """What a session costs in a span of time, a second."""

    def __init__(self, session, seconds):
        time.sleep(SETTLING)
        puts, slept = len(session.program.puts()), session.sleeps()
        spent, began = session.processor(), time.monotonic()
        time.sleep(seconds)
        span = time.monotonic() - began
        self.processor = (session.processor() - spent) / span
        self.wakeups = session.wakeups_since(slept) / span
        new = session.program.puts()[puts:]
        self.repaints = len(new) / span
        self.pixels = sum(put.width * put.height for put in new) / span
        self.largest = max((put.width * put.height for put in new), default=0)


def figures(table, game, floor, rounds):
    running = {"floor": [], "still": [], "moving": []}
    paused = []
    with Display(managed=True) as display:
        for number in range(min(rounds or ROUNDS, ROUNDS)):
            for way in running if number % 2 else reversed(running):
                program = floor if way == "floor" else game
                with Session(program, display, ["--still"] if way == "still" else []) as session:
                    if program is game:
                        session.begin_life()
                    running[way].append(Watched(session, RUNNING))
                    if way == "moving" and number == 0:
                        session.key("p")
                        session.come_to("Игра приостановлена")
                        paused.append(Watched(session, PAUSED))
    table.heading("The clock running, nothing else moving")
    def of(way, name, factor=1.0):
        return [factor * getattr(watched, name) for watched in running[way]]
    table.ratio("processor", of("still", "processor", 100), of("floor", "processor", 100), 1.1,
                "%", 3)
    table.limit("wake-ups a second", of("still", "wakeups"), of("floor", "wakeups"), 12,
                "", 0)
    table.ratio("repainted, 1000 pixels a second", of("still", "pixels", 1e-3),
                of("floor", "pixels", 1e-3), 1.1)
    table.told("repaints a second", of("still", "repaints"), of("floor", "repaints"))
    table.told("largest repaint, pixels", of("still", "largest"), of("floor", "largest"), "", 0)
    table.heading("With the small motions")
    more = [100 * (m.processor - s.processor) for m, s in zip(running["moving"], running["still"])]
    table.limit("processor, more than without them", more, None, 1.0, "%", 3)
    table.told("wake-ups a second", of("moving", "wakeups"), of("floor", "wakeups"))
    table.told("repainted, 1000 pixels a second", of("moving", "pixels", 1e-3),
               of("floor", "pixels", 1e-3))
    table.heading(f"Paused, for {PAUSED} seconds")
    watched = paused[0]
    table.limit("processor, ms", 1000 * watched.processor * PAUSED, None, 0.5)
    table.limit("wake-ups", watched.wakeups * PAUSED, None, 1.01, "", 0)
    table.limit("repaints", watched.repaints * PAUSED, None, 0, "", 0)
