#!/usr/bin/env bash
# What a user does with the installed package; packaging/try-deb.sh runs it in a fresh system.
set -euo pipefail

cd ~
game=$HOME/game
campaign=$game/Maps/sample.e3c
export SDL_AUDIODRIVER=dummy XDG_CURRENT_DESKTOP=GNOME XDG_RUNTIME_DIR=$HOME

fail() {
    echo "FAIL: $*" >&2
    exit 1
}
pass() { echo "PASS: $*"; }

# until_true COMMAND...: tries for up to a minute.
until_true() {
    for _ in $(seq 600); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    return 1
}
in_front() { xdotool getwindowname "$(xdotool getactivewindow)" | grep -q "$1"; }
editor_has_ended() { ! pgrep -x cmped; }

# The window of the editor, which is closed as users do.
editor_comes_up_and_goes() {
    until_true in_front '^sample\.e3c - ' || fail "$1: no window"
    xdotool key alt+F4
    until_true editor_has_ended || fail "$1: the window does not close"
    pass "$1"
}

Xvfb -noreset -displayfd 3 -screen 0 1024x900x24 -nolisten tcp 3>display 2>/dev/null &
until_true grep -q '^[0-9]' display || fail "no virtual display"
DISPLAY=:$(head -n 1 display)
export DISPLAY
until_true xdotool getmouselocation || fail "the display does not answer"
openbox >/dev/null 2>&1 &
trap 'kill $(jobs -p) 2>/dev/null || true; wait' EXIT
until_true xdotool get_num_desktops || fail "no window manager"

cmped --game "$game" "$campaign" 2>log &
editor_comes_up_and_goes "the editor starts on a game that --game names"

[ "$(xdg-mime query filetype "$campaign")" = application/x-eldmark-campaign ] ||
    fail "a campaign has no type"
xdg-open "$campaign" >log 2>&1 &
until_true in_front '^Folder of the Game$' || fail "the editor does not ask for the game"
xdotool key ctrl+a type --delay 1 -- "$game"
xdotool key Return
editor_comes_up_and_goes "xdg-open opens a campaign, once the game's folder is chosen"

xdg-open "$campaign" >log 2>&1 &
editor_comes_up_and_goes "xdg-open opens it without a question from then on"

line=$(sed -n 's/^Exec=//p' /usr/share/thumbnailers/cmped.thumbnailer)
line=${line/\%s/256}
line=${line/\%i/$campaign}
sh -c "${line/\%o/thumbnail.png}"
[ "$(identify -format '%m %wx%h' thumbnail.png)" = "PNG 194x256" ] || fail "no thumbnail"
pass "a campaign's thumbnail is drawn"

for program in cmped cmped-cli; do
    man "$program" >manual 2>log || fail "no manual of $program"
    grep -qx NAME < <(col -b <manual) || fail "the manual of $program is empty"
    [ ! -s log ] || fail "the manual of $program has faults: $(cat log)"
done
pass "man shows the manuals of both programs"

completions() {
    bash -c '. /usr/share/bash-completion/bash_completion
        _completion_loader "$1"
        complete -p "$1" >/dev/null || exit
        COMP_WORDS=("$1" "$2") COMP_CWORD=1 COMP_LINE="$1 $2" COMP_POINT=${#COMP_LINE}
        "$(complete -p "$1" | sed "s/.*-F \([^ ]*\).*/\1/")" "$1" "$2" "$1"
        echo "${COMPREPLY[*]}"' bash "$1" "$2"
}
completions cmped --ga | grep -q -- --game || fail "bash completes no option of cmped"
completions cmped-cli ren | grep -q render || fail "bash completes no command of cmped-cli"
pass "bash completes both programs"
