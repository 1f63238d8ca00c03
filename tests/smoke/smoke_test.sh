#!/usr/bin/env bash
# Plays the real program on a display of its own, by the keyboard alone:
#   given  a fresh copy of the game in an empty folder
#   when   a person takes a name, opens and closes every window, pauses, lives
#          for two days in real time, saves, and leaves without saving again
#   then   each window came, the saved game tells of the third day or a later
#          one, and the program ended with exit code 0.
#
#   smoke_test.sh PROGRAM
# Ends with 77, which counts as skipped, where there is no Xvfb to play on.
set -u

readonly PROGRAM=$1
readonly PATIENCE=30 # seconds until something expected counts as missing
readonly MAIN="Marshend Torvenhall 1.5 - Newton"
readonly WINDOWS=("Железо" "Софт" "Развлечения" "Госпиталь" "Магазин" "Работа"
    "Повышение квалификации" "Слабая машинка")
# What life may bring in the meantime: boxes to be read and closed.
readonly SURPRISES="Жениться или не жениться... Поздно!!!|Наконец-то|Медсестра|Медбрат"

for tool in Xvfb xdotool openbox; do
    if ! command -v "$tool" >/dev/null; then
        echo "SKIP: $tool is not installed (./check installs it)"
        exit 77
    fi
done

own_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
shipped=$(dirname "$PROGRAM")
work=$(mktemp -d)
processes=()

clean_up() {
    local i
    for ((i = ${#processes[@]} - 1; i >= 0; --i)); do
        kill "${processes[i]}" 2>/dev/null
    done
    wait 2>/dev/null
    rm -rf "$work"
}
trap clean_up EXIT

fail() {
    echo "FAILED: $*"
    echo "The window in front: \"$(front)\". The program said:"
    tail -n 30 "$work/game.log" 2>/dev/null
    exit 1
}

# Repeats a test until it holds or the patience ends.
wait_until() {
    local end=$((SECONDS + ${limit:-PATIENCE}))
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.05
    done
}

front() { xdotool getactivewindow getwindowname 2>/dev/null; }

in_front() {
    local title
    title=$(front)
    [ "$title" = "$1" ] && return 0
    if [[ -n "$title" && "|$SURPRISES|" == *"|$title|"* ]]; then
        xdotool key Return
    fi
    return 1
}

expect() { wait_until in_front "$1" || fail "\"$1\" did not come to the front"; }

# Presses a key until it has brought a window to the front: a surprise may
# have swallowed the first one.
press_for() {
    local key=$1 title=$2 limit=$((PATIENCE / 3)) try
    for try in first second third; do
        xdotool key "$key"
        wait_until in_front "$title" && return
        in_front "$MAIN" || break
    done
    fail "$key did not open \"$title\" at the $try try"
}

# Closes what is in front, however many windows that may be.
back_to_main() {
    in_front "$MAIN" && return
    xdotool key Escape
    sleep 0.1
    in_front "$MAIN"
}

leave() { wait_until back_to_main || fail "\"$1\" did not close"; }

# --- a display, a window manager, a copy of the game ------------------------

export LC_ALL=C.UTF-8 HOME=$work XDG_RUNTIME_DIR=$work/run XDG_DATA_HOME=$work/data
export XDG_CONFIG_HOME=$work/config QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
unset WAYLAND_DISPLAY
# Under the sanitizers a leak ends the program with another exit code.
export LSAN_OPTIONS=suppressions=$own_folder/lsan.supp:print_suppressions=0
mkdir -m 700 "$XDG_RUNTIME_DIR"
mkdir "$work/game"

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
processes+=($!)
wait_until test -s "$work/display" || fail "Xvfb did not start"
DISPLAY=:$(cat "$work/display")
export DISPLAY
openbox --sm-disable >/dev/null 2>&1 &
processes+=($!)
managed() { xdotool get_num_desktops >/dev/null 2>&1; } # only with a window manager
wait_until managed || fail "openbox did not start"

ln "$PROGRAM" "$work/game/torvenhall" 2>/dev/null || cp "$PROGRAM" "$work/game/torvenhall"
cp "$shipped/ANECDOT.DAT" "$shipped/License.txt" "$shipped/Readme.txt" "$work/game"
cd "$work" || exit 1
"$work/game/torvenhall" >"$work/game.log" 2>&1 &
game=$!
processes+=("$game")

# --- a name, the easiest level, the fastest clock ---------------------------

expect "Имя игрока"
xdotool type --delay 20 Newton
xdotool key Tab Down shift+Tab Return
expect "$MAIN"
xdotool key alt Right Right Right Down Return

# --- every window by its button, in the order of the buttons ----------------

for title in "${WINDOWS[@]}"; do
    press_for space "$title"
    leave "$title"
    echo "opened and closed: $title"
    xdotool key Tab
done

press_for p "Игра приостановлена"
leave "the pause"

# --- two days ---------------------------------------------------------------

readonly saved_game=$work/game/SAVE/evening.QVS
saved_line() { # the given line of the saved game, as plain text
    LC_ALL=C tr '\000-\377' '\001-\377\000' <"$saved_game" |
        tr -d '\r' | sed -n "$1p"
}

# A surprise may come over the dialog and take the name; the next time will do.
save() {
    press_for ctrl+s "Сохранение игры"
    xdotool type --delay 20 evening
    xdotool key Return
    leave "Сохранение игры"
    [ -s "$saved_game" ]
}

third_day() {
    save || return 1
    [[ "$(saved_line 5)" =~ ^0?([0-9]+)\.01\.2001$ && ${BASH_REMATCH[1]} -ge 3 ]]
}

# The news of a day are typed for half a minute at most, and no day begins
# meanwhile.
limit=120 wait_until third_day || {
    [ -s "$saved_game" ] || fail "no saved game was written"
    fail "two days did not pass: it is $(saved_line 5) still"
}
echo "saved on $(saved_line 5) as $(saved_line 6), level $(saved_line 31), speed $(saved_line 32)"
[ "$(saved_line 6)" = Newton ] || fail "the saved game belongs to \"$(saved_line 6)\""
[ "$(saved_line 31)" = 2 ] || fail "the level is $(saved_line 31), not easy"
[ "$(saved_line 32)" = 60 ] || fail "the speed is $(saved_line 32), not fast"

# --- leaving ----------------------------------------------------------------

press_for alt+F4 "Вопрос"
xdotool key Right Return # "Нет"
gone() { ! kill -0 "$game" 2>/dev/null; }
wait_until gone || fail "the program did not end"
wait "$game"
code=$?
[ "$code" -eq 0 ] || fail "the program ended with exit code $code"
echo "the program ended with exit code 0"
