#!/usr/bin/env bash
# Kills saves at random moments, far oftener than the ordinary tests do, then injects every fault,
# fills disks at every page, and kills the editor at every call that keeps a recovery copy. Prints
# what came of it. Root mounts the disks; without it they are skipped.
#   scripts/save-torture.sh [KILLS]   so many kills in each way, 500 if not said
set -euo pipefail

cd "$(dirname "$(realpath "$0")")/.."
# shellcheck source=scripts/common.sh
. scripts/common.sh

kills=${1:-500}
[[ $kills =~ ^[1-9][0-9]*$ ]] || die "Usage: scripts/save-torture.sh [KILLS]"

tests=(save_kills_test save_cli_faults_test save_faults_test save_disks_test save_targets_test
    recovery_kills_test)
build release "${tests[@]}"
for test in "${tests[@]}"; do
    say "$test"
    CMPED_SAVE_KILLS=$kills QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8 \
        CMPED_BIN=$PWD/build/release/bin "build/release/bin/$test"
done
say "Every file stayed whole."
