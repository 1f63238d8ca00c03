"""What a start costs, until the first window is on the display."""

from figures.programs import evict, linked_libraries
from figures.surroundings import Display

WARM_ROUNDS, COLD_ROUNDS = 21, 9
DESKTOPS = ("GNOME", "KDE")


def counted(table, game, floor):
    """What repeats exactly."""
    table.heading("Until the first window is painted")
    with Display(managed=False) as display:
        for program in (game, floor):  # the caches of fonts, made once
            program.run_to_first_window(display)
        counts = {program: program.instructions(display) for program in (game, floor)}
        files = {program: program.opened_files(display) for program in (game, floor)}
    table.ratio("instructions (callgrind)", counts[game] / 1e6, counts[floor] / 1e6, 1.15,
                "million")
    table.told("files opened", len(files[game]), len(files[floor]), "", 0)
    table.told("libraries loaded", len(linked_libraries(game.place.program)),
               len(linked_libraries(floor.place.program)), "", 0)
    return files


def timed(table, game, floor, files, rounds):
    """Times, in interleaved rounds: each round starts each program once in each way."""
    kinds = [(p, d) for d in (None, *DESKTOPS) for p in (game, floor)]
    warm = {kind: [] for kind in kinds}
    cold = {program: [] for program in (game, floor)}
    with Display(managed=False) as display:
        for number in range(rounds or WARM_ROUNDS):
            # Whoever comes first finds the caches of the other: turn by turn.
            for program, desktop in kinds if number % 2 else reversed(kinds):
                more = {"XDG_CURRENT_DESKTOP": desktop} if desktop else None
                warm[program, desktop].append(program.run_to_first_window(display, more=more))
        for number in range(min(rounds or COLD_ROUNDS, COLD_ROUNDS)):
            for program in (game, floor) if number % 2 else (floor, game):
                evict(files[program])
                cold[program].append(program.run_to_first_window(display))
    bare = milliseconds(warm[floor, None])
    table.ratio("painted, warm", milliseconds(warm[game, None]), bare, 1.08, "ms")
    table.ratio("painted, cold", milliseconds(cold[game]), milliseconds(cold[floor]), 1.10, "ms")
    for desktop in DESKTOPS:
        table.ratio(f"painted under {desktop}, floor without it",
                    milliseconds(warm[game, desktop]), bare, 1.10, "ms")
        table.told(f"painted under {desktop}, both", milliseconds(warm[game, desktop]),
                   milliseconds(warm[floor, desktop]), "ms")
    table.told("processor time, warm", milliseconds(warm[game, None], "cpu"),
               milliseconds(warm[floor, None], "cpu"), "ms")


def milliseconds(starts, of="painted"):
    return [1000 * getattr(start, of) for start in starts]
