# What the scripts here share: a folder to work in, a virtual display with a window manager, and
# patience. Sourced after `set -euo pipefail`; everything is ended and removed with the script.
# shellcheck shell=bash

work=$(mktemp -d)

cleanup() {
    kill ${editor:-} ${source:-} ${manager:-} ${xvfb:-} 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

fail() {
    echo "FAIL: $*" >&2
    import -window root "${CMPED_FAILURE_PICTURE:-/dev/null}" 2>/dev/null || true
    [ ! -e "$work/log" ] || tail -n 20 "$work/log" >&2
    exit 1
}
pass() { echo "PASS: $*"; }

# until_true COMMAND...: tries for up to 30 seconds.
until_true() {
    for _ in $(seq 300); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    return 1
}

start_display() {
    Xvfb -noreset -displayfd 3 -screen 0 1024x900x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
    xvfb=$!
    until_true grep -q '^[0-9]' "$work/display" || fail "no virtual display"
    DISPLAY=:$(head -n 1 "$work/display")
    export DISPLAY
    until_true xdotool getmouselocation || fail "the virtual display $DISPLAY does not answer"
    openbox >/dev/null 2>&1 &
    manager=$!
}

# Whether the editor ends by itself at a signal, which it does as soon as it is up.
is_up() {
    local caught
    caught=$(sed -n 's/^SigCgt:[[:space:]]*//p' "/proc/$1/status")
    ((0x$caught & 1 << (15 - 1)))
}

has_ended() { ! kill -0 "$1"; }
