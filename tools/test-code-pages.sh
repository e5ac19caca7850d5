#!/usr/bin/env bash
# Runs the native tests in the code pages that the simulated desktop knows beside its usual one: test-code-pages.sh.
# Two at a time; what each has printed follows when it has ended.
set -uo pipefail
. "$(dirname "$0")/lib.sh"

cd "$PROJECT"
tests=build/native/bin/kestrel-tests
[ -f "$tests" ] || fail "$tests has not been built"

# inPage PAGE
inPage() {
    local log
    log=$(logFile "code-page-$1")
    KESTREL_CODE_PAGE=$1 "$tests" >"$log" 2>&1
    local code=$?
    say "native tests in code page $1"
    cat "$log"
    return $code
}

bad=0
for pair in '1250 932' '1251 65001'; do
    read -r one other <<<"$pair"
    inPage "$one" &
    inPage "$other" || bad=1
    wait $! || bad=1
done
exit $bad
