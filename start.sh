#!/usr/bin/env bash
# Builds the editor, makes the sample game with the editor in it, and opens a campaign:
#   ./start.sh         the sample campaign
#   ./start.sh FILE    that file
# Without a display it does the same on a virtual one, saves a picture of the window and ends.
set -euo pipefail

campaign=${1:+$(realpath -- "$1")}
cd "$(dirname "$(realpath "$0")")"
# shellcheck source=scripts/common.sh
. scripts/common.sh

game=$PWD/build/sample-game
picture=$PWD/build/start.png
log=$PWD/build/start.log
# A trial leaves nothing among the user's own data, nor is it asked about anything there.
export XDG_DATA_HOME=$PWD/build/start-data

make_sample_game() {
    if [ ! -e "$game/.complete" ] || [ build/release/sample-game.stamp -nt "$game/.complete" ]; then
        say "Making the sample game in $game"
        mkdir -p "$game"
        cp -R build/release/sample-game/. "$game/"
    fi
    cmake --install build/release --prefix "$game" >/dev/null
    touch "$game/.complete"
}

# Leaves the id of the editor's window in `window`, which bears the beginning of the file's
# name, as the splash picture doesn't; gives up after a minute or when the editor has ended.
wait_for_window() {
    local name
    name=$(basename -- "$campaign" | cut -c 1-30 | sed 's/[][\\.*^$+?(){}|]/\\&/g')
    for _ in $(seq 300); do
        window=$(xdotool search --all --onlyvisible --pid "$editor" --name "$name" 2>/dev/null |
            head -n 1) || true
        [ -n "$window" ] && return 0
        kill -0 "$editor" 2>/dev/null || die "The editor ended before its window came up; its log is in $log."
        sleep 0.2
    done
    die "The editor's window did not come up within a minute."
}

# Takes pictures until two in a row are the same, so that a window half drawn is never kept. One
# that the window manager is about to frame can't be taken yet.
take_picture() {
    local before='' now
    for _ in $(seq 50); do
        if import -frame -window "$window" "$picture" 2>/dev/null &&
            now=$(import -frame -window "$window" rgb:- 2>/dev/null | sha256sum); then
            [ "$now" = "$before" ] && return 0
            before=$now
        fi
        sleep 0.2
    done
    die "The window never stood still."
}

run_on_virtual_display() {
    local number
    number_file=$(mktemp)
    Xvfb -noreset -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$number_file" 2>/dev/null &
    xvfb=$!
    trap 'kill ${editor:-} ${manager:-} $xvfb 2>/dev/null || true; rm -f "$number_file"' EXIT
    for _ in $(seq 100); do
        [ -s "$number_file" ] && break
        sleep 0.1
    done
    number=$(tr -d '\n' <"$number_file")
    [ -n "$number" ] || die "No virtual display could be started."
    export DISPLAY=:$number
    for _ in $(seq 100); do
        xdotool getmouselocation >/dev/null 2>&1 && break
        sleep 0.1
    done
    export SDL_AUDIODRIVER=dummy
    openbox >/dev/null 2>&1 &
    manager=$!
    "$game/cmped" "$campaign" 2>"$log" &
    editor=$!
    wait_for_window
    take_picture
    say "A picture of the window is in $picture"
    kill -TERM "$editor"
    wait "$editor" || die "The editor ended with exit status $?; its log is in $log."
    editor=
    say "The editor was ended and left properly."
}

install_what_is_missing
say "Building the editor (the first time takes some minutes)"
build release cmped_launcher cmped_cli sample_game
make_sample_game
campaign=${campaign:-$game/Maps/sample.e3c}
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    say "Opening $campaign"
    exec "$game/cmped" "$campaign"
fi
say "No display here: opening $campaign on a virtual one"
run_on_virtual_display
