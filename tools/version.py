"""The project's version, for the scripts: it stands in CMakeLists.txt and nowhere else."""

import re
from pathlib import Path

PLACEHOLDER = "@PROJECT_VERSION@"  # as CMake writes it in the files that it configures


def version():
    """Major number, minor number and revision with points between."""
    project = Path(__file__).resolve().parents[1] / "CMakeLists.txt"
    return re.search(r"^project\(kestrel VERSION (\d+\.\d+\.\d+)", project.read_text(encoding="utf-8"), re.M)[1]
