#!/usr/bin/env bash
# Runs play_by_names.py with the real program on a display, a session bus and
# an accessibility bus of their own, the game's data in an empty folder.
#
#   accessibility_test.sh PROGRAM
# Ends with 77, which counts as skipped, where something needed is missing.
set -u

readonly PROGRAM=$1
readonly PYTHON=/usr/bin/python3 # the distribution's, which knows its packages
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")

skip() { echo "SKIP: $1 is not installed (Debian: $2)"; exit 77; }
fail() { echo "FAILED: $*"; exit 1; }

for needed in Xvfb:xvfb openbox:openbox xdotool:xdotool dbus-run-session:dbus-daemon; do
    command -v "${needed%:*}" >/dev/null || skip "${needed%:*}" "${needed#*:}"
done
[ -e /usr/share/dbus-1/services/org.a11y.Bus.service ] || skip "the accessibility bus" at-spi2-core
"$PYTHON" -c 'import pyatspi' 2>/dev/null || skip "pyatspi for $PYTHON" python3-pyatspi

work=$(mktemp -d)
processes=()
trap 'kill "${processes[@]}" 2>/dev/null; wait; rm -rf "$work"' EXIT

wait_until() { timeout 20 bash -c "until $1; do sleep 0.05; done" >/dev/null 2>&1; }

export LC_ALL=C.UTF-8 HOME=$work XDG_RUNTIME_DIR=$work/run XDG_DATA_HOME=$work/data
export XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache
export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS
# The toolkit's caches count as leaks; errors still end the program.
export ASAN_OPTIONS=detect_leaks=0
mkdir -m 700 "$XDG_RUNTIME_DIR" "$work/game"

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
processes+=($!)
wait_until "test -s '$work/display'" || fail "Xvfb did not start"
DISPLAY=:$(cat "$work/display")
export DISPLAY
openbox --sm-disable >/dev/null 2>&1 &
processes+=($!)
wait_until "xdotool get_num_desktops" || fail "openbox did not start"

cp "$PROGRAM" "$(dirname "$PROGRAM")"/{ANECDOT.DAT,License.txt,Readme.txt} "$work/game"
cd "$work" || exit 1
dbus-run-session -- "$PYTHON" -B "$here/play_by_names.py" "$work/game/${PROGRAM##*/}" 2>"$work/errors"
code=$?
# The buses chatter: only a failure makes that worth reading.
[ "$code" -eq 0 ] || tail -n 40 "$work/errors"
exit "$code"
