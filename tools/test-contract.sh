#!/usr/bin/env bash
# Runs the contract tests under Wine: test-contract.sh i686|x86_64 [LOCALE], the preset whose build is meant and the
# user's locale: ja_JP makes 932 the code page, hi_IN 65001. They get a display of their own, since windows, input and the
# clipboard are among what they test.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

cd "$PROJECT"
preset=${1:?which preset?}
program=build/$preset/bin/contract-tests.exe
[ -f "$program" ] || fail "$program has not been built"
locale=${2:-}
say "contract tests of $preset under Wine${locale:+, $locale}"
export PYTHONPATH=tests/windows
timeout -k 10 600 "$PYTHON" -m driver.display tools/wine-run.sh ${locale:+--locale "$locale"} "$program"
