#!/usr/bin/env bash
# Drives the real launcher in a real window by mouse and keyboard: starts it on the sample
# campaign, selects regions, saves, closes it, and looks at what is on the screen and on the disk.
#
# Usage: real_window_test.sh BIN SAMPLE_GAME
set -euo pipefail

bin=$1
work=$(mktemp -d)
cp -R "$2" "$work/game"
campaign=$work/game/Maps/sample.e3c
export CMPED_GAME_DIR=$work/game XDG_CONFIG_HOME=$work/config SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
unset QT_QPA_PLATFORM

cleanup() {
    kill ${editor:-} ${manager:-} ${xvfb:-} 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

fail() {
    echo "FAIL: $*" >&2
    import -window root "${CMPED_FAILURE_PICTURE:-/dev/null}" 2>/dev/null || true
    exit 1
}
pass() { echo "PASS: $*"; }

# until_true COMMAND...: tries for up to 30 seconds.
until_true() {
    local i
    for i in $(seq 300); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    return 1
}

start_display() {
    Xvfb -displayfd 3 -screen 0 1024x900x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
    xvfb=$!
    until_true test -s "$work/display" || fail "no virtual display"
    export DISPLAY=:$(tr -d '\n' <"$work/display")
    openbox >/dev/null 2>&1 &
    manager=$!
}

find_window() { window=$(xdotool search --onlyvisible --name '^sample.e3c - ' | head -n 1) && [ -n "$window" ]; }
picture() { import -window "$window" rgb:- | sha256sum; }
picture_is_not() { [ "$(picture)" != "$1" ]; }

# The picture once nothing moves any more.
still_picture() {
    local before='' now i
    for i in $(seq 100); do
        now=$(picture)
        [ "$now" = "$before" ] && break
        before=$now
        sleep 0.1
    done
    echo "$now"
}

# click X Y [BUTTON]: at this point of the campaign map.
click() {
    xdotool mousemove --window "$window" "$1" $(($2 + map_top)) click "${3:-1}"
}

start_display
"$bin/cmped" "$campaign" 2>"$work/log" &
editor=$!
until_true find_window || fail "the window did not come up: $(cat "$work/log")"
find_window
pass "the window came up with the campaign's name in its title"

# The map fills the window between its bars: 600 pixels high, the status bar below it.
eval "$(xdotool getwindowgeometry --shell "$window")"
map_top=$((HEIGHT > 685 ? HEIGHT - 630 : 55))
before=$(still_picture)

click 130 470
until_true picture_is_not "$before" || fail "a click on a region changed nothing"
pass "a click selects a region"

selected=$(still_picture)
click 130 470 4
click 130 470 5
[ "$(still_picture)" = "$selected" ] || fail "the wheel moved something"
pass "the wheel does nothing"

click 320 490 3
until_true picture_is_not "$selected" || fail "the right button changed nothing"
xdotool key Escape
pass "the right button selects a region and shows its menu"

"$bin/cmped-cli" --game "$work/game" resave "$campaign" "$work/expected.e3c"
rm "$campaign"
xdotool key --window "$window" ctrl+s
until_true cmp "$campaign" "$work/expected.e3c" || fail "the saved file is not the one expected"
pass "Ctrl+S writes the campaign"

xdotool key alt+F4
until_true eval '! kill -0 $editor' || fail "the window did not close"
wait "$editor" || fail "the editor ended with exit status $?: $(tail -n 30 "$work/log")"
editor=
grep -q '^\[Campaign Editor\]' "$work/game/Ravn_settings.ini" || fail "the settings are gone"
grep -q 'sample.e3c' -r "$work/config" || fail "the file is not among the recent ones"
pass "closing ends the editor with status 0, settings and recent files are written"
