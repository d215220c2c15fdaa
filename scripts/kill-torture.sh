#!/usr/bin/env bash
# Kills the editor at random moments of an author's day, far oftener than the ordinary tests do, and
# prints what every end has left. The day is lived once without an end first, to compare with, and
# then as often as it takes for all kills to come.
#   scripts/kill-torture.sh [KILLS [SEED]]   so many kills, 100 if not said
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

kills=${1:-100}
seed=${2:-2}
[[ $kills =~ ^[1-9][0-9]*$ && $seed =~ ^[0-9]+$ ]] || die "Usage: scripts/kill-torture.sh [KILLS [SEED]]"

build release author_day_test sudden_end_test
record=$(mktemp)
trap 'rm -f "$record"' EXIT
folder=build/release/tests/desktop
parts=("$PWD/build/release/bin" "$PWD/build/release/sample-game" "$PWD/$folder/plugins"
    "$PWD/tests/desktop/author_day" "$record")

say "A day without an end before its own"
"build/release/bin/author_day_test" "${parts[@]}"
say "The same day again and again, and $kills ends"
"build/release/bin/sudden_end_test" "${parts[@]}" "$kills" "$seed"
say "Nothing was lost but the dialog that was open."
