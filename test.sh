#!/usr/bin/env bash
# Sets up what is missing, builds, and runs the tests: all of them, but for the scenes that only the 32-bit program plays
# (the last step). The last line says how many passed and failed; the exit code is 0 only when none failed. Takes
# no arguments and may be run again: what is there already is not made again.
#
# A step that prints counts of its own (tools/test-counts.awk knows how they look) adds them; any other step counts
# as one. A step that could not run has failed. Under a step stand the lines FLAKY that it has printed: what has failed
# beside others and passed alone.
set -uo pipefail
. "$(dirname "$0")/tools/lib.sh"
cd "$PROJECT" || exit 1

passed=0
failed=0
summary=()

# step NAME COMMAND...
step() {
    local name=$1 log begin=$SECONDS code
    shift
    log=$(logFile "test-${name// /-}")
    printf '\n== %s: %s\n' "$name" "$*"
    "$@" </dev/null 2>&1 | tee "$log"
    code=${PIPESTATUS[0]}
    local -i good bad
    read -r good bad < <(awk -f tools/test-counts.awk "$log")
    if ((good + bad == 0)); then
        ((code == 0)) && good=1
    fi
    ((code != 0 && bad == 0)) && bad=1
    passed=$((passed + good))
    failed=$((failed + bad))
    summary+=("$(printf '%-22s %4d passed %4d failed %4d s' "$name" "$good" "$bad" $((SECONDS - begin)))")
    printf '== %s\n' "${summary[-1]}"
    mapfile -t -O ${#summary[@]} summary < <(sed -n 's/^ *\(FLAKY: .*\)/      \1/p' "$log")
}

step 'toolchain' tools/setup-toolchain.sh
# Mostly waits for the net: it is made while others compile. The step of its own waits for that, and tells of a failure.
tools/setup-wine.sh >/dev/null 2>&1 &
step 'native build' tools/build.sh native all kestrel-tests-counted
step 'native tests' tools/test-native.sh --count
step 'coverage' tools/check-coverage.py --tell
step 'fuzz' tests/fuzz/run.sh --trial 30
step 'style' tools/check-style.sh
step 'second tries' "$PYTHON" tests/windows/check-turns.py
step 'art' "$PYTHON" resources/check-art.py
step 'win32 build' tools/build.sh i686
step 'win64 build' tools/build.sh x86_64
step 'help' "$PYTHON" resources/help/check-help.py dist/win32/EAGLE_Kestrel_Bench.chm dist/win64/EAGLE_Kestrel_Bench.chm
step 'packages' "$PYTHON" packaging/check-packages.py
step 'wine' tools/setup-wine.sh
# One step, so that there is always something to play beside the longest. The 64-bit program plays what differs by bitness;
# the rest of its scenes are a step of tools/long-run.sh.
step 'contract and scenes' "$PYTHON" tests/windows/play-all.py \
    win32 contract contract-932 contract-65001 scenes \
    win64 contract mainJob calculator runRequest tray setupDialog controls dialogs hostLife programStart toolbarWindow resolutions \
    sessionEnd installer newUser checkKit

printf '\n'
printf '   %s\n' "${summary[@]}" "$(printf '%-43s %4d s' 'all together' "$SECONDS")"
printf '%d passed, %d failed\n' "$passed" "$failed"
((failed == 0))
