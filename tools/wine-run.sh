#!/usr/bin/env bash
# Runs a Windows program inside the sandbox. May run any number of times at once.
#
#   tools/wine-run.sh [--prefix NAME] [--locale NAME] [--env NAME=VALUE]... PROGRAM [ARGUMENT]...
#   tools/wine-run.sh --prefix NAME --server ARGUMENT...   its wineserver: -k ends all, -w waits
#
# PROGRAM is a Windows path (C:\...) or a path of this machine inside the project, which is seen inside as
# /project. A locale is the user's, such as de_DE: Wine takes the language of Windows' own dialogs and the code page from
# it, 932 from ja_JP and 65001 from hi_IN. Without --prefix the program gets a fresh one, which is removed when it has ended.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

prefix='' locale='' server=false variables=()
while [ $# -gt 0 ]; do
    case $1 in
        --prefix) prefix=$2 && shift 2 ;;
        --locale) locale=$2 && shift 2 ;;
        --env) variables+=("$2") && shift 2 ;;
        --server) server=true && shift ;;
        *) break ;;
    esac
done
[ -e "$SANDBOX/etc/kestrel-sandbox" ] || fail "there is no Wine sandbox, run tools/setup-wine.sh first"
needRoot "it changes its root into the sandbox"

if [ -z "$prefix" ]; then
    prefix=$("$PROJECT/tools/wine-prefix.sh" make)
    trap '"$PROJECT/tools/wine-prefix.sh" drop "$prefix"' EXIT
    enter=()
else
    enter=(exec)
fi

# The sandbox knows the locale C only. A copy of it under another name is enough for Wine, which goes by the name.
if [ -n "$locale" ]; then
    named=$SANDBOX/runs/$prefix/locale/$locale.UTF-8
    # In one step, since others may be doing the same.
    if [ ! -d "$named" ]; then
        mkdir -p "$(dirname "$named")"
        cp -r "$SANDBOX/usr/lib/locale/C.utf8" "$named.$$"
        mv -nT "$named.$$" "$named"
    fi
    variables+=("LOCPATH=/runs/$prefix/locale" "LC_ALL=$locale.UTF-8")
fi

if $server; then
    command=(wineserver "$@")
else
    program=$1 && shift
    case $program in
        [A-Za-z]:* | *\\*) ;; # a Windows path
        *)
            path=$(realpath -- "$program")
            [ "${path#"$PROJECT"/}" != "$path" ] || fail "$program is not inside the project"
            program=/project/${path#"$PROJECT"/}
            ;;
    esac
    command=(wine "$program" "$@")
fi

folder=/
case $PWD/ in
    "$PROJECT"/*) folder=/project${PWD#"$PROJECT"} ;;
esac

# Leave to use the display, where the user has it by a file.
authority=${XAUTHORITY:-${HOME:-/root}/.Xauthority}
if [ -n "${DISPLAY:-}" ] && [ -r "$authority" ]; then
    cp "$authority" "$SANDBOX/runs/$prefix/.Xauthority"
    variables+=("XAUTHORITY=/runs/$prefix/.Xauthority")
fi

# The mounts live in a namespace of their own and go with the program.
enterSandbox='
    set -e
    sandbox=$1 project=$2
    shift 2
    mkdir -p "$sandbox/project" "$sandbox/tmp/.X11-unix"
    mount -t proc proc "$sandbox/proc"
    mount --rbind /dev "$sandbox/dev"
    mount --bind "$project" "$sandbox/project"
    [ ! -d /tmp/.X11-unix ] || mount --bind /tmp/.X11-unix "$sandbox/tmp/.X11-unix"
    exec chroot "$sandbox" "$@"'

"${enter[@]}" unshare --mount --propagation private bash -c "$enterSandbox" enter "$SANDBOX" "$PROJECT" \
    /usr/bin/env -i -C "$folder" PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=/run \
    WINEPREFIX="/runs/$prefix" WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES="mscoree,mshtml=" \
    ${DISPLAY:+DISPLAY="$DISPLAY"} "${variables[@]}" "${command[@]}"
