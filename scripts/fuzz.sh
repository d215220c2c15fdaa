#!/usr/bin/env bash
# Fuzzes the readers: libFuzzer under AddressSanitizer and UBSan (clang), one target after another.
# What is found stays in build/fuzz/found; fuzz/corpus gets the few files that reach everything.
#   scripts/fuzz.sh [SECONDS] [TARGET...]      so long for each target (60)
#   scripts/fuzz.sh --runs N [TARGET...]       so many runs of each target, or two hours of it
#   scripts/fuzz.sh --minimise [TARGET...]     no runs, only the corpora and the table
# A table of figures goes to standard output. A fault ends its target; its input lies in
# build/fuzz/faults, and the exit status is 1.
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

work=build/fuzz
found=$work/found
faults=$work/faults
logs=$work/logs

# One input has a quarter of a gigabyte, in one piece or above what the process takes with an empty
# input. The sanitizer keeps 256 MB of freed memory unless it is told to keep less. The processor's
# time is limited by the targets themselves (fuzz/time_limit.h); the limit here, by the clock on the
# wall, finds what waits for ever.
megabytes=256
seconds=120
longest_fuzzing=7200
# Most of an input's time goes into memory, and most of that into noting who asked for it, of which
# two callers are enough here: a fault shows them all when its file is run by hand.
export ASAN_OPTIONS=quarantine_size_mb=16:detect_leaks=1:malloc_context_size=2${ASAN_OPTIONS:+:$ASAN_OPTIONS}
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/tests/leaks.supp:print_suppressions=0
export LC_ALL=C.UTF-8

all_targets() { grep -v '^#' fuzz/readers.txt | awk '{ print $1 }'; }

length_of() { awk -v name="$1" '$1 == name { print $2 }' fuzz/readers.txt; }

# figure NAME LOG: one of libFuzzer's final figures.
figure() { sed -n "s/^stat::$1: *//p" "$2"; }

# What the process takes before it has read anything, in MB.
idle_megabytes() {
    "$work/bin/$1_fuzz" -runs=0 -print_final_stats=1 2>&1 |
        sed -n 's/^stat::peak_rss_mb: *//p'
}

limits_of() {
    local idle
    idle=$(idle_megabytes "$1")
    echo "-rss_limit_mb=$((idle + megabytes)) -malloc_limit_mb=$megabytes -timeout=$seconds"
}

# Fuzzes one target until its time or its runs are up. False if there is a fault.
fuzz() {
    local target=$1
    # shellcheck disable=SC2046,SC2086
    "$work/bin/${target}_fuzz" $kind $(limits_of "$target") "-max_len=$(length_of "$target")" \
        -print_final_stats=1 "-dict=fuzz/dictionaries/$target.dict" "-artifact_prefix=$faults/$target-" \
        "$found/$target" "fuzz/corpus/$target" >"$logs/$target.log" 2>&1
}

# Files with a name are seeds and mended faults, and stay. Of those named by their hash the ones
# stay that reach something the others don't, the smallest first.
minimise() {
    local target=$1 corpus=fuzz/corpus/$1 kept
    kept=$(mktemp -d)
    find "$corpus" -type f -regextype posix-extended -not -regex '.*/[0-9a-f]{40}' \
        -exec cp -t "$kept" '{}' +
    # shellcheck disable=SC2046
    "$work/bin/${target}_fuzz" -merge=1 $(limits_of "$target") "-artifact_prefix=$faults/$target-" \
        "$kept" "$corpus" "$found/$target" >>"$logs/$target.merge" 2>&1
    find "$corpus" -type f -regextype posix-extended -regex '.*/[0-9a-f]{40}' -delete
    cp -n "$kept"/* "$corpus"
    rm -r "$kept"
}

row() { printf '%-16s %12s %8s %7s %9s %s\n' "$@"; }

table() {
    local target runs rate
    row target runs exec/s files bytes lines
    for target in "${targets[@]}"; do
        runs=- rate=-
        if [ -e "$logs/$target.log" ]; then
            runs=$(figure number_of_executed_units "$logs/$target.log")
            rate=$(figure average_exec_per_sec "$logs/$target.log")
        fi
        row "$target" "$runs" "$rate" "$(find "fuzz/corpus/$target" -type f | wc -l)" \
            "$(cat "fuzz/corpus/$target"/* | wc -c)" \
            "$(awk -v name="$target" '$1 == name { print $2 " of " $3 " (" $4 ")" }' <<<"$covered")"
    done
}

kind=-max_total_time=60
case ${1:-} in
--runs)
    kind="-runs=${2:?how many runs} -max_total_time=$longest_fuzzing"
    shift 2
    ;;
--minimise)
    kind=
    shift
    ;;
[0-9]*)
    kind=-max_total_time=$1
    shift
    ;;
esac
targets=("$@")
[ $# -gt 0 ] || mapfile -t targets < <(all_targets)

build fuzz fuzz_targets >&2
mkdir -p "$logs" "$found" "$faults"
failed=()
for target in "${targets[@]}"; do
    mkdir -p "$found/$target"
    if [ -n "$kind" ]; then
        say "$target" >&2
        fuzz "$target" || failed+=("$target")
    fi
    minimise "$target"
done
covered=$(scripts/fuzz-coverage.sh --figures "${targets[@]}")
table
[ ${#failed[@]} -eq 0 ] || die "Faults in: ${failed[*]}. Their inputs are in $faults, what was said of them in $logs."
