"""A program that runs under a window manager, and the hand that uses it."""

import os
import subprocess
import time

from figures.programs import SMALLEST_WINDOW
from figures.surroundings import wait_until

NAME_DIALOG, MAIN = "Имя игрока", "Marshend Torvenhall 1.5 - Newton"
CLOSING = "Вопрос"
# Places in the main window at scale 1, frame excluded: of the menu bar, of a
# spot where nothing is, of the buttons along the foot.
MENU, NOWHERE = (20, 11), (300, 300)
BUTTONS = [(38 + 63 * number, 418) for number in range(8)]
TOWN = BUTTONS[:7]  # the eighth is closed to a beginner
FLOOR_BUTTON = (451, 48)


class Session:
    """From the start of a program to its end; figures are taken meanwhile."""

    def __init__(self, program, display, more=()):
        self.program, self.display = program, display
        program.begin()
        self.log = open(program.place.folder / "log", "wb")  # closed with the session
        self.began = time.monotonic()
        self.process = subprocess.Popen(
            program.command(more), env=program.environment(display, False), stdout=self.log,
            stderr=self.log, cwd=program.place.folder)
        first = wait_until(self.windows, f"the first window of {program.name}")[0]
        self.first_window = first.time - self.began

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        self.log.close()

    # --- what it does ---

    def windows(self):
        """Everything of a window's size that was painted."""
        return [p for p in self.program.puts() if p.width * p.height >= SMALLEST_WINDOW]

    def processor(self):
        """Seconds of the processor so far."""
        return time.clock_gettime((~self.process.pid << 3) | 2)

    def sleeps(self):
        """How often each of its threads has gone to sleep so far."""
        found, folder = {}, f"/proc/{self.process.pid}/task"
        for thread in os.listdir(folder):
            with open(f"{folder}/{thread}/status", encoding="ascii", errors="replace") as status:
                found[thread] = sum(int(line.split()[1]) for line in status
                                    if line.startswith("voluntary_ctxt_switches"))
        return found

    def wakeups_since(self, before):
        """How often a thread has woken since; one that has ended did so once."""
        now = self.sleeps()
        return (sum(count - before.get(thread, 0) for thread, count in now.items()) +
                len(before.keys() - now.keys()))

    def memory(self, of="Pss"):
        """Proportional memory, MB; of "Pss_Anon" what is in no file."""
        with open(f"/proc/{self.process.pid}/smaps_rollup", encoding="ascii") as rollup:
            return next(int(line.split()[1]) for line in rollup
                        if line.startswith(of + ":")) / 1024

    def settled_memory(self, seconds=3):
        """The most in so many seconds: whatever else starts meanwhile and shares the
        same libraries lowers it for a while."""
        end, most = time.monotonic() + seconds, 0
        while time.monotonic() < end:
            most = max(most, self.memory())
            time.sleep(0.2)
        return most

    def threads(self):
        return len(os.listdir(f"/proc/{self.process.pid}/task"))

    # --- what the hand does ---

    def front(self):
        return self.display.tool("getactivewindow", "getwindowname")

    def key(self, *keys):
        self.display.tool("key", *keys)

    def move(self, place):
        window = self.display.tool("getactivewindow")
        self.display.tool("mousemove", "--window", window, *place)

    def come_to(self, title):
        wait_until(lambda: self.front() == title, f"{title}; in front is {self.front()}")

    def back_to(self, title):
        """Closes whatever is in front of the window."""
        def there():
            if self.front() != title:
                self.key("Escape")
                time.sleep(0.1)
            return self.front() == title
        wait_until(there, f"back to {title}; in front is {self.front()}")

    def begin_life(self):
        """Answers the name dialog; the seconds from Enter to the main window."""
        self.come_to(NAME_DIALOG)
        self.display.tool("type", "--delay", "10", "Newton")
        self.key("Tab", "Down", "shift+Tab")  # the easiest level: nobody dies of mood soon
        time.sleep(0.5)
        dialog = {put.window for put in self.program.puts()}
        self.key("Return")
        main = wait_until(lambda: [p for p in self.windows() if p.window not in dialog],
                          "the main window")[0]
        self.come_to(MAIN)
        return main.time - self.last("press", main.time)

    def last(self, kind, before=float("inf")):
        """When the program heard of a key or click last, before a time."""
        times = [int(note[1]) / 1e9 for note in self.program.notes() if note[0] == kind]
        return max(t for t in times if t <= before)

    def painted_after(self, kind, act, new_window):
        """The seconds from the last note of that kind, which the act causes, to
        the next pixels; of a window that was not there before, if so wanted."""
        present = {put.window for put in self.program.puts()}
        count = sum(note[0] == kind for note in self.program.notes())
        act()
        wait_until(lambda: sum(n[0] == kind for n in self.program.notes()) > count,
                   "the click to arrive")
        heard = self.last(kind)

        def after():
            return [p.time - heard for p in self.program.puts() if p.time > heard
                    and not (new_window and p.window in present)]
        return wait_until(after, "pixels after a click")[0]

    def end(self, *keys):
        """Ends the program by the last of the keys; the seconds until it is gone."""
        self.key(*keys)
        self.process.wait(timeout=20)
        gone = time.monotonic()
        heard = max(self.last(kind) for kind in ("press", "message")
                    if any(note[0] == kind for note in self.program.notes()))
        return gone - heard
