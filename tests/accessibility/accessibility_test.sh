#!/usr/bin/env bash
# Runs play_by_names.py with the real program on a display, a session bus and
# an accessibility bus of their own, the game's data in an empty folder.
#
#   accessibility_test.sh PROGRAM
# Ends with 77, which counts as skipped, where something needed is missing.
set -u

readonly PYTHON=/usr/bin/python3 # the distribution's, which knows its packages
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
needs=dbus-run-session:dbus-daemon
. "$here/../support/display.sh"
[ -e /usr/share/dbus-1/services/org.a11y.Bus.service ] || skip "the accessibility bus" at-spi2-core
"$PYTHON" -c 'import pyatspi' 2>/dev/null || skip "pyatspi for $PYTHON" python3-pyatspi

export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
unset DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS
# The toolkit's caches count as leaks; errors still end the program.
export ASAN_OPTIONS=detect_leaks=0
cd "$work" || exit 1
dbus-run-session -- "$PYTHON" -B "$here/play_by_names.py" "$work/game/${PROGRAM##*/}" 2>errors
code=$?
# The buses chatter: only a failure makes that worth reading.
[ "$code" -eq 0 ] || tail -n 40 errors
exit "$code"
