#!/usr/bin/env bash
# Checks our own code: its layout (clang-format), its habits (clang-tidy, see .clang-tidy) and its
# use of Qt (clazy). Needs clang, clang-format, clang-tidy, clazy, python3 and Google Benchmark
# (libbenchmark-dev) of Debian 12.
#   scripts/lint.sh          everything, which takes about 25 minutes on two processors
#   scripts/lint.sh FILE...  these sources and headers; a header's habits are seen from a source
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

for tool in clang++ clang-format clang-tidy clazy-standalone python3; do
    command -v "$tool" >/dev/null || die "Please install $tool."
done

# Colours read best as style sheets write them, and no hundred of them is made.
program_checks=level1,copyable-polymorphic,no-qcolor-from-literal
# Where nothing lives long, a copy too many or a list made before main harms nobody. The layout wants
# a space in the pointer types of Q_ARG.
test_checks=$program_checks,no-detaching-temporary,no-non-pod-global-static,no-range-loop-detach
test_checks+=,no-connect-not-normalized

# A build folder of its own, and a new one, since what was made for programs that are gone would be in
# the way. It is configured with no precompiled headers, which another compiler can't read, and with
# what moc and uic make, but never built. What moc makes of a test Ninja would make only after the
# libraries that the test uses.
prepare() {
    rm -rf build/lint
    cmake -S . -B build/lint -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
        -DCMPED_BENCHMARKS=ON >/dev/null
    find build/lint -name AutogenInfo.json -print0 |
        xargs -0 -P "$(nproc)" -I '{}' cmake -E cmake_autogen '{}' Release
    find build/lint -name '*.moc_parameters' -print0 |
        xargs -0 -P "$(nproc)" -I '{}' "$(qmake -query QT_HOST_BINS)/moc" '@{}'
}

# sources_but PATTERN and sources_of PATTERN: those whose path doesn't fit, and those whose does.
sources_but() { printf '%s\n' "${files[@]}" | grep '\.cpp$' | grep -vE "$1" || true; }
sources_of() { printf '%s\n' "${files[@]}" | grep '\.cpp$' | grep -E "$1" || true; }

# on_all COMMAND...: runs it for the sources of standard input, on all processors.
on_all() { nice python3 scripts/lint_joined.py build/lint "$@"; }

if [ $# -gt 0 ]; then
    files=("$@")
else
    mapfile -t files < <(git ls-files '*.cpp' '*.h')
fi

say "Checking the layout of ${#files[@]} files"
clang-format --dry-run --Werror "${files[@]}"

say "Preparing"
prepare
say "Checking the use of Qt"
tests='^(tests|fuzz|benchmarks)/'
sources_but "$tests" | on_all clazy-standalone -checks="$program_checks"
sources_of "$tests" | on_all clazy-standalone -checks="$test_checks"
say "Checking the habits"
sources_of . | on_all clang-tidy --quiet
say "Nothing found."
