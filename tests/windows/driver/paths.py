"""Where the things of the project are that the driver uses."""

import sys
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[3]
TOOLS = PROJECT / "tools"
sys.path.insert(0, str(TOOLS))
BUILD = PROJECT / "build"

# The preset that makes the programs of each bitness.
PRESETS = {"win32": "i686", "win64": "x86_64"}


def program_folder(bits):
    """The ready-to-run program folder."""
    return PROJECT / "dist" / bits


def built(bits, name):
    """A program of the stage."""
    return BUILD / PRESETS[bits] / "bin" / name
