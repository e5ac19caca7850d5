#!/usr/bin/env bash
# Builds the program for both bitnesses and packs it: dist/packages then holds a portable zip and an installer of each.
# Takes no arguments; a clean tree gives the same packages every time.
set -euo pipefail
. "$(dirname "$0")/../tools/lib.sh"
cd "$PROJECT"

tools/setup-toolchain.sh
tools/build.sh i686 dist
tools/build.sh x86_64 dist
say "packages in dist/packages"
"$PYTHON" packaging/packages.py
