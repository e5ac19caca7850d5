#!/usr/bin/env bash
# Runs the native tests in each code page that the simulated desktop knows, two at a time: test-native.sh [--count]. What
# each run has printed follows when it has ended. With --count those that count go along, as the last ones, for
# tools/check-coverage.py --tell: kestrel-tests-counted has to be built then.
#
# Each run has an order of its own, by a seed that it prints. KESTREL_SEED=17 tools/test-native.sh plays all as it was.
set -uo pipefail
. "$(dirname "$0")/lib.sh"

cd "$PROJECT"
tests=build/native/bin/kestrel-tests
[ -f "$tests" ] || fail "$tests has not been built"
seed=${KESTREL_SEED:-$((SRANDOM % 1000000))}
say "the order is that of KESTREL_SEED=$seed"

# inPage PAGE
inPage() {
    local log code own=$((seed + $1))
    log=$(logFile "code-page-$1")
    KESTREL_CODE_PAGE=$1 KESTREL_SEED=$own "$tests" -ob=rand -rs=$own >"$log" 2>&1
    code=$?
    # In one piece, beside the other's.
    flock "$tests" cat <(say "native tests in code page $1, order and seed $own, exit code $code") "$log"
    return $code
}

# They have an order of their own.
counted() {
    local log code
    log=$(logFile counted)
    tools/check-coverage.py --play >"$log" 2>&1
    code=$?
    flock "$tests" cat <(say "native tests that count, exit code $code") "$log"
    return $code
}

bad=0
runs=()
each=('inPage 1252' 'inPage 1250' 'inPage 1251' 'inPage 932' 'inPage 65001')
[ "${1:-}" != --count ] || each+=(counted)
for run in "${each[@]}"; do
    while (($(jobs -rp | wc -l) >= 2)); do
        wait -n
    done
    $run &
    runs+=($!)
done
for run in "${runs[@]}"; do
    wait "$run" || bad=1
done
exit $bad
