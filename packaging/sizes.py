#!/usr/bin/env python3
"""Records the sizes of the program and of its packages in docs/performance.md, whose last table they are."""

import sys

from packages import BITS, ROOT, names

REPORT = ROOT / "docs" / "performance.md"
HEAD = "| File | Size |\n| --- | --- |\n"


def table():
    """The table, with what has been built so far."""
    files = [f"dist/{bits}/{name}" for bits in BITS for name in ("kestrel.exe", "EAGLE_Kestrel_Bench.chm", "samples/icons.dll")]
    files += [f"dist/packages/{name}" for name in names()]
    rows = [f"| `{file}` | {(ROOT / file).stat().st_size / 1024:.0f} KB |\n" for file in files if (ROOT / file).exists()]
    return HEAD + "".join(rows)


def main():
    text, head, _ = REPORT.read_text().partition(HEAD)
    if not head:
        sys.exit(f"{REPORT.name} has no table of sizes")
    REPORT.write_text(text + table())


if __name__ == "__main__":
    main()
