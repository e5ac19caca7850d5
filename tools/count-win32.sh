#!/usr/bin/env bash
# Tells which lines of src/win32 the contract tests and scenes run under Wine, 32 bits:
#
#   tools/count-win32.sh [SCENE]...    builds, plays the contract tests and these scenes (all, where none is named), tells
#   tools/count-win32.sh --tell        what build/counts holds
#
# For a clone of its own: build/i686 and dist/win32 are then of programs that count. Without packages (packaging/packages.py)
# name the scenes: checkKit, installer* and newUser need them.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

cd "$PROJECT"
counts=build/counts
objects=build/i686/src/win32/CMakeFiles
if [ "${1:-}" != --tell ]; then
    cmake --preset i686 -DKESTREL_COUNT=ON
    cmake --build --preset i686
    tools/build.sh x86_64 witness
    rm -rf "$counts"
    tools/test-contract.sh i686
    "$PYTHON" tests/windows/play-all.py --once win32 "$@" || true # its table says what has failed
fi

# Each process has left a folder or two. One that was ended while it wrote has a file that is cut off, and does not count.
merged=$counts.merged
rm -rf "$merged" "$merged.new"
for folder in "$counts"/*; do
    [ -d "$folder$PROJECT/$objects" ] || continue
    if [ ! -d "$merged" ]; then
        cp -r "$folder" "$merged"
    elif cp -r "$merged" "$merged.new" && cp -rn "$folder/." "$merged.new" && # it makes no folders itself
        i686-w64-mingw32-gcov-tool-posix merge -o "$merged.new" "$merged" "$folder" >/dev/null 2>&1; then
        rm -rf "$merged"
        mv "$merged.new" "$merged"
    else
        say "left out: $folder"
        rm -rf "$merged.new"
    fi
done
find "$objects" -name '*.gcda' -delete
cp -r "$merged$PROJECT/$objects/." "$objects"
gcovr -r . --gcov-executable i686-w64-mingw32-gcov-posix --object-directory build/i686 -f src/win32/ \
    --json "$counts.json" --csv "$counts.csv" "$objects"
# Name, lines, lines that run.
awk -F, 'NR > 1 { split($1, part, "/"); where = part[4] == "" ? "." : part[3]; lines[where] += $2; run[where] += $3; all += $2
                  some += $3; if ($3 < 0.8 * $2) print $1 ": " $3 " of " $2 }
     END { for (each in lines) print "src/win32/" each ": " run[each] " of " lines[each]; print "all: " some " of " all }' \
    "$counts.csv"
