#!/usr/bin/env bash
# Installs the editor for a whole system, into a folder that stands for the root, and uses it from
# there as a desktop does: entry, file types, metainfo, icons, thumbnails, translations. Then packs the
# same for Debian; packaging/try-deb.sh installs that in a system of its own.
#
# Usage: system_install_test.sh CMAKE BUILD SAMPLE_GAME
set -euo pipefail

cmake=$1
build=$2
# shellcheck source=tests/desktop/virtual_display.sh
. "$(dirname "$0")/virtual_display.sh"
root=$work/root
usr=$root/usr
game=$work/game
cp -R "$3" "$game"
campaign=$game/Maps/sample.e3c
campaign_type=application/x-eldmark-campaign
map_type=application/x-eldmark-map
unset CMPED_GAME_DIR LD_LIBRARY_PATH
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work \
    XDG_DATA_DIRS=$usr/share:/usr/share QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
export PATH=$usr/bin:$PATH

files() { (cd "$root" && find . -type f -o -type l | sort); }

install_for_the_system() {
    DESTDIR=$root "$cmake" --install "$build" --prefix /usr --component system >"$work/log" ||
        fail "can't be installed"
    files >"$work/installed"
    local wanted
    for wanted in bin/cmped bin/cmped-cli share/cmped/cmp_en.qm share/cmped/cmp_ru.qm \
        share/applications/cmped.desktop share/mime/packages/cmped.xml \
        share/metainfo/cmped.metainfo.xml share/thumbnailers/cmped.thumbnailer \
        share/doc/cmped/manual.md share/doc/cmped/manual/en/main-window.png \
        share/doc/cmped/manual.ru.md share/doc/cmped/manual/ru/main-window.png \
        share/doc/cmped/for-translators.md \
        share/doc/cmped/copyright share/doc/cmped/changelog.gz \
        share/man/man1/cmped.1.gz share/man/man1/cmped-cli.1.gz \
        share/bash-completion/completions/cmped share/bash-completion/completions/cmped-cli \
        share/zsh/vendor-completions/_cmped share/zsh/vendor-completions/_cmped-cli; do
        [ -s "$usr/$wanted" ] || fail "$wanted is missing"
    done
    [ -n "$(find "$usr/lib" -path '*/cmped/libcmped.so')" ] || fail "the library is missing"
    [ ! -e "$usr/cmped" ] || fail "a game's folder was installed as well"
    pass "everything is where a system has it"
}

files_for_desktops_are_valid() {
    desktop-file-validate "$usr/share/applications/cmped.desktop" >"$work/log" 2>&1 ||
        fail "the desktop entry is not valid"
    [ ! -s "$work/log" ] || fail "the desktop entry could be better"
    appstreamcli validate --no-net "$usr/share/metainfo/cmped.metainfo.xml" >"$work/log" ||
        fail "the metainfo is not valid"
    update-mime-database "$usr/share/mime" >"$work/log" 2>&1 || fail "the types are not valid"
    [ ! -s "$work/log" ] || fail "the types could be better"
    update-desktop-database "$usr/share/applications"
    pass "desktop entry, metainfo and file types are valid"
}

one_version_is_told_everywhere() {
    local version
    version=$(cmped --version | sed 's/^cmped //')
    [ -n "$version" ] || fail "no version"
    zcat "$usr/share/doc/cmped/changelog.gz" | head -n 1 | grep -qF "cmped ($version) " ||
        fail "the newest entry of the change log is of another version"
    grep -m 1 '<release ' "$usr/share/metainfo/cmped.metainfo.xml" | grep -qF "\"$version\"" ||
        fail "the newest release of the metainfo is another one"
    pass "one version is told everywhere"
}

is_of_type() {
    local found
    found=$(XDG_CURRENT_DESKTOP=GNOME xdg-mime query filetype "$1")
    [ "$found" = "$2" ] || fail "$1 is of type $found, not $2"
}

files_have_their_types() {
    local map type
    map=$work/map.e3m
    gzip -c /dev/null >"$map"
    cp "$campaign" "$work/UPPER.E3C"
    cp "$campaign" "$work/campaign.gz"
    cp "$campaign" "$work/nameless"
    is_of_type "$campaign" $campaign_type
    is_of_type "$work/UPPER.E3C" $campaign_type
    is_of_type "$map" $map_type
    is_of_type "$work/campaign.gz" application/gzip
    is_of_type "$work/nameless" application/gzip
    for type in $campaign_type $map_type; do
        grep -qx "$type application/gzip" "$usr/share/mime/subclasses" || fail "$type is no packed file"
    done
    [ "$(xdg-mime query default $campaign_type)" = cmped.desktop ] ||
        fail "campaigns are not opened by the editor"
    [ -z "$(xdg-mime query default $map_type)" ] || fail "maps are opened by an editor"
    pass "campaigns and maps have their types, and campaigns their editor"
}

icons_are_there() {
    local icon size file
    for icon in apps/cmped mimetypes/${campaign_type/\//-} mimetypes/${map_type/\//-}; do
        for size in 16 22 24 32 48 64 96 128 256 512; do
            file=$usr/share/icons/hicolor/${size}x$size/$icon.png
            [ "$(identify -format '%wx%h' "$file")" = "${size}x$size" ] || fail "$file is not $size large"
            [ "$(identify -format '%k' "$file")" -gt 20 ] || fail "$file is empty"
        done
        [ -s "$usr/share/icons/hicolor/scalable/$icon.svg" ] || fail "$icon can't be scaled"
    done
    pass "icons are there in all sizes"
}

# The game of this one has no translations of the editor: the system's are taken.
the_editor_starts() {
    local status=0
    rm "$game/Ravn_Data/"*.qm
    printf '[Global Settings]\nLanguage=1\n' >"$game/Ravn_settings.ini"
    cmped --game "$game" "$campaign" 2>"$work/log" &
    editor=$!
    until_true is_up "$editor" || fail "the editor does not come up"
    grep -q "$usr/lib.*/cmped/libcmped\.so" "/proc/$editor/maps" || fail "another library is used"
    grep -q "$usr/share/cmped/cmp_ru\.qm" "/proc/$editor/maps" || fail "the editor speaks no Russian"
    kill -TERM "$editor"
    wait "$editor" || status=$?
    editor=
    [ $status = 0 ] || fail "the editor ends with status $status"
    pass "the editor starts and finds its library and its translations"
}

# As file managers do: the line of the thumbnailer with its letters replaced.
a_thumbnail_is_drawn() {
    local line
    mkdir -p "$XDG_CONFIG_HOME/cmped"
    printf '[game]\nfolder=%s\n' "$game" >"$XDG_CONFIG_HOME/cmped/cmped.conf"
    line=$(sed -n 's/^Exec=//p' "$usr/share/thumbnailers/cmped.thumbnailer")
    : >"$work/thumbnail.png"
    line=${line/\%s/128}
    line=${line/\%i/$campaign}
    sh -c "${line/\%o/$work/thumbnail.png}" 2>"$work/log" || fail "no thumbnail: $line"
    [ "$(identify -format '%m %wx%h' "$work/thumbnail.png")" = "PNG 97x128" ] ||
        fail "the thumbnail has another size"
    grep -qx "MimeType=$campaign_type;" "$usr/share/thumbnailers/cmped.thumbnailer" ||
        fail "the thumbnailer is for other files"
    pass "a thumbnail is drawn"
}

# The editor that somebody else has started on the campaign; its process is left in `editor`.
is_opened() {
    local process
    for process in /proc/[0-9]*; do
        if grep -qazxF "$campaign" "$process/cmdline" 2>/dev/null; then
            editor=${process#/proc/}
            return 0
        fi
    done
    return 1
}
is_closed() { ! is_opened; } # what is left of it may wait for its parent

# As a double click does. The game is the one chosen last.
a_campaign_is_opened() {
    XDG_CURRENT_DESKTOP=GNOME xdg-open "$campaign" >"$work/log" 2>&1 || fail "xdg-open opens nothing"
    until_true is_opened || fail "xdg-open starts no editor"
    until_true is_up "$editor" || fail "the editor does not come up"
    kill -TERM "$editor"
    until_true is_closed || fail "the editor does not end"
    editor=
    pass "xdg-open opens a campaign"
}

nothing_else_was_written() {
    files | grep -vE '/(mime/|applications/mimeinfo.cache)' >"$work/now"
    grep -vE '/mime/' "$work/installed" | diff - "$work/now" >"$work/log" || fail "files came or went"
    pass "using it writes nothing into the system"
}

control() { dpkg-deb --field "$package" "$1"; }
packed() { dpkg-deb --fsys-tarfile "$package" | tar "$@"; }

the_package_holds_the_same() {
    "${cmake%/*}/cpack" --config "$build/CPackConfig.cmake" -B "$work/packed" >"$work/log" 2>&1 ||
        fail "can't be packed"
    local script library
    package=$(echo "$work"/packed/*.deb)
    [ "$(control Package) $(control Version)" = "$(cmped --version)" ] ||
        fail "the package has another version"
    for library in libc6 libqt5core5a libqt5gui5 libqt5svg5 libqt5widgets5 zlib1g \
        libsdl2-mixer-2.0-0; do
        control Depends | grep -qE "(^|, )$library( |,|$)" || fail "the package doesn't ask for $library"
    done
    packed --list | grep -v '/$' | sort | diff "$work/installed" - >"$work/log" ||
        fail "the package holds other files than are installed"
    ! packed --list --verbose | grep -v ' root/root ' >"$work/log" ||
        fail "files in the package belong to somebody"
    # What scripts of its own do, a removal doesn't undo.
    dpkg-deb --control "$package" "$work/control"
    for script in "$work/control/"{preinst,postinst,prerm,postrm}; do
        [ -e "$script" ] || continue
        ! grep -vE '^(#!/bin/sh|set -e|if .*|[[:space:]]*ldconfig|fi|)$' "$script" >"$work/log" ||
            fail "${script##*/} of the package does more than it needs"
    done
    pass "the package for Debian holds the same and asks for what it needs"
}

# dpkg as root of a system that has nothing else, with the package's scripts run outside it.
in_an_empty_system() {
    local root=()
    [ "$(id -u)" = 0 ] || root=(unshare --map-root-user)
    PATH=$work/bin:$PATH:/usr/sbin:/sbin "${root[@]}" dpkg --root="$work/empty" --force-not-root \
        --force-depends --force-script-chrootless --log="$work/dpkg.log" "$@" >"$work/log" 2>&1
}
in_the_empty_system() { (cd "$work/empty" && find . ! -path './var*' ! -path . | sort); }

the_package_comes_and_goes() {
    mkdir -p "$work/empty/var/lib/dpkg/"{info,updates,triggers} "$work/bin"
    touch "$work/empty/var/lib/dpkg/"{status,available}
    printf '#!/bin/sh\n' >"$work/bin/ldconfig"
    chmod +x "$work/bin/ldconfig"
    in_an_empty_system --install "$package" || fail "the package can't be installed"
    [ -x "$work/empty/usr/bin/cmped" ] || fail "the package installs nothing"
    in_an_empty_system --purge cmped || fail "the package can't be removed"
    [ -z "$(in_the_empty_system)" ] || fail "it leaves behind: $(in_the_empty_system)"
    pass "the package is installed, and removed without a trace"
}

install_for_the_system
files_for_desktops_are_valid
one_version_is_told_everywhere
files_have_their_types
icons_are_there
the_editor_starts
a_thumbnail_is_drawn
a_campaign_is_opened
nothing_else_was_written
# Sanitizers ask for libraries of their own, and nobody packs them.
grep -q '^CMPED_SANITIZERS:BOOL=ON' "$build/CMakeCache.txt" && exit 0
the_package_holds_the_same
the_package_comes_and_goes
