#!/usr/bin/env bash
# Installs the built game and packs it, as a packager would, and lets the checkers
# of the desktops and of the distribution look at both.
#
#   ship_test.sh BUILD_FOLDER
# Ends with 77, which counts as skipped, where a checker is missing.
set -u

for need in dpkg-shlibdeps:dpkg-dev file desktop-file-validate:desktop-file-utils \
    appstreamcli:appstream mandoc lintian; do
    command -v "${need%:*}" >/dev/null && continue
    echo "SKIP: ${need%:*} is not installed (Debian: ${need#*:}; ./check installs it)"
    exit 77
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
holds() {
    "$@" >"$work/log" 2>&1 && return
    echo "FAILED: $*"
    cat "$work/log"
    failures=$((failures + 1))
}

holds env DESTDIR="$work" cmake --install "$1" --prefix /usr
readonly share=$work/usr/share
holds desktop-file-validate "$share/applications/torvenhall.desktop"
holds appstreamcli validate --no-net "$share/metainfo/org.example.torvenhall.metainfo.xml"
readonly pages=("$share/man/man6/torvenhall.6" "$share/man/ru/man6/torvenhall.6")
holds mandoc -T lint -W warning "${pages[@]}"

# Every option that the program has is told of.
options=$(env -u DISPLAY -u WAYLAND_DISPLAY "$work/usr/bin/torvenhall" --help | grep -o -- '--[a-z-]*')
for option in $options; do
    for page in "${pages[@]}"; do holds grep -qF -- "${option//-/\\-}" "$page"; done
done
offered() {
    # shellcheck source=packaging/torvenhall.bash
    . "$share/bash-completion/completions/torvenhall"
    COMP_WORDS=(torvenhall --)
    COMP_CWORD=1
    _torvenhall
    printf '%s\n' "${COMPREPLY[@]}"
}
holds diff <(offered | sort) <(printf '%s\n' "$options" | sort)

# The same bytes, whenever and wherever they are packed.
for time in now later; do
    holds cpack -G DEB --config "$1/CPackConfig.cmake" -B "$work/$time" -D CPACK_DEBIAN_COMPRESSION_TYPE=gzip
done
holds cmp "$work"/{now,later}/torvenhall_*.deb
holds lintian --no-cfg --allow-root --fail-on error "$work"/now/torvenhall_*.deb
[ "$failures" -eq 0 ] && echo "installed, packed, and passed by all checkers"
