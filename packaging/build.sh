#!/usr/bin/env bash
# Builds the program for both bitnesses and packs it: dist/packages then holds a portable zip and an installer of each,
# and a zip with which a user checks both on a Windows of his own.
# Takes no arguments; a clean tree gives the same packages every time.
set -euo pipefail
. "$(dirname "$0")/../tools/lib.sh"
cd "$PROJECT"

tools/setup-toolchain.sh
tools/build.sh i686 dist contract-tests eagle witness kestrel-check
tools/build.sh x86_64 dist contract-tests eagle witness kestrel-check
say "packages in dist/packages"
"$PYTHON" packaging/packages.py
