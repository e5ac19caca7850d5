"""Private memory of the ticking program with three hosted toolbars, beside that of a bare one that makes the same calls."""
import time
from pathlib import Path

from driver import paths
from driver.stage import Stage

MINUTES = 10


def private_kb(program):
    """Of the process of this machine that has come last to run this Windows program."""
    newest = None
    for process in Path('/proc').glob('[0-9]*'):
        try:
            if (process / 'comm').read_text().strip() == program:
                lines = (process / 'smaps_rollup').read_text().splitlines()
                private = sum(int(line.split()[1]) for line in lines if line.startswith('Private_'))
                if private and (newest is None or int(process.name) > newest[0]):
                    newest = (int(process.name), private)
        except OSError:
            continue
    return newest[1]


def measure_memory(minutes=MINUTES):
    pictures = paths.BUILD / 'bench'
    pictures.mkdir(parents=True, exist_ok=True)
    with Stage('win32', pictures) as stage:
        stage.prefix.put([paths.built('win32', 'win-bench.exe')], 'C:\\bench')
        eagle = stage.start_eagle()
        editors = stage.three_editors(eagle)
        stage.start_kestrel(paths.DEMO_SETTINGS.read_text(encoding='cp1252'))
        stage.witness.run('C:\\bench\\win-bench.exe idle')
        for editor in editors.values():
            if not stage.toolbar(editor):
                raise SystemExit('a toolbar is missing')
        rows = ['Private memory under Wine while ticking with three hosted toolbars, beside a bare program that makes the calls of a',
                'tick as often (at most 1.5 times, and flat over the second half):', '', '| Minute | Kestrel | Bare | Ratio |',
                '| --- | --- | --- | --- |']
        for minute in range(minutes + 1):
            own, bare = private_kb('kestrel.exe'), private_kb('win-bench.exe')
            rows.append(f'| {minute} | {own} KB | {bare} KB | {own / bare:.2f} |')
            print(rows[-1], flush=True)
            if minute < minutes:
                time.sleep(60)
        return rows + ['']
