#!/usr/bin/env bash
# Plays the real program on a display of its own, by the keyboard alone: a name,
# every window, two days in real time, a save; then a logout, after which the
# game goes on, and an end without saving again. The saved game must tell of the
# third day or later, the exit codes be 0.
#
#   smoke_test.sh PROGRAM
# Ends with 77, which counts as skipped, where there is no display to play on.
set -u

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../support/display.sh"

readonly MAIN="Marshend Torvenhall 1.5 - Newton"
# What life may bring in the meantime: boxes to be read and closed.
readonly SURPRISES="|Жениться или не жениться... Поздно!!!|Наконец-то|Медсестра|Медбрат|"

front() { xdotool getactivewindow getwindowname 2>/dev/null; }
fail() {
    echo "FAILED: $*; in front is \"$(front)\"; the program said:"
    tail -n 30 "$work/game.log"
    exit 1
}
in_front() {
    local title
    title=$(front)
    [ "$title" = "$1" ] && return 0
    [[ -n "$title" && "$SURPRISES" == *"|$title|"* ]] && xdotool key Return
    return 1
}
expect() { wait_until in_front "$1" || fail "\"$1\" did not come to the front"; }
# Presses a key until it has opened a window: a surprise may swallow one.
pressed() { xdotool key "$1" && limit=$((PATIENCE / 3)) wait_until in_front "$2"; }
press_for() { pressed "$@" || pressed "$@" || pressed "$@" || fail "$1 did not open \"$2\""; }
# Closes what is in front, however many windows that may be.
back_to_main() { in_front "$MAIN" || { xdotool key Escape; sleep 0.1; in_front "$MAIN"; }; }
leave() { wait_until back_to_main || fail "\"$1\" did not close"; }

# Under the sanitizers a leak ends the program with another exit code.
export LSAN_OPTIONS=suppressions=$here/lsan.supp:print_suppressions=0
cd "$work" || exit 1
start() { "$work/game/torvenhall" >"$work/game.log" 2>&1 & game=$!; }
gone() { ! kill -0 "$game" 2>/dev/null; }
ends() {
    wait_until gone || fail "the program did not end"
    wait "$game"
    code=$?
    [ "$code" -eq 0 ] || fail "the program ended with exit code $code"
}
start

# a name, the easiest level, the fastest clock
expect "Имя игрока"
xdotool type --delay 20 Newton
xdotool key Tab Down shift+Tab Return
expect "$MAIN"
xdotool key alt Right Right Right Down Return

# every window by its button, in the order of the buttons, and the pause
for title in "Железо" "Софт" "Развлечения" "Госпиталь" "Магазин" "Работа" \
    "Повышение квалификации" "Слабая машинка"; do
    press_for space "$title"
    leave "$title"
    xdotool key Tab
done
press_for p "Игра приостановлена"
leave "the pause"

# two days
readonly saved=$work/game/SAVE/evening.QVS
line() { LC_ALL=C tr '\000-\377' '\001-\377\000' <"$saved" | tr -d '\r' | sed -n "$1p"; }
# A surprise may come over the dialog and take the name; the next time will do.
third_day() {
    press_for ctrl+s "Сохранение игры"
    xdotool type --delay 20 evening
    xdotool key Return
    leave "Сохранение игры"
    [ -s "$saved" ] && [[ "$(line 5)" =~ ^0?([0-9]+)\.01\.2001$ && ${BASH_REMATCH[1]} -ge 3 ]]
}
# The news of a day are typed for half a minute at most.
limit=120 wait_until third_day || fail "two days did not pass: $(line 5)"
told="$(line 6), level $(line 31), speed $(line 32)"
[ "$told" = "Newton, level 2, speed 60" ] || fail "the saved game tells of $told"

press_for ctrl+o "Загрузка игры" # what waits for an answer is no obstacle
kill -HUP "$game" && kill -HUP "$game" # as a closing terminal does
ends
start
expect "Прерванная игра"
xdotool key Return # "Да"
expect "Игра приостановлена"
leave "the pause"
press_for alt+F4 "Вопрос"
xdotool key Right Return # "Нет"
ends
ls "$work"/game/RECOVERY/*.QVS 2>/dev/null && fail "a life is still in hand after its end"
echo "played until $(line 5) as $told; the program ended with exit code 0"
