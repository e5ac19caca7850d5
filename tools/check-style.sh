#!/usr/bin/env bash
# Checks the style of the tree: clang-format over src, tests and bench, then clang-tidy over the sources under src
# that a configured native build folder compiles (default build/native). Changes nothing.
#
# clang-tidy looks at what has changed since it last found nothing in that build folder; a changed header counts
# for every source. Remove its stamp, <build folder>/tidy.stamp, to look at everything again.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

cd "$PROJECT"
build=$(realpath -m "${1:-build/native}")
stamp=$build/tidy.stamp
badFormat=
sources=$(find src tests bench -name '*.h' -o -name '*.cpp' | sort)

say "clang-format over $(wc -l <<<"$sources") files"
xargs clang-format --dry-run -Werror <<<"$sources" >"$(logFile format)" 2>&1 || {
    sed -n 's/^\([^ ]*\.\(h\|cpp\)\):.* error: .*/\1/p' "$(logFile format)" | sort | uniq -c >&2
    badFormat="run clang-format -i over the files above (places in each), see $(logFile format)"
}

[ -f "$build/compile_commands.json" ] || fail "$build is not configured: cmake --preset native"
compiled=$(sed -n "s|^ *\"file\": \"$PROJECT/\(src/.*\.cpp\)\".*|\1|p" "$build/compile_commands.json" | sort -u)
if [ -f "$stamp" ]; then
    changed=$(find src .clang-tidy tools/check-style.sh -newer "$stamp" -type f)
    if ! grep -qv '\.cpp$' <<<"$changed"; then
        compiled=$(comm -12 <(sort <<<"$changed") <(printf '%s\n' "$compiled"))
    elif [ -z "$changed" ]; then
        compiled=
    fi
fi
if [ -z "$compiled" ]; then
    say "clang-tidy: nothing has changed"
else
    say "clang-tidy over $(wc -l <<<"$compiled") files"
    touch "$stamp.new"
    report=$(logFile tidy)
    if ! xargs -P 2 -n 4 clang-tidy -p "$build" --quiet <<<"$compiled" >"$report" 2>&1; then
        grep -v -e 'warnings generated' -e '^Suppressed' -e '^Use -header-filter' "$report" >&2 || true
        fail "clang-tidy found something, report in $report"
    fi
    mv "$stamp.new" "$stamp"
fi
[ -z "$badFormat" ] || fail "$badFormat"
say "style: nothing found"
