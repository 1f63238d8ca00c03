"""Starting the programs that are measured, and the probe's notes of them."""

import collections
import os
import re
import subprocess
import time
from pathlib import Path

from figures.surroundings import Place

SMALLEST_WINDOW = 20_000  # pixels, as for the probe

Start = collections.namedtuple("Start", "painted cpu")  # seconds
Put = collections.namedtuple("Put", "time window width height cpu")


class Program:
    """One of the programs, as it is started for every figure."""

    def __init__(self, name, path, probe, arguments=(), shipped=()):
        self.name = name
        self.place = Place(path, shipped)
        self.probe = str(probe)
        self.arguments = list(arguments)
        self.notes_file = self.place.folder / "notes"

    def command(self, more=()):
        return [str(self.place.program), *self.arguments, *more]

    def environment(self, display, ends, more=None):
        probed = {"LD_PRELOAD": self.probe, "TORVENHALL_PROBE": str(self.notes_file)}
        if ends:
            probed["TORVENHALL_PROBE_END"] = "1"
        return self.place.environment(display, **probed, **(more or {}))

    def notes(self):
        """The probe's notes so far."""
        try:
            lines = self.notes_file.read_text().splitlines()
        except FileNotFoundError:
            return []
        return [line.split() for line in lines]

    def puts(self):
        return [Put(int(t) / 1e9, int(w), int(x), int(y), int(c) / 1e9)
                for kind, t, w, x, y, c in (n for n in self.notes() if n[0] == "put")]

    def begin(self):
        self.place.forget()
        self.notes_file.unlink(missing_ok=True)

    def run_to_first_window(self, display, before=(), more=None, limit=30):
        """Starts the program, perhaps under another one, until its first window
        is painted, with which it ends. The seconds to it, and of the processor."""
        self.begin()
        environment = self.environment(display, True, more)
        log = self.place.folder / "log"
        with open(log, "wb") as told:
            began = time.monotonic()
            ended = subprocess.run([*before, *self.command()], env=environment, stdout=told,
                                   stderr=told, timeout=limit, check=False,
                                   cwd=self.place.folder)
        windows = [put for put in self.puts() if put.width * put.height >= SMALLEST_WINDOW]
        if ended.returncode != 0 or not windows:
            raise RuntimeError(f"{self.name} showed no window: " +
                               log.read_text(errors="replace")[-600:])
        return Start(windows[-1].time - began, windows[-1].cpu)

    def instructions(self, display):
        """Those from the start to the first painted window, by callgrind."""
        profile = self.place.folder / "callgrind.out"
        profile.unlink(missing_ok=True)
        self.run_to_first_window(
            display, ["valgrind", "--tool=callgrind", f"--callgrind-out-file={profile}"],
            limit=120)
        return int(re.search(r"^(?:summary|totals): (\d+)", profile.read_text(), re.M)[1])

    def profile(self, by):
        """(instructions, name) of the last callgrind run, by "ob" (library) or
        "fn" (function), the most expensive first."""
        return profile_of(self.place.folder / "callgrind.out", by)

    def opened_files(self, display):
        """The regular files that a start opens until its first window."""
        trace = self.place.folder / "trace"
        self.run_to_first_window(
            display, ["strace", "-f", "-qq", "-e", "trace=openat,open", "-o", str(trace)])
        opened = re.findall(r'open(?:at)?\([^"]*"([^"]+)".*= \d+$', trace.read_text(), re.M)
        own = str(self.place.folder)
        return [file for file in opened
                if Path(file).is_file() and not file.startswith(("/proc/", "/sys/", "/dev/"))
                and file not in (self.probe, f"{own}/notes")]


def play_programs(build):
    """The game and its floor, as they lie in a build folder."""
    probe, app = build / "bench" / "libprobe.so", build / "src" / "app"
    # The floor is as large as the main window is at scale 1.
    game = Program("the game", app / "torvenhall", probe, ["--scale", "1"],
                   [app / name for name in ("ANECDOT.DAT", "License.txt", "Readme.txt")])
    return game, Program("the floor", build / "bench" / "floor", probe)


def profile_of(file, by):
    """Adds up the own costs in callgrind's file, whose names are numbered."""
    names, costs, current, calls = {}, collections.Counter(), None, False
    position = re.compile(r"(ob|fn)=\((\d+)\)(?: (.*))?$")
    for line in file.read_text(errors="replace").splitlines():
        if line.startswith("calls="):
            calls = True  # the next line is another function's cost
        elif re.match(r"[+*-]?\d* ?\d", line) or line.startswith("* "):
            if not calls:
                costs[current] += int(line.split()[-1])
            calls = False
        elif line.startswith(("c", "j")) and "=" in line:
            called = re.match(r"c(ob|fn)=\((\d+)\) (.*)$", line)
            if called:
                names[called[1], called[2]] = called[3]
        else:
            found = position.match(line)
            if found:
                if found[3]:
                    names[found[1], found[2]] = found[3]
                if found[1] == by:
                    current = found[2]
    return [(cost, names.get((by, number), "?")) for number, cost in costs.most_common() if number]


def linked_libraries(program):
    """The names of the libraries that the loader maps before main()."""
    told = subprocess.run(["ldd", str(program)], capture_output=True, text=True, check=True).stdout
    return {line.split()[0].rsplit("/", 1)[-1] for line in told.splitlines() if line.strip()}


def evict(files):
    """Drops the files from the memory of the system, unless others use them."""
    for file in files:
        descriptor = os.open(file, os.O_RDONLY)
        try:
            os.fsync(descriptor)
            os.posix_fadvise(descriptor, 0, 0, os.POSIX_FADV_DONTNEED)
        finally:
            os.close(descriptor)
