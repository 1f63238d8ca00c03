#!/usr/bin/env python3
"""Measures the game against its floor and prints each figure with its bound.

usage: measure.py BUILD [--only PART] [--rounds N] [--minutes N] [--portable PROGRAM] [--profile]

Ends with 1 when a bound is missed. PART is start, peers, clicks, idle, memory or rules. --profile prints where
the instructions of a start go, by library and by function.
"""

import argparse
import sys
from pathlib import Path

from figures import clicks, idle, memory, peers, rules, start
from figures.programs import play_programs
from figures.table import Table


def print_profile(program, lines=14):
    for by, what in (("ob", "library"), ("fn", "function")):
        print(f"\nWhere the instructions of {program.name} go, by {what} (million)")
        for cost, name in program.profile(by)[:lines]:
            print(f"    {cost / 1e6:8.2f}  {name.rsplit('/', 1)[-1][:110]}")


def main():
    options = argparse.ArgumentParser(usage=__doc__)
    options.add_argument("build", type=Path)
    options.add_argument("--only", choices=["start", "peers", "clicks", "idle", "memory", "rules"])
    options.add_argument("--rounds", type=int)
    options.add_argument("--minutes", type=float, default=3, help="of the memory's growth")
    options.add_argument("--portable", type=Path, metavar="PROGRAM",
                         help="the game with its toolkit built in, beside its files")
    options.add_argument("--profile", action="store_true")
    given = options.parse_args()

    build = given.build.resolve()
    game, floor = play_programs(build)
    table = Table()
    try:
        if given.only in (None, "start"):
            files = start.counted(table, game, floor)
            if given.profile:
                print_profile(game)
                print_profile(floor)
            start.timed(table, game, floor, files, given.rounds)
        if given.only in (None, "peers"):
            peers.figures(table, game, floor, given.rounds, given.portable)
        if given.only in (None, "clicks"):
            clicks.figures(table, game, floor, given.rounds)
        if given.only in (None, "idle"):
            idle.figures(table, game, floor, given.rounds)
        if given.only in (None, "memory"):
            memory.figures(table, game, floor, given.minutes)
        if given.only in (None, "rules"):
            rules.figures(table, build / "bench" / "rules_bench", given.rounds)
    finally:
        game.place.remove()
        floor.place.remove()
    return table.verdict()


sys.exit(main())
