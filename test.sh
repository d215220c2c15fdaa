#!/usr/bin/env bash
# Builds with warnings as errors and runs every test, then again under AddressSanitizer and UBSan.
#   ./test.sh            both
#   ./test.sh release    only the ordinary build
#   ./test.sh sanitizers only the sanitizers' build
set -euo pipefail

cd "$(dirname "$(realpath "$0")")"
# shellcheck source=scripts/common.sh
. scripts/common.sh

run_tests() {
    local preset=$1 title=$2
    say "Building $title"
    build "$preset"
    say "Running all tests of $title"
    ctest --preset "$preset" --parallel "$(nproc)"
}

which=${1:-both}
case $which in both | release | sanitizers) ;; *) die "Usage: ./test.sh [release|sanitizers]" ;; esac

install_what_is_missing
[ "$which" = sanitizers ] || run_tests release "the ordinary build"
[ "$which" = release ] || run_tests sanitizers "the build with AddressSanitizer and UBSan"
say "All tests passed."
