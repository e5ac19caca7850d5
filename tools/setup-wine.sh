#!/usr/bin/env bash
# Makes the sandbox in which Windows programs run: a small Debian trixie tree with Wine 10 for 32-bit and
# 64-bit programs and a prefix that has been set up once. It stands in the cache folder and is found again
# next time; a half-made one, or one of an older recipe, is made anew.
#
# Why a sandbox: the Wine of Debian 12 does not paint child windows of another process, and its 32-bit
# packages have been out of step with the 64-bit ones.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

recipe=1 # raise it whenever this script makes something different
libraries=(libxrender1 libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxxf86vm1)

stamp=$SANDBOX/etc/kestrel-sandbox

if [ "${1:-}" != --inside ]; then
    if [ "$(cat "$stamp" 2>/dev/null)" = "$recipe" ]; then
        say "Wine sandbox: found in $SANDBOX"
        exit 0
    fi
    needRoot "it makes a system tree and changes its root into it"
    [ -x /usr/sbin/debootstrap ] || fail "debootstrap is missing, run tools/setup-toolchain.sh first"
    unshare --mount true 2>/dev/null ||
        fail "this machine does not let root make a mount namespace (unshare --mount)." \
            "The Wine sandbox needs it; in a container, give it the capability CAP_SYS_ADMIN."
    mkdir -p "$KESTREL_CACHE"
    # Every mount is made in a mount namespace of its own: none outlives the script, however it ends, so
    # that removing a half-made tree can never reach through one into the real system.
    exec flock "$KESTREL_CACHE/wine-trixie.lock" \
        unshare --mount --propagation private "$0" --inside
fi

# Another run may have made it while this one waited for the lock.
[ "$(cat "$stamp" 2>/dev/null)" != "$recipe" ] || exit 0

log=$(logFile setup-wine)
: >"$log"
quietly() { "$@" >>"$log" 2>&1 || fail "'$1 $2 ...' failed, see $log"; }
inTree() {
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=/run DEBIAN_FRONTEND=noninteractive \
        WINEPREFIX=/prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" ${http_proxy:+http_proxy="$http_proxy"} \
        chroot "$SANDBOX" "$@"
}

say "Wine sandbox: making it in $SANDBOX (a minute or two, log in $log)"
rm -rf --one-file-system "$SANDBOX"
say "  a minimal Debian trixie"
quietly debootstrap --variant=minbase trixie "$SANDBOX"
mount -t proc proc "$SANDBOX/proc"
mount --rbind /dev "$SANDBOX/dev"

say "  Wine with both bitnesses"
quietly inTree dpkg --add-architecture i386
quietly inTree apt-get update -q
quietly inTree apt-get install -q -y --no-install-recommends wine wine64 wine32:i386 fonts-wine fonts-liberation \
    "${libraries[@]}" "${libraries[@]/%/:i386}"
quietly inTree apt-get clean

say "  the first start of Wine"
quietly inTree wineboot -i
quietly inTree wineserver -w
[ -e "$SANDBOX/prefix/drive_c/windows/syswow64/user32.dll" ] ||
    fail "the prefix has no 32-bit system folder, see $log"

echo "$recipe" >"$stamp"
say "Wine sandbox: ready, $(inTree wine --version), $(du -shx "$SANDBOX" | cut -f1)"
