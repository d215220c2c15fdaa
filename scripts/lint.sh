#!/usr/bin/env bash
# Checks our own code: its layout (clang-format), its habits (clang-tidy, see .clang-tidy) and its
# use of Qt (clazy). Needs clang-format, clang-tidy, clazy and Google
# Benchmark (libbenchmark-dev) of Debian 12.
#   scripts/lint.sh          everything, which takes about an hour on two processors
#   scripts/lint.sh FILE...  these sources and headers; a header's habits are seen from a source
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

# Colours read best as style sheets write them, and no hundred of them is made.
program_checks=level1,copyable-polymorphic,no-qcolor-from-literal
# Where nothing lives long, a copy too many or a list made before main harms nobody. The layout wants
# a space in the pointer types of Q_ARG.
test_checks=$program_checks,no-detaching-temporary,no-non-pod-global-static,no-range-loop-detach
test_checks+=,no-connect-not-normalized

# A build folder of its own: configured with no precompiled headers, which another compiler can't
# read, and with what moc and uic make, but never built.
prepare() {
    cmake -S . -B build/lint -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
        -DCMPED_BENCHMARKS=ON >/dev/null
    find build/lint -name AutogenInfo.json -print0 |
        xargs -0 -P "$(nproc)" -I '{}' cmake -E cmake_autogen '{}' Release
}

# sources_but PATTERN and sources_of PATTERN: those whose path doesn't fit, and those whose does.
sources_but() { printf '%s\n' "${files[@]}" | grep '\.cpp$' | grep -vE "$1" || true; }
sources_of() { printf '%s\n' "${files[@]}" | grep '\.cpp$' | grep -E "$1" || true; }

# each COMMAND...: runs it for one source after another of standard input, on all processors.
each() { nice xargs -r -P "$(nproc)" -n 1 "$@"; }

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
sources_but "$tests" | each clazy-standalone -p build/lint -checks="$program_checks"
sources_of "$tests" | each clazy-standalone -p build/lint -checks="$test_checks"
say "Checking the habits"
sources_of . | each clang-tidy -p build/lint --quiet
say "Nothing found."
