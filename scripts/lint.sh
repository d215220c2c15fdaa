#!/usr/bin/env bash
# Checks layout (clang-format) and habits (clang-tidy) of our own code. Needs clang-format and
# clang-tidy 14, and a configured release build.
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

mapfile -t all < <(git ls-files '*.cpp' '*.h')
mapfile -t sources < <(git ls-files '*.cpp')

say "Checking the layout of ${#all[@]} files"
clang-format --dry-run --Werror "${all[@]}"

say "Checking the habits of ${#sources[@]} files"
build release
printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/release --quiet
say "Nothing found."
