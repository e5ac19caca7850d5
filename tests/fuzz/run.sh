#!/usr/bin/env bash
# Plays what reads input with ever new input, under clang's fuzzer, on all cores:
#
#   tests/fuzz/run.sh SECONDS [TARGET]    so long altogether, or for one target (targets/targets.h names them)
#   tests/fuzz/run.sh --trial SECONDS     the same under the sanitizers alone, and nothing of it is kept: a step of test.sh
#   tests/fuzz/run.sh --effort            how many inputs each target has had so far, by each build
#
# Nine tenths of the time the fast build plays, which is optimised and has no sanitizers. The rest is the sanitized one's,
# which begins with all that the fast one has found: a hundred times slower, but it sees what does not stop a program.
#
# What has shown something new stays in corpus/TARGET, as little of it as shows the same; the native tests play it
# (corpus_fuzz.cpp). What stops a target is left in build/fuzz and makes the exit code 1. effort.tsv keeps a line for
# each run: date, target, inputs, seconds, build. words/TARGET has what the target's inputs are made of, where that helps.
#
# It may be stopped (Ctrl+C): what the target has had by then counts, and what was found stays in build/fuzz/found, where
# the next run of that target begins.
set -uo pipefail
. "$(dirname "$0")/../../tools/lib.sh"
cd "$PROJECT" || exit 1

targets=(keyText numbers runRequest icons errorReport settings titles fileDialogs)
kept=tests/fuzz/effort.tsv
temporary=build/fuzz/temporary # the fuzzer leaves its files there when it is stopped
mostBytes=512
mostKilobytes=1900

if [ "${1:-}" = --effort ]; then
    awk -F'\t' '{ inputs[$2 " " $5] += $3 }
        END { for (each in inputs) { split(each, of, " "); printf "%-12s %-10s %12d\n", of[1], of[2], inputs[each] } }' "$kept" | sort
    exit
fi
trial=
[ "${1:-}" != --trial ] || { trial=1; shift; }
seconds=${1:?how many seconds?}
[ -z "${2:-}" ] || targets=("$2")
tools/build.sh fuzz || exit 1
[ -n "$trial" ] || tools/build.sh fuzz-fast || exit 1
rm -rf "$temporary"
mkdir -p "$temporary"

# fuzzer BUILD TARGET ARGUMENT...: in the place of the shell that calls it.
fuzzer() {
    local build=$1 target=$2 words=tests/fuzz/words/$2
    shift 2
    [ ! -f "$words" ] || set -- -dict="$words" "$@"
    TMPDIR=$temporary FUZZ_TARGET=$target exec "build/$build/bin/kestrel-fuzz" -max_len=$mostBytes "$@"
}

# Each process counts in lines of its own, and one with children for all of them.
inputsOf() {
    awk '/^#[0-9]+/ { last[FILENAME] = substr($1, 2) + 0 } /^Done/ { last[FILENAME] = $2 + 0 }
        END { for (each in last) sum += last[each]; print sum + 0 }' "$@"
}

# When this is stopped the players are stopped with all that they have started: each has a group of its own.
stopped=
trap 'stopped=1' INT TERM

# startIn LOG COMMAND...: in the background, $! is its group too.
startIn() {
    local log=$1
    shift
    set -m
    "$@" >"$log" 2>&1 &
    set +m
}

# watch TARGET PROCESS... -- LOG...: tells once a minute how far they have come, and their worst exit code.
watch() {
    local target=$1 next=$((SECONDS + 60)) code=0 player
    local -a players=()
    shift
    while [ "$1" != -- ]; do players+=("$1"); shift; done
    shift
    while kill -0 "${players[@]}" 2>/dev/null; do
        sleep 1
        [ -z "$stopped" ] || kill -- "${players[@]/#/-}" 2>/dev/null
        ((SECONDS < next)) || { say "$target: $(inputsOf "$@") inputs"; next=$((SECONDS + 60)); }
    done
    for player in "${players[@]}"; do wait "$player" || code=$?; done
    return $code
}

# playFast TARGET SECONDS FOUND LOG: one process a core, each told by FOUND of what the others find.
playFast() {
    local target=$1 time=$2 found=$3 core
    local -a players=() logs=()
    for ((core = 1; core <= $(nproc); ++core)); do
        logs+=("$4.$core")
        startIn "$4.$core" fuzzer fuzz-fast "$target" -max_total_time="$time" -timeout=20 -rss_limit_mb=4096 \
            -artifact_prefix="build/fuzz/$target-" "$found" "tests/fuzz/corpus/$target"
        players+=($!)
    done
    watch "$target" "${players[@]}" -- "${logs[@]}"
}

# playSanitized TARGET SECONDS FOUND LOG
playSanitized() {
    startIn "$4" fuzzer fuzz "$1" -fork="$(nproc)" -max_total_time="$2" -timeout=20 -rss_limit_mb=4096 \
        -artifact_prefix="build/fuzz/$1-" "$3" "tests/fuzz/corpus/$1"
    watch "$1" $! -- "$4"
}

# playWith BUILD TARGET SECONDS FOUND
playWith() {
    local build=$1 target=$2 time=$3 found=$4 begin=$SECONDS log code inputs
    log=$(logFile "fuzz-$target")
    rm -f "$log" "$log".*
    if [ "$build" = fast ]; then playFast "$target" "$time" "$found" "$log"; else playSanitized "$target" "$time" "$found" "$log"; fi
    code=$?
    [ -z "$stopped" ] || code=130
    inputs=$(inputsOf "$log"*)
    time=$((SECONDS - begin))
    say "$target, $build: $inputs inputs in $time s, exit code $code"
    [ $code = 0 ] || ! grep -h -m1 -A12 -e WRONG -e ERROR "$log"* || say "$target has stopped: build/fuzz/$target-*, log in $log"
    [ -n "$trial" ] || printf '%s\t%s\t%d\t%d\t%s\n' "$(date +%F)" "$target" "$inputs" "$time" "$build" >>"$kept"
    return $code
}

play() {
    local target=$1 time=$2 corpus=tests/fuzz/corpus/$1 found=build/fuzz/found/$1 code=0
    if [ -n "$trial" ]; then
        found=build/fuzz/trial
        rm -rf "$found"
        mkdir -p "$found"
        playWith sanitized "$target" "$time" "$found"
        return
    fi
    rm -rf "$found.least"
    mkdir -p "$corpus" "$found" "$found.least"
    playWith fast "$target" $((time * 9 / 10)) "$found" || code=1
    [ -z "$stopped" ] || return 1
    playWith sanitized "$target" $(((time + 9) / 10)) "$found" || code=1
    [ -z "$stopped" ] || return 1
    # All that was found is played once more here, under the sanitizers too. How often an edge was taken is no reason to
    # keep an input: five times as many would show no other edge, and each run of the native tests plays them.
    (fuzzer fuzz "$target" -merge=1 -use_counters=0 "$found.least" "$corpus" "$found" >"$(logFile "fuzz-$target-merge")" 2>&1) &&
        rm -rf "$corpus" "$found" && mv "$found.least" "$corpus"
    return $code
}

failed=0
for target in "${targets[@]}"; do
    play "$target" $(((seconds + ${#targets[@]} - 1) / ${#targets[@]})) || failed=1
    [ -z "$stopped" ] || exit 130
done
[ "$(du -sk --apparent-size tests/fuzz/corpus | cut -f1)" -lt $mostKilobytes ] || fail "the corpora are beyond $mostKilobytes KB"
exit $failed
