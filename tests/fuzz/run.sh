#!/usr/bin/env bash
# Plays what reads input with ever new input, under clang's fuzzer and the sanitizers, on all cores:
#
#   tests/fuzz/run.sh SECONDS [TARGET]    so long altogether, or for one target (targets/targets.h names them)
#   tests/fuzz/run.sh --trial SECONDS     the same, and nothing of it is kept: a step of test.sh
#   tests/fuzz/run.sh --effort            how many inputs each target has had so far
#
# What has shown something new stays in corpus/TARGET, as little of it as shows the same; the native tests play it
# (corpus_fuzz.cpp). What stops a target is left in build/fuzz and makes the exit code 1. effort.tsv keeps a line for
# each run: date, target, inputs, seconds. words/TARGET has what the target's inputs are made of, where that helps.
set -uo pipefail
. "$(dirname "$0")/../../tools/lib.sh"
cd "$PROJECT" || exit 1

targets=(keyText numbers runRequest icons errorReport settings titles fileDialogs)
kept=tests/fuzz/effort.tsv
mostBytes=512
mostKilobytes=1900

if [ "${1:-}" = --effort ]; then
    awk -F'\t' '{ inputs[$2] += $3 } END { for (target in inputs) printf "%-12s %12d\n", target, inputs[target] }' "$kept" | sort
    exit
fi
trial=
[ "${1:-}" != --trial ] || { trial=1; shift; }
seconds=${1:?how many seconds?}
[ -z "${2:-}" ] || targets=("$2")
tools/build.sh fuzz || exit 1

# fuzzer TARGET ARGUMENT...
fuzzer() {
    local target=$1 words=tests/fuzz/words/$1
    shift
    [ ! -f "$words" ] || set -- -dict="$words" "$@"
    FUZZ_TARGET=$target build/fuzz/bin/kestrel-fuzz -max_len=$mostBytes "$@"
}

# The inputs of each process stand in a line of its own; those of a fork are told together.
inputsOf() { awk '/^#[0-9]+/ { last = $1 } /^Done/ { last = "#" $2 } END { sub("#", "", last); sub(":", "", last); print last + 0 }' "$1"; }

play() {
    local target=$1 time=$2 corpus=tests/fuzz/corpus/$1 found=build/fuzz/found/$1 log inputs code
    log=$(logFile "fuzz-$target")
    rm -rf "$found" "$found.least"
    mkdir -p "$corpus" "$found" "$found.least"
    fuzzer "$target" -fork="$(nproc)" -max_total_time="$time" -timeout=20 -rss_limit_mb=4096 \
        -artifact_prefix="build/fuzz/$target-" "$found" "$corpus" >"$log" 2>&1 &
    local player=$! next=$((SECONDS + 60))
    while kill -0 $player 2>/dev/null; do
        sleep 1
        ((SECONDS < next)) || { say "$target: $(grep '^#[0-9]*: cov' "$log" | tail -1)"; next=$((SECONDS + 60)); }
    done
    wait $player
    code=$?
    inputs=$(inputsOf "$log")
    say "$target: $inputs inputs in $time s, exit code $code"
    [ $code = 0 ] || { grep -m1 -A12 -e WRONG -e ERROR "$log"; say "$target has stopped: build/fuzz/$target-*, log in $log"; }
    [ -z "$trial" ] || return $code
    fuzzer "$target" -merge=1 "$found.least" "$corpus" "$found" >>"$log" 2>&1 && rm -rf "$corpus" && mv "$found.least" "$corpus"
    printf '%s\t%s\t%d\t%d\n' "$(date +%F)" "$target" "$inputs" "$time" >>"$kept"
    return $code
}

failed=0
for target in "${targets[@]}"; do
    play "$target" $(((seconds + ${#targets[@]} - 1) / ${#targets[@]})) || failed=1
done
[ "$(du -sk --apparent-size tests/fuzz/corpus | cut -f1)" -lt $mostKilobytes ] || fail "the corpora are beyond $mostKilobytes KB"
exit $failed
