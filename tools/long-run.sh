#!/usr/bin/env bash
# Plays what takes too long for test.sh:
#
#   tools/long-run.sh [STEP]...    all steps, or those named
#   tools/long-run.sh --list       what there is, and how far it has come
#
# A step has a number of rounds. It may be stopped at any time (Ctrl+C) and goes on with the round that it had reached.
# Rounds of another commit do not count, but where a number begins with +: those look for what fails once in many, and
# add up over commits in tools/rounds.tsv (date, commit, step, passed, failed), which is committed. build/long-run keeps
# a line for each other round, with its date, and what each printed. The two walks and the fuzzer are also played by hand,
# and add up what they have played in an effort.tsv each: --list tells those sums beside the rounds.
# Nothing gets a second try here: what test.sh would tell as FLAKY is a failure, and counted.
set -uo pipefail
. "$(dirname "$0")/lib.sh"
cd "$PROJECT" || exit 1

# NAME ROUNDS COMMAND: $round is the number of the round, from 1.
steps=(
    'native-random +50 build/native/bin/kestrel-tests -ob=rand -rs=$round'
    'users-check 3 "$PYTHON" tests/windows/whole-check.py'
    'native-walk +100 nativeWalk'
    'win32-walk +20 "$PYTHON" tests/windows/play-walk.py win32 next'
    'win32-killed-saves 1 "$PYTHON" tests/windows/killed-saves.py win32'
    'native-growth 1 KESTREL_GROWTH=50 build/native/bin/kestrel-tests -ts=core/growth'
    'win32-growth 4 growth i686'
    'win64-growth 4 growth x86_64'
    'failing-calls 1 KESTREL_ALL=1 build/native/bin/kestrel-tests -ts="failures/*"'
    'win32-screens 2 KESTREL_DPI=96,120,168,192 "$PYTHON" tests/windows/play-all.py --once win32 resolutions dialogScreens'
    'win64-screens 1 KESTREL_DPI=96,120,168,192 "$PYTHON" tests/windows/play-all.py --once win64 resolutions dialogScreens'
    'win64-scenes 1 "$PYTHON" tests/windows/play-all.py --once win64'
    'win64-pages 1 "$PYTHON" tests/windows/play-all.py --once win64 contract-932 contract-65001'
    'win32-contract +50 tools/test-contract.sh i686'
    'win64-contract +50 tools/test-contract.sh x86_64'
    'win32-scenes +50 "$PYTHON" tests/windows/play-all.py --once win32'
    'gate +3 gate'
    'mutations 1 "$PYTHON" tools/mutate.py 400'
    'fuzzing +10 tests/fuzz/run.sh 3600'
)

# What 260 editors leave, with their 4,680 ticks, 130 setups and 130 dialogs of each kind.
growth() {
    PYTHONPATH=tests/windows timeout -k 10 3600 "$PYTHON" -m driver.display \
        tools/wine-run.sh --env KESTREL_GROWTH=13 "build/$1/bin/contract-tests.exe" -ts=contract/windows/growth
}

# What each change has to pass, in a fresh clone. It gives some a second try, which is none here.
# What it has left, of a round that has failed, stays beside the round's log: all that it printed, the logs of its steps and
# the scenes' pictures.
gate() {
    local clone=$kept/gate left=$kept/gate-$commit-$round code
    rm -rf "$clone" "$left"
    mkdir "$left"
    git clone -q . "$clone" && (cd "$clone" && .ci/run) >"$left/whole.log" 2>&1
    code=$?
    tail -n 1 "$left/whole.log"
    ! grep 'FLAKY:' "$left/whole.log" || code=1
    if ((code == 0)); then rm -rf "$left"; else mv "$clone"/build/{log,scenes} "$left"; fi
    rm -rf "$clone"
    return $code
}

# Ten worlds of 10,000 events, with seeds that have not been played yet. tests/walk/effort.tsv keeps a line for each
# round: date, first seed, worlds, events. A round in which something was wrong counts no events there, so that the next one
# goes on behind its seeds.
nativeWalk() {
    local kept=tests/walk/effort.tsv first events=100000 code=0
    tools/build.sh native-release kestrel-walk || return 1
    first=$(awk '$2 + $3 > behind { behind = $2 + $3 } END { print behind ? behind : 1 }' "$kept")
    build/native-release/bin/kestrel-walk 10 "$first" || { code=1; events=0; }
    printf '%s\t%d\t%d\t%d\n' "$(date +%F)" "$first" 10 $events >>"$kept"
    return $code
}

commit=$(git rev-parse --short=10 HEAD)
kept=build/long-run
addedUp=tools/rounds.tsv
mkdir -p "$kept"

# NAME ROUNDS: the step's rounds so far, a line each with commit, passed and failed.
linesOf() {
    case $2 in
        +*) awk -F'\t' -v step="$1" '$3 == step { print $2, $4, $5 }' "$addedUp" ;;
        *) awk -v commit="$commit" '$1 == commit' "$kept/$1" 2>/dev/null ;;
    esac
}
roundsOf() { linesOf "$@" | wc -l; }
failuresOf() { linesOf "$@" | awk '$3 > 0' | wc -l; }

# NAME ROUNDS PASSED FAILED: one more.
addRound() {
    case $2 in
        +*) printf '%s\t%s\t%s\t%d\t%d\n' "$(date +%F)" "$commit" "$1" "$3" "$4" >>"$addedUp" ;;
        *) printf '%s %d %d %s\n' "$commit" "$3" "$4" "$(date '+%Y-%m-%d %H:%M')" >>"$kept/$1" ;;
    esac
}

# NAME: what the step has added up elsewhere, whoever has played it.
sumOf() {
    case $1 in
        native-walk) awk '{ sum += $4 } END { printf "   in all %d events", sum }' tests/walk/effort.tsv ;;
        win32-walk) awk '{ sum += $4 } END { printf "   in all %d inputs", sum }' tests/windows/walk/effort.tsv ;;
        fuzzing) awk '{ sum += $4 } END { printf "   in all %d seconds (tests/fuzz/run.sh --effort)", sum }' tests/fuzz/effort.tsv ;;
    esac
}

tell() {
    printf '   %-18s %3d of %3d rounds   %d with a failure%s\n' "$1" "$(roundsOf "$1" "$2")" "${2#+}" \
        "$(failuresOf "$1" "$2")" "$(sumOf "$1")"
}

play() {
    local name=$1 rounds=$2 command=$3 round log good bad code begin
    for ((round = $(roundsOf "$name" "$rounds") + 1; round <= ${rounds#+}; ++round)); do
        log=$kept/$name-$commit-$round.log
        begin=$SECONDS
        eval "$command" </dev/null >"$log" 2>&1
        code=$?
        ((code != 130)) || exit 130 # Ctrl+C is no failure
        read -r good bad < <(awk -f tools/test-counts.awk "$log")
        ((code == 0 || bad > 0)) || bad=1
        addRound "$name" "$rounds" "$good" "$bad"
        ((bad == 0)) || failed=1
        say "$name, round $round of ${rounds#+}: $good passed, $bad failed, $((SECONDS - begin)) s"
        ((bad > 0)) || rm -f "$log" # only what is to be read
    done
}

trap 'exit 130' INT
[ -z "$(git status --porcelain -- . ":!$addedUp" ':!*/effort.tsv')" ] || say "the checkout has changes; the rounds count for $commit all the same"
if [ "${1:-}" != --list ]; then
    tools/setup-toolchain.sh && tools/build.sh native && tools/build.sh i686 && tools/build.sh x86_64 &&
        "$PYTHON" packaging/packages.py && tools/setup-wine.sh || exit 1
fi
failed=0
for step in "${steps[@]}"; do
    read -r name rounds command <<<"$step"
    if [ "${1:-}" != --list ] && [[ $# = 0 || " $* " = *" $name "* ]]; then
        play "$name" "$rounds" "$command"
    fi
    tell "$name" "$rounds"
done
((failed == 0))
