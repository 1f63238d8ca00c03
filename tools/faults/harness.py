"""What the drivers of the saver share: its runs, a folder for them, the verdict."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SKIPPED = 77  # what ctest takes for "not possible here"
GAME = "Игра"
STRAY = ".torvenhall-"
NOBODY = 65534
LONGEST_RUN = 20  # seconds; a run takes hundredths, under the sanitizers tenths
OUTDATED = 120  # seconds; a stray may be swept when it is older than a minute


class Told:
    """What one run of the saver printed and how it ended."""

    def __init__(self, ended):
        self.status = ended.returncode
        self.error = ended.stderr.decode(errors="replace")
        lines = ended.stdout.decode(errors="replace").splitlines()
        self.boxes = [line[4:] for line in lines if line.startswith("box ")]
        self.asks = [line[4:] for line in lines if line.startswith("ask ")]
        lives = [line[5:] for line in lines if line.startswith("life ")]
        self.life = bytes.fromhex(lives[-1]) if lives else None

    def listed(self):
        """The games that the last dialog offered, None without a dialog."""
        if not self.asks:
            return None
        found = re.search(r"Доступные игры: \| (?:(.*) \| )?(?:[^|]*_ \| )?[^|]+$", self.asks[-1])
        return (found[1] or "").split(", ") if found[1] else []

    def __str__(self):
        return f"status {self.status}, boxes {self.boxes}, dialogs {self.asks} {self.error[-400:]}"


class Driver:
    """A folder to work in, the saver, and the problems found so far."""

    def __init__(self, description):
        arguments = [a for a in sys.argv[1:] if not a.startswith("--")]
        if not 1 <= len(arguments) <= 2 or not all(a.isdigit() for a in arguments[1:]):
            sys.exit(description)
        self.long = "--long" in sys.argv
        self.seed = int(arguments[1]) if arguments[1:] else time.time_ns() % 1_000_000
        self.problems = []
        self.slowest = 0  # run, in seconds
        self.began = time.monotonic()
        self.folder = Path(tempfile.mkdtemp(prefix="faults-"))
        # Another user has to get here too, and the program may lie where he may not.
        self.folder.chmod(0o755)
        self.program = shutil.copy(arguments[0], self.folder / "saver")
        self.data = self.folder / "data"
        self.save = self.data / "SAVE"
        # No leak is looked for in a program that is traced.
        os.environ["ASAN_OPTIONS"] = "detect_leaks=0"

    def run(self, *arguments, before=(), user=None):
        """Runs the saver; one that hangs ends with no status."""
        command = [*before, self.program, arguments[0], self.data, *arguments[1:]]
        other = {} if user is None else {"user": user, "group": user, "extra_groups": []}
        began = time.monotonic()
        try:
            ended = subprocess.run(command, capture_output=True, timeout=LONGEST_RUN, check=False,
                                   **other)
        except subprocess.TimeoutExpired:
            ended = subprocess.CompletedProcess(command, None, b"", b"it hangs")
        self.slowest = max(self.slowest, time.monotonic() - began)
        return Told(ended)

    def game(self, name=GAME):
        return self.save / f"{name}.QVS"

    def bytes_of(self, name=GAME):
        """The saved game's bytes, None without a regular file."""
        return self.game(name).read_bytes() if self.game(name).is_file() else None

    def bytes_for(self, player):
        """The whole saved game of a new life of this name."""
        self.anew()
        told = self.run("save", GAME, player)
        if told.boxes or told.life is None or self.bytes_of() != told.life:
            self.problems.append(str(told))
            self.finish("cannot save even without a fault")
        return told.life

    def anew(self, games=None):
        """An empty folder with these saved games, None for a folder without SAVE."""
        if self.data.exists():
            for folder in (self.data, self.save):
                if folder.is_dir() and not folder.is_symlink():
                    folder.chmod(0o755)
            shutil.rmtree(self.data)
        self.data.mkdir()
        if games is not None:
            self.save.mkdir()
            for name, content in games.items():
                self.game(name).write_bytes(content)

    def strays(self):
        return list(self.save.glob(STRAY + "*")) if self.save.is_dir() else []

    def age_strays(self):
        for stray in self.strays():
            os.utime(stray, (time.time() - OUTDATED,) * 2)

    def expect(self, holds, problem):
        if not holds:
            self.problems.append(problem)
        return holds

    def finish(self, figures, skipped=False):
        """Prints the figures in one line and ends the driver."""
        shutil.rmtree(self.folder, ignore_errors=True)
        shown = 20
        for problem in self.problems[:shown]:
            print(f"  {problem}")
        verdict = f"{len(self.problems)} PROBLEMS" if self.problems else "0 problems"
        print(f"{figures}; {verdict}; {time.monotonic() - self.began:.1f} s")
        sys.exit(1 if self.problems else SKIPPED if skipped else 0)
