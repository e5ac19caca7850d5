#!/usr/bin/env bash
# Installs what building and testing need on a Debian 12 machine. Quick when all is there.
set -euo pipefail
. "$(dirname "$0")/lib.sh"

build=(g++ cmake ninja-build g++-mingw-w64-i686 g++-mingw-w64-x86-64 doctest-dev librsvg2-bin icoutils fp-utils)
check=(clang libclang-rt-dev clang-format clang-tidy gcovr libchm-bin)
package=(nsis)
sandbox=(debootstrap debian-archive-keyring util-linux)
stage=(python3 xvfb xauth openbox trayer xdotool imagemagick x11-utils x11-apps)

say "toolchain: compilers, checkers, the installer's maker, the sandbox's maker, the test stage"
needPackages "${build[@]}" "${check[@]}" "${package[@]}" "${sandbox[@]}" "${stage[@]}"
