#!/usr/bin/env bash
# Takes the pictures of docs/manual.md and docs/manual.ru.md anew, from the program as it is built now.
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

say "Building"
build release make_manual_pictures
say "Taking the manual's pictures"
fresh=$(mktemp -d)
trap 'rm -rf "$fresh"' EXIT
build/release/bin/make_manual_pictures build/release/sample-game "$fresh"

# Those with a map or a painting in them are large; with a palette they look the same and take less
# than half. The time would make other bytes each time.
find "$fresh" -name '*.png' -size +96k -print0 | xargs -0 -r mogrify +dither -colors 255 \
    -define png:exclude-chunks=date,tIME -define png:compression-level=9 \
    -define png:compression-filter=0

rm -rf docs/manual
cp -R "$fresh" docs/manual
chmod 755 docs/manual
say "$(find docs/manual -name '*.png' | wc -l) pictures, $(du -sh docs/manual | cut -f 1)"
