#!/usr/bin/env bash
# Checks the style of the tree: the length and the letters of the sources under src, tests and bench, where includes
# point, clang-format, the test files' suites, then clang-tidy over the sources under src. Changes nothing.
#
# check-style.sh [PRESET...]: clang-tidy looks at the logic as the preset native compiles it and at src/win32 as i686 and
# x86_64 do; with names given, at those alone. A preset that is not configured yet gets configured, not built.
# clang-tidy looks at what has changed since it last found nothing in a preset's build folder; a changed header counts
# for every source. Remove its stamp, build/PRESET/tidy.stamp, to look at everything again.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

cd "$PROJECT"
[ $# != 0 ] || set -- native i686 x86_64
badFormat=
badTidy=
sources=$(find src tests bench -name '*.h' -o -name '*.cpp' | sort)

say "length, letters and includes of $(wc -l <<<"$sources") files"
tooLong=$(xargs wc -l <<<"$sources" | awk '$2 != "total" && $1 > ($2 ~ /^src\// ? 400 : 450)')
[ -z "$tooLong" ] || fail "too long, 400 lines under src, 450 elsewhere: $tooLong"
foreign=$(xargs grep -nP '[^\x00-\x7F]' <<<"$sources" || true)
[ -z "$foreign" ] || fail "no ASCII, write escapes: $foreign"
includes=$(tools/check-includes.sh) || fail "includes that the layout does not allow (HACKING.md): $includes"

say "clang-format over $(wc -l <<<"$sources") files"
xargs clang-format --dry-run -Werror <<<"$sources" >"$(logFile format)" 2>&1 || {
    sed -n 's/^\([^ ]*\.\(h\|cpp\)\):.* error: .*/\1/p' "$(logFile format)" | sort | uniq -c >&2
    badFormat="run clang-format -i over the files above (places in each), see $(logFile format)"
}

# A file of tests is one suite that has the file's name, so that -ts='setup/*' picks a folder and a failure says where.
say "the test files' suites"
badSuite=$(grep -rl --include='*.cpp' 'TEST_CASE(' tests | sort | while read -r file; do
    suite=${file#tests/}
    suite=${suite%.cpp}
    awk -v file="$file" -v want="TEST_SUITE_BEGIN(\"${suite%_*}\");" '
        /^TEST_SUITE_BEGIN/ { ++begins; open = 1; bad = bad || $0 != want }
        /^TEST_SUITE_END/ { ++ends; open = 0 }
        /^ *TEST_CASE\(/ && !open { bad = 1 }
        END { if (bad || begins != 1 || ends != 1) print "!! " file ": wants its tests between one " want " and its end" }' "$file"
done)
[ -z "$badSuite" ] || printf '%s\n' "$badSuite" >&2

# The compiler that a build folder's sources are compiled with.
compilerOf() {
    grep -om1 '[^" ]*g++[^ ]*' "$1/compile_commands.json" | head -1
}

# What the cross compiler knows by itself and clang has to be told: its target, and where its headers are. Those that
# come with the compiler (<stddef.h>, the intrinsics) are left out, since clang has its own.
crossOptions() {
    local compiler=$1 own
    own=$(realpath "$("$compiler" -print-file-name=include)")
    printf -- '--extra-arg=--target=%s\n' "$("$compiler" -dumpmachine)"
    "$compiler" -E -x c++ -v - </dev/null 2>&1 | sed -n '/^#include </,/^End of/s/^ //p' | while read -r folder; do
        folder=$(realpath "$folder")
        case $folder in
        "$own" | "$own-fixed") ;;
        */c++*) printf -- '--extra-arg=-isystem%s\n' "$folder" ;;
        *) printf -- '--extra-arg=-idirafter%s\n' "$folder" ;;
        esac
    done
}

# The checks whose answer can depend on the width of types.
ofWidth='bugprone-incorrect-roundings
bugprone-integer-division
bugprone-misplaced-widening-cast
bugprone-narrowing-conversions
bugprone-not-null-terminated-result
bugprone-signed-char-misuse
bugprone-sizeof-container
bugprone-sizeof-expression
bugprone-string-constructor
bugprone-string-integer-assignment
bugprone-suspicious-memory-comparison
bugprone-suspicious-memset-usage
bugprone-swapped-arguments
bugprone-too-small-loop-variable
bugprone-undefined-memory-manipulation
performance-implicit-conversion-in-loop
performance-type-promotion-in-math-fn'

# tidy PRESET: false if clang-tidy has found something.
tidy() {
    local preset=$1 build=build/$1 stamp report where=(src) options=() changed chosen commands
    stamp=$build/tidy.stamp
    report=$(logFile "tidy-$preset")
    [ -f "$build/compile_commands.json" ] || cmake --preset "$preset" >"$report" 2>&1 ||
        fail "configuring $preset failed, see $report"
    if [ "$preset" = native ]; then
        where+=(-path src/win32 -prune -o)
    else
        where+=('(' -path 'src/win32/*' -o -name '*.h' ')')
        mapfile -t options < <(crossOptions "$(compilerOf "$build")")
    fi
    # The second time over the same sources, in which nothing is compiled for one bitness alone: only the checks that
    # look at what differs, the width of types. They take half the time of all.
    [ "$preset" != x86_64 ] || options+=("--checks=-*,$(paste -sd, <<<"$ofWidth")")
    chosen=$(find "${where[@]}" -name '*.cpp' -print | sort)
    if [ -f "$stamp" ]; then
        changed=$(find "${where[@]}" -type f -newer "$stamp" -print)
        if [ -z "$(find .clang-tidy src -name .clang-tidy -newer "$stamp")$(find "$0" -newer "$stamp")" ] &&
            ! grep -q '\.h$' <<<"$changed"; then
            chosen=$(grep '\.cpp$' <<<"$changed" || true)
        fi
    fi
    if [ -z "$chosen" ]; then
        say "clang-tidy, $preset: nothing has changed"
        return
    fi
    say "clang-tidy, $preset: $(wc -l <<<"$chosen") files"
    # Without what GCC has precompiled, which clang cannot read: each source is to include what it needs.
    commands=$build/tidy
    mkdir -p "$commands"
    sed 's/ -Winvalid-pch//; s/ -include [^ ]*cmake_pch\.hxx//' "$build/compile_commands.json" >"$commands/compile_commands.json"
    touch "$stamp.new"
    xargs -P 2 -n 4 clang-tidy -p "$commands" --quiet "${options[@]}" <<<"$chosen" >"$report" 2>&1 || {
        grep -v -e 'warnings generated' -e '^Suppressed' -e '^Use -header-filter' "$report" >&2 || true
        return 1
    }
    mv "$stamp.new" "$stamp"
}

for preset in "$@"; do
    tidy "$preset" || badTidy+=" build/log/tidy-$preset.log"
done
[ -z "$badTidy" ] || fail "clang-tidy found something, reports in$badTidy"
[ -z "$badSuite" ] || fail "test files without a suite of their own, see above"
[ -z "$badFormat" ] || fail "$badFormat"
say "style: nothing found"
