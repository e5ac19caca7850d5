#!/usr/bin/env bash
# Runs the contract tests under Wine: test-contract.sh i686|x86_64 [LOCALE], the preset whose build is meant and the
# user's locale: ja_JP makes 932 the code page, hi_IN 65001. They get a display of their own, since windows, input and the
# clipboard are among what they test, and stand in a folder of their own, since they write beside themselves: any number may
# run at once.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

cd "$PROJECT"
preset=${1:?which preset?}
built=build/$preset/bin
[ -f "$built/contract-tests.exe" ] || fail "$built/contract-tests.exe has not been built"
locale=${2:-}
say "contract tests of $preset under Wine${locale:+, $locale}"
prefix=$(tools/wine-prefix.sh make)
trap 'tools/wine-prefix.sh drop "$prefix"' EXIT
folder=$(tools/wine-prefix.sh folder "$prefix")/contract
mkdir "$folder"
cp -r "$built/contract-tests.exe" "$built/contract-data" "$folder"
export PYTHONPATH=tests/windows
timeout -k 10 1200 "$PYTHON" -m driver.display \
    tools/wine-run.sh --prefix "$prefix" ${locale:+--locale "$locale"} 'C:\contract\contract-tests.exe'
