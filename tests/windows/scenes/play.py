"""What every scene begins and ends with: the way to the driver, a stage, counted checks.

A scene is a file with a routine that gets a stage and checks. It is started alone by

    python3 tests/windows/scenes/mainJob.py win32|win64

prints a line for each check and at the end "N passed, N failed", and leaves pictures in build/scenes.
"""

import sys
import traceback
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))

from driver import paths  # noqa: E402, the way to it stands above
from driver.checks import Checks  # noqa: E402
from driver.stage import Stage  # noqa: E402


def play(file, story, **stage_options):
    """Ends the program; the exit code tells whether all went well. The options go to the stage."""
    play_on_each(file, {"end": (story, stage_options)})


def play_on_each(file, stories):
    """The same for several stories, each on a stage of its own: name of the picture of its end, and story and options."""
    if len(sys.argv) != 2 or sys.argv[1] not in paths.PRESETS:
        sys.exit(f"say which: {' or '.join(paths.PRESETS)}")
    bits, name = sys.argv[1], Path(file).stem
    pictures = paths.BUILD / "scenes" / bits / name
    checks = Checks()
    print(f"-- {name}, {bits}", flush=True)
    try:
        for name, (story, stage_options) in stories.items():
            with Stage(bits, pictures, **stage_options) as stage:
                try:
                    story(stage, checks)
                finally:
                    stage.picture(name)
    except Exception as error:  # pylint: disable=broad-except; a scene that breaks off has failed, whatever the reason
        traceback.print_exc()
        checks.that(False, "the scene is played to its end", repr(error))
    print(checks.summary(), flush=True)
    sys.exit(1 if checks.failed else 0)
