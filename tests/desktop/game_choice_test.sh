#!/usr/bin/env bash
# Starts the real launcher where it finds no game, and answers its question for the game's folder by
# mouse and keyboard: not at all, wrongly, rightly. Then starts it again, and `cmped-cli` as well.
#
# Usage: game_choice_test.sh BIN SAMPLE_GAME DESKTOP_ENTRY
set -euo pipefail

bin=$1
entry=$3
# shellcheck source=tests/desktop/virtual_display.sh
. "$(dirname "$0")/virtual_display.sh"
game=$work/game
cp -R "$2" "$game"
mkdir "$work/empty"
campaign=$game/Maps/sample.e3c
unset CMPED_GAME_DIR QT_QPA_PLATFORM
export XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
export HOME=$work
choice=$XDG_CONFIG_HOME/cmped/cmped.conf

windows() { xdotool search --onlyvisible --name "$1"; }
windows_are() { [ "$(windows "$1" | wc -l)" = "$2" ]; }
in_front() { [ "$(xdotool getwindowname "$(xdotool getactivewindow)")" = "$1" ]; }
question='^Folder of the Game$'

start_editor() {
    "$bin/cmped" "$campaign" 2>"$work/log" &
    editor=$!
}

# Leaves the exit status in `status`.
wait_for_end() {
    status=0
    until_true has_ended "$editor" || fail "the editor does not end"
    wait "$editor" || status=$?
    editor=
}

# Types a folder in the place of what stands there.
answer() {
    until_true in_front "Folder of the Game" || fail "the question is not in front"
    xdotool key ctrl+a type --delay 1 -- "$1"
    xdotool key Return
}

the_question_can_be_left() {
    start_editor
    until_true in_front "Folder of the Game" || fail "the launcher does not ask for the game"
    xdotool key Escape
    wait_for_end
    [ "$status" = 1 ] || fail "leaving the question does not end with status 1"
    [ ! -e "$choice" ] || fail "something is remembered though nothing was chosen"
    ! grep -v '^QStandardPaths' "$work/log" || fail "leaving the question is not quiet"
    pass "the question can be left"
}

a_wrong_folder_is_refused_and_the_right_one_taken() {
    start_editor
    answer "$work/empty"
    until_true in_front "Not the Game's Folder" || fail "a wrong folder is not refused"
    [ ! -e "$choice" ] || fail "a wrong folder is remembered"
    xdotool key Return
    answer "$game"
    until_true windows_are '^sample.e3c - ' 1 || fail "the editor does not come up"
    windows_are "$question" 0 || fail "the question is still there"
    grep -qx "folder=$game" "$choice" || fail "the choice is not remembered"
    pass "a wrong folder is refused, and the editor comes up with the right one"
}

# The first application of the process, the question's, must have left nothing behind.
the_editor_is_itself_after_the_question() {
    local window
    window=$(windows '^sample.e3c - ')
    xprop -id "$window" WM_CLASS | grep -q "\"$(sed -n 's/^StartupWMClass=//p' "$entry")\"" ||
        fail "the desktop entry names another class of windows"
    xdotool windowactivate --sync "$window" key alt+F4
    wait_for_end
    [ "$status" = 0 ] || fail "the editor ends with status $status"
    pass "the window belongs to the desktop entry and closes with status 0"
}

nobody_is_asked_again() {
    start_editor
    until_true windows_are '^sample.e3c - ' 1 || fail "the editor does not come up again"
    until_true is_up "$editor" || fail "the editor does not come up again"
    kill -TERM "$editor"
    wait_for_end
    [ "$status" = 0 ] || fail "the editor ends with status $status"
    "$bin/cmped-cli" render --size 100 "$campaign" "$work/picture.png" ||
        fail "the command line does not find the game"
    pass "the choice is taken from then on, by the command line as well"
}

start_display
the_question_can_be_left
a_wrong_folder_is_refused_and_the_right_one_taken
the_editor_is_itself_after_the_question
nobody_is_asked_again
