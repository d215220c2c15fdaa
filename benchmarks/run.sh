#!/usr/bin/env bash
# Measures the program: builds it as it is released, makes what it is measured with (a gigabyte,
# once), and writes the tables of figures with the machine as Markdown on standard output. Exit
# status 1 if a goal is missed. Needs Google Benchmark (libbenchmark-dev) and a quiet machine.
#   benchmarks/run.sh         with the inputs in build/bench/inputs
#   benchmarks/run.sh FOLDER  with the inputs in that folder
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

runs=3
bin=build/bench/bin
inputs=${1:-build/bench/inputs}

command -v Xvfb >/dev/null || die "This needs Xvfb."
build bench cmped_bench >&2
mkdir -p "$inputs"
say "Making the inputs in $inputs" >&2
"$bin/make_inputs" build/bench/sample-game "$inputs"

work=$(mktemp -d)
# shellcheck disable=SC2317 # it is called, by the trap
cleanup() {
    kill "${xvfb:-}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
Xvfb -noreset -displayfd 3 -screen 0 1024x900x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
xvfb=$!
for _ in $(seq 300); do
    [ -s "$work/display" ] && break
    sleep 0.1
done
[ -s "$work/display" ] || die "There is no virtual display."
DISPLAY=:$(head -n 1 "$work/display")
export DISPLAY

fact() { lscpu | sed -n "s/^$1: *//p" | head -n 1; }
memory() { awk '/^MemTotal/ { printf "%.0f GB", $2 / 1048576 }' /proc/meminfo; }
load() { cut -d ' ' -f 1-3 /proc/loadavg; }

# What is read of them is in memory already when it is measured.
find "$inputs" -type f -exec cat '{}' + >/dev/null
load_before=$(load)
say "Measuring, $runs times" >&2
status=0
"$bin/cmped-bench" "$inputs" --runs "$runs" >"$work/tables" || status=$?
[ -s "$work/tables" ] || die "cmped-bench did not measure."

cat <<END
Measured by \`benchmarks/run.sh\`, that is \`cmped-bench $inputs --runs $runs\`, on $(date +%F):

- $(fact 'Model name'), $(nproc) cores, $(memory) of memory
- Linux $(uname -r), Qt $(qmake -query QT_VERSION 2>/dev/null || echo 5.15), $(c++ --version | head -n 1)
- revision $(git rev-parse --short HEAD), load $load_before before and $(load) after (of the last 1, 5 and 15 minutes)
END
cat "$work/tables"
exit "$status"
