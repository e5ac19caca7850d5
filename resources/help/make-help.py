#!/usr/bin/env python3
"""Makes the help from its source: the compiled help file, or the pages of docs/help.

    make-help.py chm TARGET [FOLDER]    FOLDER is a working folder that is emptied; default: beside the target
    make-help.py docs
"""

import shutil
import sys
from pathlib import Path

import helpFile
import toMarkdown
from book import DOCS


def main(arguments):
    if arguments[:1] == ["chm"] and len(arguments) in (2, 3):
        target = Path(arguments[1]).resolve()
        folder = Path(arguments[2]) if len(arguments) == 3 else target.with_suffix(".source")
        target.parent.mkdir(parents=True, exist_ok=True)
        helpFile.make(folder.resolve(), target)
        print(f"{target}: {target.stat().st_size} bytes")
        return 0
    if arguments == ["docs"]:
        shutil.rmtree(DOCS, ignore_errors=True)
        for name, text in toMarkdown.documents().items():
            (DOCS / name).parent.mkdir(parents=True, exist_ok=True)
            (DOCS / name).write_text(text, encoding="utf-8")
        return 0
    sys.exit(__doc__)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
