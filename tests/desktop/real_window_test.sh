#!/usr/bin/env bash
# Drives the real launcher in a real window by mouse and keyboard, and looks at what is on the
# screen and on the disk: region clicks, wheel, menus, saving, a dropped file, recent files, sizes
# and the end.
#
# Usage: real_window_test.sh BIN SAMPLE_GAME
set -euo pipefail

bin=$1
# shellcheck source=tests/desktop/virtual_display.sh
. "$(dirname "$0")/virtual_display.sh"
cp -R "$2" "$work/game"
maps=$work/game/Maps
campaign=$maps/sample.e3c
export CMPED_GAME_DIR=$work/game XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
unset QT_QPA_PLATFORM

find_window() { window=$(xdotool search --onlyvisible --name "^$1 - " | head -n 1) && [ -n "$window" ]; }
title_begins() { [[ $(xdotool getwindowname "$window") == "$1 - "* ]]; }
picture() { import -window "$window" rgb:- | sha256sum; }
picture_is_not() { [ "$(picture)" != "$1" ]; }
size() { xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=' | tr '\n' ' '; }
size_is() { [ "$(size)" = "$1" ]; }
menu_is_open() { [ "$(xdotool search --onlyvisible --class cmped | wc -l)" -ge 2 ]; }
menu_is_closed() { ! menu_is_open; }
size_is_not() { [ "$(size)" != "$1" ]; }

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

# The map's frame is dark, the bars above it are light.
first_row_of_the_map() {
    still_picture >/dev/null
    import -window "$window" -crop 1x200+230+0 -depth 8 gray:- | od -An -v -tu1 -w1 |
        awk '$1 < 120 { print NR - 1; exit }'
}

# click X Y [BUTTON]: at this point of the campaign map.
click() {
    xdotool mousemove --window "$window" "$1" $(($2 + map_top)) click "${3:-1}"
}

regions_are_selected_by_both_buttons() {
    local before selected
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
    until_true menu_is_open || fail "the right button showed no menu"
    xdotool key Escape
    until_true menu_is_closed || fail "Escape does not close the menu"
    pass "the right button selects a region and shows its menu"
}

# picture_after X Y: of the map once another region, the one under this point, is selected.
picture_after() {
    local before
    before=$(still_picture)
    click "$1" "$2"
    until_true picture_is_not "$before" || fail "a click at $1, $2 changed nothing"
    still_picture
}

# In the sample campaign the lighthouse isle, the last region, lies over the edge of the striped
# one beside it, and its picture has transparent corners over that one too.
overlaps_and_transparent_corners_go_to_the_right_region() {
    local neighbour isle
    neighbour=$(picture_after 200 100)
    isle=$(picture_after 285 95)
    [ "$isle" != "$neighbour" ] || fail "the isle can't be selected"
    [ "$(picture_after 200 100)" = "$neighbour" ] || fail "the isle's neighbour can't be selected again"
    [ "$(picture_after 249 102)" = "$isle" ] || fail "the region on top does not take the click"
    [ "$(picture_after 248 110)" = "$neighbour" ] || fail "a transparent corner takes the click"
    pass "the region on top takes a click, its transparent corner does not"
}

saving_writes_the_expected_file() {
    "$bin/cmped-cli" --game "$work/game" resave "$campaign" "$work/expected.e3c"
    rm "$campaign"
    xdotool key --window "$window" ctrl+s
    until_true cmp "$campaign" "$work/expected.e3c" || fail "the saved file is not the one expected"
    pass "Ctrl+S writes the campaign"
}

a_dropped_file_is_opened() {
    "$bin/drag_source" "$maps/version_5.e3c" "$maps/version_6.e3c" &
    source=$!
    until_true xdotool search --onlyvisible --name '^drag source$' || fail "no drag source"
    local from i
    from=$(xdotool search --onlyvisible --name '^drag source$' | head -n 1)
    xdotool mousemove --window "$from" 60 60 mousedown 1
    for i in 40 80 120 160 200 240 280; do
        xdotool mousemove --window "$window" $((400 - i)) $((300 + i / 4))
        sleep 0.1
    done
    xdotool mouseup 1
    until_true title_begins version_5.e3c || fail "the dropped file was not opened"
    kill "$source"
    source=
    pass "the first of several dropped files is opened"
}

a_recent_file_is_opened_from_the_menu() {
    xdotool mousemove --window "$window" 20 12 click 1
    until_true menu_is_open || fail "the menu did not open"
    xdotool key 2
    until_true title_begins sample.e3c || fail "the recent file was not opened"
    pass "a recent file is opened by the keyboard"
}

sizes_come_and_go() {
    local first
    first=$(size)
    still_picture >/dev/null
    xdotool windowsize "$window" 380 500
    until_true size_is_not "$first" || fail "the window can't be made smaller"
    still_picture >/dev/null
    click 100 200
    xdotool windowsize "$window" 900 800
    until_true size_is "WIDTH=900 HEIGHT=800 " || fail "the window can't be made larger"
    xdotool windowsize "$window" $(sed -E 's/WIDTH=([0-9]+) HEIGHT=([0-9]+) /\1 \2/' <<<"$first")
    until_true size_is "$first" || fail "the window did not get its first size back"
    pass "the window can be made smaller and larger"

    xdotool mousemove --window "$window" 200 -8 click --repeat 2 --delay 60 1
    until_true size_is_not "$first" || fail "a double click on the title did not maximise"
    still_picture >/dev/null
    xdotool mousemove --window "$window" 200 -8 click --repeat 2 --delay 60 1
    until_true size_is "$first" || fail "back from maximised the size is $(size), not $first"
    pass "back from maximised the window has its first size"
}

closing_writes_settings_and_recent_files() {
    xdotool windowactivate --sync "$window" key alt+F4
    until_true has_ended "$editor" || fail "the window did not close"
    wait "$editor" || fail "the editor ended with exit status $?"
    editor=
    grep -q '^\[Campaign Editor\]' "$work/game/Ravn_settings.ini" || fail "the settings are gone"
    grep -q 'sample.e3c' -r "$work/config" || fail "the file is not among the recent ones"
    pass "closing ends the editor with status 0, settings and recent files are written"
}

start_display
"$bin/cmped" "$campaign" 2>"$work/log" &
editor=$!
until_true find_window sample.e3c || fail "the window did not come up"
find_window sample.e3c
pass "the window came up with the campaign's name in its title"

map_top=$(first_row_of_the_map)
[ -n "$map_top" ] || fail "no map in the window"

regions_are_selected_by_both_buttons
overlaps_and_transparent_corners_go_to_the_right_region
saving_writes_the_expected_file
a_dropped_file_is_opened
a_recent_file_is_opened_from_the_menu
sizes_come_and_go
closing_writes_settings_and_recent_files
