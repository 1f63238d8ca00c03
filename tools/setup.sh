# shellcheck shell=bash disable=SC2034
# What ./play and ./check share: finding and installing what they need, and
# building with it. Sourced by both; not a program of its own.

say() { printf '%s\n' "$*"; }
fail() { printf '%s: %s\n' "${0##*/}" "$*" >&2; exit 1; }

# What the game needs, a line each: the Debian package, then what shows that it
# is there: a command, or "-" for the package itself. Packages that will do as
# well stand behind a bar; the first one is installed.
readonly BUILD_NEEDS="
g++                     c++
cmake                   cmake
ninja-build             ninja
qt6-base-dev            -
qt6-translations-l10n   -
libboost-context-dev    -
libfontconfig-dev|libfontconfig1-dev    -
fonts-paratype          -
fonts-dejavu-core|fonts-liberation|fonts-liberation2    -
"
# What a Debian package of it needs besides.
readonly DEB_NEEDS="
dpkg-dev                dpkg-shlibdeps
file                    file
"
# What its tests need besides.
readonly TEST_NEEDS="$DEB_NEEDS
libgtest-dev            -
xvfb                    xvfb-run
xauth                   xauth
xdotool                 xdotool
openbox                 openbox
dbus-daemon             dbus-run-session
at-spi2-core            -
python3-pyatspi         -
g++-mingw-w64-x86-64-posix  x86_64-w64-mingw32-g++-posix
python3                 python3
strace                  strace
desktop-file-utils      desktop-file-validate
appstream               appstreamcli
mandoc                  mandoc
lintian                 lintian
"
# What the full numbers of the reliability checks need besides.
readonly LONG_NEEDS="
clang-19                clang-19
libclang-rt-19-dev      -
gcovr                   gcovr
"
readonly OLDEST_CMAKE=3.25

installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Prints the packages of the given needs that are missing, on one line.
missing_packages() {
    local names command name found
    printf '%s\n' "$@" | while read -r names command; do
        [ -n "$names" ] || continue
        found=no
        if [ "$command" != - ]; then
            command -v "$command" >/dev/null 2>&1 && found=yes
        elif command -v dpkg-query >/dev/null 2>&1; then
            for name in ${names//|/ }; do
                if installed "$name"; then found=yes; fi
            done
        else
            # Another distribution: the build itself will tell.
            found=yes
        fi
        [ "$found" = yes ] || printf '%s ' "${names%%|*}"
    done
}

# Runs a command as root without ever asking for a password.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo -n "$@"
    fi
}

cannot_install() {
    say "$1" >&2
    say "Please install these packages (their names are Debian's) and start again:" >&2
    say "    $2" >&2
    exit 1
}

# Installs what is missing of the given needs; does nothing when nothing is.
install_missing() {
    local packages log
    packages=$(missing_packages "$@")
    packages=${packages% }
    [ -n "$packages" ] || return 0
    command -v apt-get >/dev/null 2>&1 ||
        cannot_install "Some packages are missing, and there is no apt-get here." "$packages"
    [ "$(id -u)" -eq 0 ] || sudo -n true 2>/dev/null ||
        cannot_install "Some packages are missing, and installing them needs root's rights." "$packages"
    say "Installing: $packages"
    log=$(mktemp)
    # A stale or empty list of packages is the usual reason for a failure; a
    # failing update alone is not, as the packages may be in the cache.
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q update </dev/null >"$log" 2>&1
    # shellcheck disable=SC2086  # a list of words
    if ! as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends \
        install $packages </dev/null >>"$log" 2>&1; then
        tail -n 15 "$log" >&2
        rm -f "$log"
        cannot_install "apt-get could not install them; its last lines are above." "$packages"
    fi
    rm -f "$log"
}

# Stops unless the build tools are there and new enough.
require_tools() {
    local tool version
    for tool in c++ cmake ninja; do
        command -v "$tool" >/dev/null 2>&1 ||
            fail "'$tool' is missing. $(needs_in_words)"
    done
    version=$(cmake --version | awk 'NR == 1 { print $3 }')
    [ "$(printf '%s\n' "$OLDEST_CMAKE" "$version" | sort -V | head -n 1)" = "$OLDEST_CMAKE" ] ||
        fail "CMake $version is too old, $OLDEST_CMAKE or newer is needed."
}

needs_in_words() {
    echo "The build needs a C++20 compiler, CMake $OLDEST_CMAKE, Ninja and the development files" \
        "of Qt 6.4 and Boost.Context and the PT typefaces" \
        "(Debian: g++ cmake ninja-build qt6-base-dev libboost-context-dev libfontconfig-dev fonts-paratype)."
}

# Runs a command with its output in a log, which is shown when it fails.
quietly() {
    local log=$1
    shift
    mkdir -p "${log%/*}"
    if ! "$@" </dev/null >"$log" 2>&1; then
        say "This failed: $*" >&2
        say "The end of its output ($log):" >&2
        tail -n 40 "$log" >&2
        return 1
    fi
}

# A compiler's cache is used where there is one; precompiled headers want its leave.
if command -v ccache >/dev/null 2>&1; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_SLOPPINESS=pch_defines,time_macros
fi
