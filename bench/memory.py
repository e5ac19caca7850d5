"""Private memory of the ticking program with three hosted toolbars, beside that of a bare one that makes the same calls."""

import time

import raw
from driver import paths, settings
from driver.stage import Stage
from measuring import BITS, FOLDER, private_kb
from work import PICTURES

MINUTES = 10
HEAD = ["| Minute | Kestrel | Bare | Ratio |", "| --- | --- | --- | --- |"]


def ticking_memory(minutes=MINUTES):
    """The rows of the report, one a minute."""
    with Stage(BITS, PICTURES) as stage:
        stage.prefix.put([paths.built(BITS, "tick-bench.exe")], FOLDER)
        eagle = stage.start_eagle()
        editors = stage.three_editors(eagle)
        stage.start_kestrel(settings.start_set())
        stage.witness.run(FOLDER + "\\tick-bench.exe bare-seen")
        for kind, editor in editors.items():
            if not stage.toolbar(editor):
                raise RuntimeError(f"the {kind}'s toolbar is missing")
        yield from HEAD
        for minute in range(minutes + 1):
            own, bare = private_kb(stage.prefix, "kestrel.exe"), private_kb(stage.prefix, "tick-bench.exe")
            raw.note("ticking_memory", minute=minute, own_kb=own, bare_kb=bare)
            yield f"| {minute} | {own} KB | {bare} KB | {own / bare:.2f} |"
            if minute < minutes:
                time.sleep(60)
