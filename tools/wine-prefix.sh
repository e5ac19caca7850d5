#!/usr/bin/env bash
# Fresh Wine prefixes ("C: drives") inside the sandbox, one for a test run, so that no run sees another's.
#
#   tools/wine-prefix.sh make         prints the name of a new prefix, a copy of the warm one
#   tools/wine-prefix.sh drop NAME    ends what still runs in it and removes it
#   tools/wine-prefix.sh folder NAME  prints where its C: drive stands on this machine
set -euo pipefail
. "$(dirname "$0")/lib.sh"

runs=$SANDBOX/runs
verb=${1:-} name=${2:-}
case $name in
    */* | .*) fail "not the name of a prefix: $name" ;;
esac

case $verb in
    make)
        [ -e "$SANDBOX/etc/kestrel-sandbox" ] || fail "there is no Wine sandbox, run tools/setup-wine.sh first"
        mkdir -p "$runs"
        # What a run that was broken off has left: nothing is in a prefix that is two days old.
        find "$runs" -mindepth 1 -maxdepth 1 -mmin +2880 -exec rm -rf --one-file-system {} +
        prefix=$(mktemp -d "$runs/run-XXXXXX")
        # Hard links for the system's own files, 1.4 GB that no program changes, and true copies of the
        # registry, which every program changes.
        cp -al "$SANDBOX/prefix/." "$prefix/"
        for registry in "$prefix"/*.reg; do
            cp -p --remove-destination "$SANDBOX/prefix/$(basename "$registry")" "$registry"
        done
        basename "$prefix"
        ;;
    drop)
        [ -n "$name" ] || fail "which prefix?"
        [ -d "$runs/$name" ] || exit 0
        "$PROJECT/tools/wine-run.sh" --prefix "$name" --server -k || true
        rm -rf --one-file-system "${runs:?}/$name"
        ;;
    folder)
        [ -n "$name" ] || fail "which prefix?"
        printf '%s\n' "$runs/$name/drive_c"
        ;;
    *) fail "say make, drop NAME or folder NAME" ;;
esac
