#!/usr/bin/env bash
# Sets up what is missing, builds the 32-bit program and shows it beside the stand-in EAGLE. With a display ($DISPLAY) the
# windows are left to the user until EAGLE is closed; without one the scene is played in a virtual display, each step says
# what it saw, and pictures and a result are left in build/demo. Takes no arguments and may be run again.
set -euo pipefail
. "$(dirname "$0")/tools/lib.sh"
cd "$PROJECT"

tools/setup-toolchain.sh
tools/build.sh i686 dist eagle
tools/build.sh x86_64 witness # sees the windows for the scene
tools/setup-wine.sh
exec "$PYTHON" tests/windows/demo/demo.py
