#!/usr/bin/env bash
# Runs the native tests in each code page that the simulated desktop knows, two at a time: test-native.sh. What each run
# has printed follows when it has ended.
set -uo pipefail
. "$(dirname "$0")/lib.sh"

cd "$PROJECT"
tests=build/native/bin/kestrel-tests
[ -f "$tests" ] || fail "$tests has not been built"

# inPage PAGE
inPage() {
    local log code
    log=$(logFile "code-page-$1")
    KESTREL_CODE_PAGE=$1 "$tests" >"$log" 2>&1
    code=$?
    # In one piece, beside the other's.
    flock "$tests" cat <(say "native tests in code page $1, exit code $code") "$log"
    return $code
}

bad=0
runs=()
for page in 1252 1250 1251 932 65001; do
    while (($(jobs -rp | wc -l) >= 2)); do
        wait -n
    done
    inPage "$page" &
    runs+=($!)
done
for run in "${runs[@]}"; do
    wait "$run" || bad=1
done
exit $bad
