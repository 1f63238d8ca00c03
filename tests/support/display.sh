# shellcheck shell=bash disable=SC2034
# Sourced first by the tests that play the real program: starts the script
# again on a display of its own, then gives it a window manager and, in $work, a
# fresh copy of the game and folders that nobody else uses. The script's first
# argument is the program; it may name further needs as command:package in
# $needs. Ends with 77, which counts as skipped, where something is missing.

skip() {
    echo "SKIP: $1 is not installed (Debian: $2; ./check installs it)"
    exit 77
}
fail() {
    echo "FAILED: $*"
    exit 1
}

for need in xvfb-run:xvfb xauth:xauth xdotool:xdotool openbox:openbox ${needs:-}; do
    command -v "${need%:*}" >/dev/null || skip "${need%:*}" "${need#*:}"
done
if [ -z "${OWN_DISPLAY:-}" ]; then
    # Without -noreset the display begins anew whenever its last client leaves,
    # and takes along whoever is just coming.
    OWN_DISPLAY=yes exec xvfb-run --auto-servernum \
        --server-args="-screen 0 1280x1024x24 -noreset" "$0" "$@"
fi

readonly PROGRAM=$1
readonly PATIENCE=30 # seconds until something expected counts as missing
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; wait; rm -rf "$work"' EXIT

export LC_ALL=C.UTF-8 HOME=$work XDG_RUNTIME_DIR=$work/run XDG_DATA_HOME=$work/data
export XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache
export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
unset WAYLAND_DISPLAY
mkdir -m 700 "$XDG_RUNTIME_DIR" "$work/game"

# Repeats a test until it holds or the patience ends.
wait_until() {
    local end=$((SECONDS + ${limit:-PATIENCE}))
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.05
    done
}

openbox --sm-disable >/dev/null 2>&1 &
managed() { xdotool get_num_desktops >/dev/null 2>&1; } # only with a window manager
wait_until managed || fail "openbox did not start"

cp "$PROGRAM" "${PROGRAM%/*}"/{ANECDOT.DAT,License.txt,Readme.txt} "$work/game"
