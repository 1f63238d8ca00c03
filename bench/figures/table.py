"""The rows of figures, each with its bound, and what they say in the end."""

import statistics


class Table:
    """Prints each row as it is known; remembers what was missed."""

    def __init__(self):
        self.rows = 0
        self.missed = []
        print(f"{'':46} {'game':>12} {'floor':>12} {'ratio':>8} {'bound':>10}")

    def heading(self, text):
        print(f"\n{text}")

    def ratio(self, what, game, floor, bound, unit="", digits=1):
        """Medians of interleaved rounds, or single figures that repeat."""
        game, floor = median(game), median(floor)
        ratio = game / floor if floor else float("inf")
        self.row(what, shown(game, unit, digits), shown(floor, unit, digits), f"{ratio:.3f}",
                 f"{bound:.2f} x", ratio <= bound)

    def limit(self, what, game, floor, bound, unit="", digits=1):
        """A bound that is a quantity, held in the digits that are shown."""
        game = round(median(game), digits)
        told = "" if floor is None else shown(median(floor), unit, digits)
        self.row(what, shown(game, unit, digits), told, "", shown(bound, unit, digits),
                 game <= bound)

    def told(self, what, game, floor=None, unit="", digits=1):
        """A figure without a bound."""
        floor = "" if floor is None else shown(median(floor), unit, digits)
        self.row(what, shown(median(game), unit, digits), floor, "", "", None)

    def note(self, text):
        print(f"    {text}")

    def row(self, what, game, floor, ratio, bound, holds):
        verdict = {True: "", False: "  MISSED", None: ""}[holds]
        print(f"{what:46} {game:>12} {floor:>12} {ratio:>8} {bound:>10}{verdict}", flush=True)
        if holds is not None:
            self.rows += 1
            if not holds:
                self.missed.append(what)

    def verdict(self):
        """Prints the last word; the exit code."""
        print()
        if self.missed:
            print(f"{len(self.missed)} of {self.rows} bounds missed: {'; '.join(self.missed)}")
            return 1
        print(f"All {self.rows} bounds hold.")
        return 0


def median(values):
    return statistics.median(values) if isinstance(values, (list, tuple)) else values


def spread(values):
    """"median (least to most)"""
    return f"{statistics.median(values):.1f} ({min(values):.1f} to {max(values):.1f})"


def shown(value, unit, digits):
    return f"{value:.{digits}f} {unit}".strip()
