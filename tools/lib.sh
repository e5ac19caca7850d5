# Shared by the shell scripts of the project: where things are, how they report, how packages are installed.
# Sourced by bash, never run.

PROJECT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
KESTREL_CACHE=${KESTREL_CACHE:-${HOME:-/root}/.cache/kestrel}
SANDBOX=$KESTREL_CACHE/wine-trixie
PYTHON=/usr/bin/python3 # the system's own, whatever else stands in PATH

say() { printf '== %s\n' "$*"; }

fail() {
    printf '!! %s\n' "$*" >&2
    exit 1
}

needRoot() {
    [ "$(id -u)" = 0 ] || fail "$(basename "$0") must run as root: $*"
}

# Installs those of the named Debian packages that are missing. The package lists are fetched only then.
needPackages() {
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    if [ ${#missing[@]} = 0 ]; then
        say "all $# packages are installed"
        return
    fi
    needRoot "it has to install ${missing[*]}"
    say "installing ${#missing[@]} of $# packages: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -q >"$(logFile apt)" 2>&1 || fail "apt-get update failed, see $(logFile apt)"
    apt-get install -q -y --no-install-recommends "${missing[@]}" >>"$(logFile apt)" 2>&1 ||
        fail "apt-get install failed, see $(logFile apt)"
}

# The path of a log that a script writes under build/log.
logFile() {
    mkdir -p "$PROJECT/build/log"
    printf '%s/build/log/%s.log' "$PROJECT" "$1"
}
