"""What the rules cost without a screen, beside loops written by hand."""

import json
import subprocess

REPETITIONS = 5


def medians(program, repetitions):
    """Nanoseconds of each benchmark, and its own counters."""
    told = subprocess.run(
        [str(program), "--benchmark_format=json", f"--benchmark_repetitions={repetitions}",
         "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.1"],
        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
    factors = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
    found = {}
    for run in json.loads(told.stdout)["benchmarks"]:
        if run.get("aggregate_name", "median") == "median":
            real = "real_time" in run["run_name"]
            time = run["real_time" if real else "cpu_time"] * factors[run["time_unit"]]
            found[run["run_name"].split("/real_time")[0].split("/iterations")[0]] = (time, run)
    return found


def figures(table, program, rounds):
    found = medians(program, min(rounds or REPETITIONS, REPETITIONS))

    def time(name, unit=1.0):
        return found[name][0] / unit

    def against(what, name, floor, bound, unit=1.0, word="ns", digits=0):
        if bound:
            table.ratio(what, time(name, unit), time(floor, unit), bound, word, digits)
        else:
            table.told(what, time(name, unit), time(floor, unit), word, digits)

    table.heading("The rules without a screen; processor time, the floor written by hand")
    for speed in (15, 30, 60):
        against(f"a tick of {speed} minutes, shown", f"Tick/{speed}", f"TickFloor/{speed}", 2.5,
                digits=1)
    table.limit("a tick, scripted dice, not looked at", time("TickAlone"),
                time("TickAloneFloor"), 20, "ns", 1)
    against("a day's events", "Day", "DayFloor", None)
    against("a year of a working married life", "Year", "YearFloor", None, 1e3, "us")
    table.told("game years a second", 1e9 / time("Year"), None, "", 0)
    lived = found["FiveThousandYears"][1]
    table.ratio("year 5,000 (the floor: year 1)", 1e6 * lived["last"], 1e6 * lived["first"], 1.05,
                "us", 0)
    against("installing every program", "AllSoftware", "AllSoftwareFloor", None)
    against("ShowFamily", "Family", "FamilyFloor", None, digits=1)
    against("a saved game's text built", "SaveText", "TextFloor", None)
    against("a saved game's text parsed", "ParseText", "TextFloor", None)
    against("a game saved, durably", "Save", "SaveFloor", 1.5, 1e3, "us")
    against("a game loaded", "Load", "LoadFloor", 1.5, 1e3, "us", 1)
    against("    its file read and decoded", "ReadSave", "LoadFloor", None, 1e3, "us", 1)
    for lines in (120, 32766):
        against(f"an anecdote of {lines:,}", f"Anecdote/{lines}", f"AnecdoteFloor/{lines}", 2, 1e3,
                "us", 1)
