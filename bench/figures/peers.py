"""The first window of the game beside those of well-known small games, and of the
game that brings its toolkit along, seen from outside, as the probe knows the
installed toolkit only: in the display's own memory."""

import mmap
import os
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

from figures.surroundings import PATIENCE, Display, Place

PEERS = ("sgt-mines", "gnome-mines", "kpat")
PORTABLE = "portable"
ROUNDS = 11
STRIDE = 97  # every so many pixels one is looked at
LEAST = 20_000 // STRIDE  # that have changed, as for the probe
TONES = 6  # a plain ground is no window yet


class Screen:
    """The display's pixels, thinned out."""

    def __init__(self, folder):
        with open(Path(folder) / "Xvfb_screen0", "rb") as file:
            self.pixels = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        header = int.from_bytes(self.pixels[:4], "big")
        colours = int.from_bytes(self.pixels[76:80], "big")
        self.first = header + 12 * colours

    def sample(self):
        return self.pixels[self.first::4 * STRIDE]

    def shows_window(self, before):
        now = self.sample()
        if now == before:
            return False
        changed = [new for new, old in zip(now, before) if new != old]
        return len(changed) >= LEAST and len(set(changed)) >= TONES


def seconds_to_window(command, environment, folder, screen):
    time.sleep(0.2)  # the last one's window has gone
    before, began = screen.sample(), time.monotonic()
    process = subprocess.Popen(command, env=environment, cwd=folder, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        while not screen.shows_window(before):
            if time.monotonic() - began > PATIENCE or process.poll() is not None:
                raise RuntimeError(f"{command[0]} showed no window")
            time.sleep(0.0005)
        return time.monotonic() - began
    finally:
        if process.poll() is None:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()


def figures(table, game, floor, rounds, portable=None):
    path = os.environ["PATH"] + ":/usr/games"
    found = {name: shutil.which(name, path=path) for name in PEERS}
    for name in (name for name, program in found.items() if not program):
        table.note(f"not compared with {name}: it is not installed")
    found = {name: program for name, program in found.items() if program}
    if not found and not portable:
        return
    places = {name: Place(program) for name, program in found.items()}
    took = {name: [] for name in ("game", "floor", *found)}
    with tempfile.TemporaryDirectory() as folder, Display(False, ["-fbdir", folder]) as display:
        screen = Screen(folder)
        starts = {"game": (game.command(), game.place), "floor": (floor.command(), floor.place)}
        starts.update({name: ([found[name]], places[name]) for name in found})
        if portable:
            places[PORTABLE] = Place(portable, [portable.with_name(file.name) for file in game.place.shipped])
            took[PORTABLE] = []
            starts[PORTABLE] = ([str(places[PORTABLE].program), "--scale", "1"], places[PORTABLE])
        for number in range((rounds or ROUNDS) + 1):  # the first makes their caches
            for name, (command, place) in starts.items():
                if name in PEERS and name not in found:
                    continue
                place.forget()
                environment = place.environment(display, NO_AT_BRIDGE="1", PATH=path)
                try:
                    seconds = seconds_to_window(command, environment, place.folder, screen)
                except RuntimeError as trouble:
                    if name in ("game", "floor", PORTABLE):
                        raise
                    table.note(f"not compared with {name}: {trouble}")
                    found.pop(name, None)
                    continue
                if number > 0:
                    took[name].append(1000 * seconds)
    table.heading("First window, seen from outside (the peer in the floor's column)")
    table.told("the floor's", took["game"], took["floor"], "ms")
    if portable:
        table.ratio("the game with its own toolkit", took[PORTABLE], took["floor"], 0.75, "ms")
    for name in found:
        bound = 1.0 if name == "sgt-mines" else None
        if bound:
            table.ratio(f"beside {name}", took["game"], took[name], bound, "ms")
        else:
            table.told(f"beside {name}", took["game"], took[name], "ms")
    for place in places.values():
        place.remove()
