#!/usr/bin/env bash
# Configures and builds one preset, the whole of it or some targets: build.sh PRESET [TARGET]...
# CMakePresets.json has the presets: native, fuzz, fuzz-fast, native-release, i686, x86_64.
# The Windows presets leave dist/win32, dist/win64.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

cd "$PROJECT"
preset=${1:?which preset?}
shift
log=$(logFile "build-$preset")
say "configuring and building $preset${*:+: $*}, log in $log"
cmake --preset "$preset" >"$log" 2>&1 || { tail -30 "$log"; fail "configuring $preset failed"; }
cmake --build --preset "$preset" ${*:+--target "$@"} >>"$log" 2>&1 || { grep -A12 -m3 -e 'FAILED' "$log" || tail -30 "$log"; fail "building $preset failed"; }
say "$(tail -1 "$log")"
