# shellcheck shell=bash
# What the two archives share: the toolkit, built statically from the
# distribution's own sources with the few parts that the game uses.
# Sourced by linux/build and windows/build; not a program of its own.

. tools/setup.sh

# What takes an hour to build lies outside the tree and is built once.
readonly CACHE=${TORVENHALL_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/torvenhall}
readonly JOBS=${TORVENHALL_JOBS:-$(nproc)}
VERSION=$(sed -n 's/^project(torvenhall VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
readonly VERSION
# What the archives' files are dated: the last change of the sources.
RELEASED=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)}
export SOURCE_DATE_EPOCH=$RELEASED
readonly RELEASED

# What the game does without. A new kind of widget may need its part back:
# take it out of here and remove the toolkit's folder from the cache.
readonly QT_LEFT_OUT="
network sql testlib concurrent xml printsupport vulkan tuiotouch icu glib zstd pdf qmake
textodfwriter textmarkdownreader textmarkdownwriter undocommand filesystemmodel
graphicsview graphicseffect wizard mdiarea dockwidget colordialog fontdialog filedialog
calendarwidget datetimeedit columnview tablewidget treewidget undoview datawidgetmapper
lcdnumber dial keysequenceedit fontcombobox splashscreen toolbox errormessage
progressdialog syntaxhighlighter textbrowser commandlinkbutton scroller
gif ico system_zlib system_png system_jpeg system_pcre2 system_harfbuzz system_doubleconversion
"

DEBIAN_KEYS=/usr/share/keyrings/debian-archive-keyring.gpg
[ -e "$DEBIAN_KEYS" ] && DEBIAN_KEYS="[signed-by=$DEBIAN_KEYS] " || DEBIAN_KEYS=
readonly DEBIAN_KEYS

# Prints the options that leave the named parts of the toolkit out.
left_out() {
    local part
    for part in "$@"; do printf -- '-DFEATURE_%s=OFF ' "$part"; done
}

# Unpacks the distribution's source of a package into the cache, with the
# distribution's patches, and prints its folder. The machine's own lists of
# packages stay as they are.
source_of() {
    local package=$1 apt=$CACHE/apt found
    found=$(find "$CACHE/sources" -maxdepth 1 -type d -name "$package-[0-9]*" 2>/dev/null | head -n 1)
    if [ -z "$found" ]; then
        mkdir -p "$apt/lists/partial" "$CACHE/sources"
        # The sources of what is installed: every place that serves packages
        # of the distribution serves their sources too.
        apt-get indextargets --format '$(SITE) $(RELEASE) $(COMPONENT)' \
            'Created-By: Packages' 'Origin: Debian' | sort -u |
            sed "s|^|deb-src $DEBIAN_KEYS|" >"$apt/sources.list"
        (
            cd "$CACHE/sources" || exit 1
            set -- -q -o Dir::Etc::sourcelist="$apt/sources.list" -o Dir::Etc::sourceparts=- \
                -o Dir::State::lists="$apt/lists" -o Dir::Cache::pkgcache= \
                -o Dir::Cache::srcpkgcache= -o APT::Sandbox::User=root
            apt-get "$@" update && apt-get "$@" source -y "$package"
        ) >"$CACHE/$package-source.log" 2>&1 ||
            fail "the source of $package could not be fetched; see $CACHE/$package-source.log."
        found=$(find "$CACHE/sources" -maxdepth 1 -type d -name "$package-[0-9]*" | head -n 1)
    fi
    printf '%s\n' "$found"
}

# Lays beside the program what is shipped with it, with the licences of what it
# brings along; every file of the folder gets the release's own time.
lay_files() {
    local folder=$1 package
    cp assets/ANECDOT.DAT assets/License.txt assets/Readme.txt "$folder"
    {
        cat LICENSE
        printf '\n%s\n' "The program brings along, under their own licences, the toolkit Qt" \
            "(LGPL 3 or GPL 2 or later; its source is the distribution's package qt6-base)" \
            "and what the following lists name."
        for package in fonts-paratype $SHIPPED_PARTS; do
            printf '\n==== %s ====\n\n' "$package"
            cat "/usr/share/doc/$package/copyright"
        done
    } >"$folder/LICENSE"
    find "$folder" -exec touch -h -d "@$RELEASED" {} +
}
