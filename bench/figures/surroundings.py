"""A display, folders and an environment that nobody else uses."""

import os
import shutil
import subprocess
import tempfile
import time
from pathlib import Path

SCREEN = "1280x1024x24"
PATIENCE = 30  # seconds until something expected counts as missing


def wait_until(test, what, limit=PATIENCE):
    """Repeats a test until it gives something true, which it returns."""
    end = time.monotonic() + limit
    while True:
        found = test()
        if found:
            return found
        if time.monotonic() > end:
            raise RuntimeError(f"waited in vain: {what}")
        time.sleep(0.02)


class Display:
    """An X server of our own, at will with a window manager."""

    def __init__(self, managed, options=()):
        # Without -noreset it begins anew whenever its last client leaves.
        reader, writer = os.pipe()
        self.processes = [
            subprocess.Popen(
                ["Xvfb", "-displayfd", str(writer), "-screen", "0", SCREEN, "-noreset",
                 "-nolisten", "tcp", *options],
                pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)]
        os.close(writer)
        with os.fdopen(reader) as told:
            number = told.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.name = ":" + number
        if managed:
            self.manage()

    def manage(self):
        environment = {**os.environ, "DISPLAY": self.name}
        self.processes.append(
            subprocess.Popen(["openbox", "--sm-disable"], env=environment,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        wait_until(lambda: self.does("get_num_desktops"), "the window manager")

    def tool(self, *arguments):
        """What xdotool prints, or None when it fails."""
        done = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True,
                              check=False, env={**os.environ, "DISPLAY": self.name})
        return done.stdout.strip() if done.returncode == 0 else None

    def does(self, *arguments):
        return self.tool(*arguments) is not None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()


class Place:
    """Folders for one program: its own copy, a home, a place for notes."""

    def __init__(self, program, shipped=()):
        self.folder = Path(tempfile.mkdtemp(prefix="torvenhall-bench-"))
        for name in ("home", "program", "run"):
            (self.folder / name).mkdir(mode=0o700)
        self.program = self.folder / "program" / Path(program).name
        self.shipped = [Path(file) for file in shipped]
        for file in (Path(program), *self.shipped):
            shutil.copy(file, self.folder / "program")

    def environment(self, display, **more):
        """Nothing of what the person who measures happens to have set."""
        home = str(self.folder / "home")
        return {
            "PATH": os.environ["PATH"], "HOME": home, "LC_ALL": "C.UTF-8",
            "XDG_RUNTIME_DIR": str(self.folder / "run"), "XDG_DATA_HOME": home + "/data",
            "XDG_CONFIG_HOME": home + "/config", "XDG_CACHE_HOME": home + "/cache",
            "DISPLAY": display.name, "QT_QPA_PLATFORM": "xcb", "QT_SCALE_FACTOR": "1", **more}

    def forget(self):
        """Removes what the last run has left beside the program."""
        for name in ("RECOVERY", "SAVE", "TEMP"):
            shutil.rmtree(self.program.parent / name, ignore_errors=True)

    def remove(self):
        shutil.rmtree(self.folder, ignore_errors=True)
