# What the scripts share: saying what is done, installing what is missing, building.
# Sourced from the project's folder; not run by itself.
# shellcheck shell=bash

say() { printf '\n==> %s\n' "$*"; }

die() {
    printf '\n%s\n' "$*" >&2
    exit 1
}

wanted_packages() { grep -v '^#' packaging/debian-packages.txt; }

missing_packages() {
    local package
    for package in $(wanted_packages); do
        dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' || echo "$package"
    done
}

# Runs a command as root: directly, or through sudo.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "This needs root once, for: $*
Run that as root, then start again."
    fi
}

install_what_is_missing() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        command -v cmake >/dev/null && command -v ninja >/dev/null && return 0
        die "This system has no apt-get. Please install by hand: a C++17 compiler, CMake 3.25, Ninja,
Qt 5.15 (Core, Gui, Widgets, Svg, Test, Linguist tools and its translations), zlib, SDL2_mixer,
libmp3lame, libvorbis, pkg-config; for a start without a display also Xvfb, openbox, xdotool and ImageMagick.
Under Debian these are the packages: $(wanted_packages | tr '\n' ' ')"
    fi
    local missing
    missing=$(missing_packages)
    [ -z "$missing" ] && return 0
    say "Installing what is missing: $(tr '\n' ' ' <<<"$missing")"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -q
    # shellcheck disable=SC2086
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing
}

# build PRESET [TARGET...]: configures the first time, then builds with Ninja's own progress.
build() {
    local preset=$1
    shift
    if [ ! -e "build/$preset/build.ninja" ]; then
        mkdir -p build
        cmake --preset "$preset" >"build/configure-$preset.log" 2>&1 ||
            { cat "build/configure-$preset.log" >&2; die "Configuring failed."; }
    fi
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
