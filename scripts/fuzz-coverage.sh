#!/usr/bin/env bash
# How much of its reader each fuzz target covers by its corpus alone. Which sources those are says
# fuzz/readers.txt. Needs clang, llvm-profdata and llvm-cov (Debian's package llvm).
#   scripts/fuzz-coverage.sh [TARGET...]            a row a target; exit status 1 below 95 %
#   scripts/fuzz-coverage.sh --missing [TARGET...]  the lines that aren't reached as well
#   scripts/fuzz-coverage.sh --figures [TARGET...]  only the rows, whatever they say
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

work=build/fuzz-coverage
enough=95
export LC_ALL=C.UTF-8

all_targets() { grep -v '^#' fuzz/readers.txt | awk '{ print $1 }'; }
readers_of() { awk -v name="$1" '$1 == name { $1 = $2 = ""; print }' fuzz/readers.txt; }

# Runs every file of the corpus once, as it is.
replay() {
    LLVM_PROFILE_FILE=$work/$1.profraw "$work/bin/$1_fuzz" --whole "fuzz/corpus/$1" \
        >"$work/$1.log" 2>&1 || { tail "$work/$1.log" >&2; die "$1 failed on its corpus."; }
    llvm-profdata merge -sparse "$work/$1.profraw" -o "$work/$1.profdata"
    rm "$work/$1.profraw"
}

# Covered lines, all lines, percent.
figures() {
    # shellcheck disable=SC2046
    llvm-cov export -summary-only -instr-profile="$work/$1.profdata" "$work/bin/$1_fuzz" \
        $(readers_of "$1") | sed 's/.*"totals"//; s/.*"lines":{"count":\([0-9]*\),"covered":\([0-9]*\).*/\2 \1/' |
        awk '{ printf "%d %d %.1f%%\n", $1, $2, 100 * $1 / $2 }'
}

# Each line as FILE:NUMBER: TEXT.
missing() {
    local source
    for source in $(readers_of "$1"); do
        llvm-cov show -instr-profile="$work/$1.profdata" "$work/bin/$1_fuzz" "$source" |
            sed -n "s/^ *\([0-9]*\)| *0|/    ${source//\//\\/}:\1: /p"
    done
}

mode=rows
case ${1:-} in
--missing | --figures)
    mode=${1#--}
    shift
    ;;
esac
targets=("$@")
[ $# -gt 0 ] || mapfile -t targets < <(all_targets)

build fuzz-coverage "${targets[@]/%/_fuzz}" >&2
short=()
for target in "${targets[@]}"; do
    replay "$target"
    read -r covered lines share < <(figures "$target")
    printf '%-16s %5d %5d %s\n' "$target" "$covered" "$lines" "$share"
    [ $((covered * 100)) -ge $((lines * enough)) ] || short+=("$target")
    [ "$mode" != missing ] || missing "$target"
done
[ "$mode" = figures ] || [ ${#short[@]} -eq 0 ] || die "Below $enough %: ${short[*]}."
