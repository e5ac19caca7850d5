#!/usr/bin/env python3
"""Plays the measurements and writes docs/performance.md. Usage: bench/run.py [--memory]

Needs the native-release, i686 and x86_64 builds and the Wine sandbox (./test.sh makes all but the first). CPU time is
that of the program and of its Wine server together, everything pinned to one core; a figure is a ratio within one run.
--memory adds the ten minutes of ticking with three hosted toolbars; without it that table stays as it is.
"""
import os
import resource
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path[:0] = [str(ROOT / 'tests' / 'windows'), str(ROOT / 'packaging')]
import sizes  # noqa: E402, the way to it stands above

BIN = ROOT / 'build' / 'i686' / 'bin'
ROUNDS = 3
RESULT = ROOT / 'docs' / 'performance.md'


def tool(name, *arguments):
    return subprocess.run([ROOT / 'tools' / name, *arguments], check=True, text=True, capture_output=True).stdout.strip()


class Prefix:
    """A fresh C: drive with a bench program and its icons in C:\\bench."""

    def __init__(self, program='win-bench'):
        self.program = program
        self.name = tool('wine-prefix', 'make')
        folder = Path(tool('wine-prefix', 'folder', self.name)) / 'bench'
        folder.mkdir()
        for file in [BIN / f'{program}.exe', *(ROOT / 'resources').glob('???.ico')]:
            (folder / file.name).write_bytes(file.read_bytes())

    def command(self, *arguments):
        return ['taskset', '-c', '0', str(ROOT / 'tools' / 'wine-run'), '--prefix', self.name, f'C:\\bench\\{self.program}.exe',
                *map(str, arguments)]

    def has_server(self):
        return self.find_server() is not None

    def server_ticks(self):
        ticks = self.find_server()
        if ticks is None:
            raise SystemExit('the Wine server is not there')
        return ticks

    def find_server(self):
        """Ticks of CPU that the prefix's Wine server has taken; None if there is none."""
        mark = f'WINEPREFIX=/runs/{self.name}'.encode()
        for process in Path('/proc').glob('[0-9]*'):
            try:
                if (process / 'comm').read_text().startswith('wineserver') and mark in (process / 'environ').read_bytes():
                    fields = (process / 'stat').read_text().rsplit(')', 1)[1].split()
                    return int(fields[11]) + int(fields[12])
            except OSError:
                continue
        return None

    def cpu(self, *arguments):
        """Seconds of CPU that a run of the bench program takes, with the server's part."""
        server = self.server_ticks()
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        subprocess.run(self.command(*arguments), check=True, capture_output=True)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        own = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        return own + (self.server_ticks() - server) / os.sysconf('SC_CLK_TCK')

    def each(self, work, few, many):
        """Milliseconds for one round of some work, its start-up left out."""
        return (self.cpu(work, many) - self.cpu(work, few)) / (many - few) * 1000

    def drop(self):
        tool('wine-prefix', 'drop', self.name)


def compare(prefix, work, bare, few, many):
    """Both in turn, so that what else the machine does meets both alike."""
    pairs = [(prefix.each(work, few, many), prefix.each(bare, few, many)) for _ in range(ROUNDS)]
    own, least = (sum(values) / ROUNDS for values in zip(*pairs))
    return own, least, own / least


def display():
    number = next(n for n in range(90, 200) if not Path(f'/tmp/.X11-unix/X{n}').exists())
    server = subprocess.Popen(['taskset', '-c', '1', 'Xvfb', f':{number}', '-screen', '0', '1280x1024x24'],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    while not Path(f'/tmp/.X11-unix/X{number}').exists():
        time.sleep(0.05)
    os.environ['DISPLAY'] = f':{number}'
    return server


def measure_ticks(rows):
    for windows, many in ((10, 700), (100, 500), (500, 250)):
        prefix = Prefix()
        others = subprocess.Popen(prefix.command('windows', windows), stdout=subprocess.PIPE, text=True)
        others.stdout.readline()
        own, bare, ratio = compare(prefix, 'tick', 'tick-bare', 50, many)
        rows.append(f'| One tick, {windows} further windows | {own:.2f} ms | {bare:.2f} ms | {ratio:.2f} | 1.10 |')
        print(rows[-1], flush=True)
        prefix.drop()
        others.wait()


def measure_load(rows):
    prefix = Prefix()
    keeper = subprocess.Popen(prefix.command('windows', 1), stdout=subprocess.PIPE, text=True)
    keeper.stdout.readline()
    own, bare, ratio = compare(prefix, 'load', 'load-bare', 2, 22)
    rows.append(f'| `loadVarBar`, 100 buttons with icons | {own:.2f} ms | {bare:.2f} ms | {ratio:.2f} | 1.25 |')
    print(rows[-1], flush=True)
    prefix.drop()
    keeper.wait()


def measure_start(rows):
    from bench_start import row, start_cpu, start_memory
    prefix = Prefix('start-bench')
    keeper = subprocess.Popen(prefix.command('tray'))
    while not prefix.has_server():
        time.sleep(0.05)
    rows.append(row('Start to tray icon, without the splash\'s two seconds', *start_cpu(prefix), 'ms', '1.50'))
    print(rows[-1], flush=True)
    own, bare, _ = compare(prefix, 'keys', 'keys-bare', 50, 1050)
    rows.append(row('Key release to the result in the other field', own, bare, 'ms'))
    print(rows[-1], flush=True)
    prefix.drop()
    keeper.wait()
    rows.append(row('Private memory with the tray icon', *start_memory(), 'KB', '1.50'))
    print(rows[-1], flush=True)


def measure_setup(rows):
    """An OK closes the dialog, so each has an opening of its own, which is taken off again."""
    prefix = Prefix()
    keeper = subprocess.Popen(prefix.command('windows', 1), stdout=subprocess.PIPE, text=True)
    keeper.stdout.readline()
    rounds = [[prefix.each(work, 1, many) for work, many in (('setup-open', 11), ('setup-ok', 4), ('setup-ok-bare', 4))]
              for _ in range(ROUNDS)]
    opening, both, bare = (sum(values) / ROUNDS for values in zip(*rounds))
    own = both - opening
    rows.append(f'| Opening the setup, 3 lists of 200 buttons | {opening:.2f} ms | | | |')
    rows.append(f'| OK of the setup, 3 lists of 200 buttons | {own:.0f} ms | {bare:.0f} ms | {own / bare:.2f} | 1.15 |')
    print(*rows[-2:], sep='\n', flush=True)
    prefix.drop()
    keeper.wait()


def title_cost():
    text = subprocess.run([ROOT / 'build' / 'native-release' / 'bin' / 'title-bench'], check=True, text=True,
                          capture_output=True).stdout
    print(text, flush=True)
    return text


def main():
    server = display()
    rows = []
    try:
        measure_ticks(rows)
        measure_load(rows)
        measure_start(rows)
        measure_setup(rows)
    finally:
        server.terminate()
    memory = former_memory()
    if '--memory' in sys.argv:
        from bench_memory import measure_memory
        memory = '\n'.join([*measure_memory(), ''])
    write(rows, title_cost(), memory)


def former_memory():
    """The table as it stands; empty if there is none."""
    begin, end = 'Private memory under Wine while', 'The program is stripped'
    text = RESULT.read_text() if RESULT.exists() else ''
    return text[text.index(begin):text.index(end)] if begin in text else ''


def write(rows, titles, memory):
    RESULT.write_text(f'''# Performance

Made by `bench/run.py` (and `--memory` for the ten minutes of ticking). CPU time under Wine is that of the program and of
its Wine server together, pinned to one core, start-up left out; only the ratio within one run says something.

| Work | Kestrel | Bare calls | Ratio | At most |
| --- | --- | --- | --- | --- |
{chr(10).join(rows)}

The tracker's own logic for one window title, on the simulated desktop (at most 25 ns; no memory is taken from the heap,
which a test watches):

```
{titles}```

{memory}The program is stripped and needs no library of its own; `packaging/sizes.py` writes this table alone.

{sizes.table()}''')


main()
