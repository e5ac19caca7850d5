#!/usr/bin/env python3
"""Records the sizes of the program and of its packages in docs/performance.md, whose last table they are."""

import re
import sys
import time

from packages import BITS, ROOT, names

REPORT = ROOT / "docs" / "performance.md"
HEAD = "| File | Size |\n| --- | --- |\n"
TAKEN = re.compile(r"Taken on \S+\.\n\n")


def taken(former=""):
    """The table with its date. What has not been built keeps the line that it has in `former`."""
    sizes = dict(re.findall(r"^\| `(dist/.*?)` \| (.*) \|$", former, re.MULTILINE))
    files = [f"dist/{bits}/{name}" for bits in BITS for name in ("kestrel.exe", "EAGLE_Kestrel_Bench.chm", "samples/icons.dll")]
    files += [f"dist/packages/{name}" for name in names()]
    sizes.update((file, f"{(ROOT / file).stat().st_size / 1024:.0f} KB") for file in files if (ROOT / file).exists())
    rows = [f"| `{file}` | {sizes[file]} |\n" for file in files if file in sizes]
    return time.strftime("Taken on %Y-%m-%d.\n\n") + HEAD + "".join(rows)


def main():
    text, head, former = REPORT.read_text(encoding="utf-8").partition(HEAD)
    if not head:
        sys.exit(f"{REPORT.name} has no table of sizes")
    REPORT.write_text(TAKEN.sub("", text) + taken(former), encoding="utf-8")


if __name__ == "__main__":
    main()
