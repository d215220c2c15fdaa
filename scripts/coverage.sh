#!/usr/bin/env bash
# Which lines of the program the tests reach: builds with counters, runs every test, prints a line
# for each file and the whole, and writes pages to build/coverage/report. Fails below 95 percent.
# Needs gcovr and llvm of Debian 12, beside what test.sh needs.
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

for program in gcovr llvm-cov; do
    command -v "$program" >/dev/null || die "$program is missing."
done
install_what_is_missing
build coverage
find build/coverage -name '*.gcda' -delete
ctest --preset coverage --parallel "$(nproc)"

# What moc, uic and rcc made is not ours.
mkdir -p build/coverage/report
gcovr --root . --object-directory build/coverage --gcov-executable "llvm-cov gcov" \
    --filter '(gamedata|document|scenario|campaign_dialogs|shell|launcher|cli)/' \
    --exclude 'build/' --exclude-unreachable-branches \
    --html-details build/coverage/report/index.html --print-summary --fail-under-line 95 \
    --txt build/coverage/report/lines.txt -j "$(nproc)"
cat build/coverage/report/lines.txt
