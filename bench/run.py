#!/usr/bin/env python3
"""Plays the measurements and writes docs/performance.md. Usage: bench/run.py [--memory]

Needs the native-release, i686 and x86_64 builds and the Wine sandbox (./test.sh makes all but the first). CPU time is
that of the program and of its Wine server together, everything pinned to one core; a figure is a ratio within one run.
--memory adds the ten minutes of ticking with three hosted toolbars.
"""
import os
import resource
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / 'tests' / 'windows'))
BIN = ROOT / 'build' / 'i686' / 'bin'
ROUNDS = 3


def tool(name, *arguments):
    return subprocess.run([ROOT / 'tools' / name, *arguments], check=True, text=True, capture_output=True).stdout.strip()


class Prefix:
    """A fresh C: drive with the bench program and its icons in C:\\bench."""

    def __init__(self):
        self.name = tool('wine-prefix', 'make')
        folder = Path(tool('wine-prefix', 'folder', self.name)) / 'bench'
        folder.mkdir()
        for file in [BIN / 'win-bench.exe', *(ROOT / 'resources').glob('???.ico')]:
            (folder / file.name).write_bytes(file.read_bytes())

    def command(self, *arguments):
        return ['taskset', '-c', '0', str(ROOT / 'tools' / 'wine-run'), '--prefix', self.name, 'C:\\bench\\win-bench.exe',
                *map(str, arguments)]

    def server_ticks(self):
        mark = f'WINEPREFIX=/runs/{self.name}'.encode()
        for process in Path('/proc').glob('[0-9]*'):
            try:
                if (process / 'comm').read_text().startswith('wineserver') and mark in (process / 'environ').read_bytes():
                    fields = (process / 'stat').read_text().rsplit(')', 1)[1].split()
                    return int(fields[11]) + int(fields[12])
            except OSError:
                continue
        raise SystemExit('the Wine server is not there')

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
    finally:
        server.terminate()
    memory = []
    if '--memory' in sys.argv:
        from bench_memory import measure_memory
        memory = measure_memory()
    write(rows, title_cost(), memory)


def write(rows, titles, memory):
    sizes = '\n'.join(f'| `{path}` | {(ROOT / path).stat().st_size / 1024:.0f} KB |'
                      for path in ('dist/win32/kestrel.exe', 'dist/win64/kestrel.exe'))
    (ROOT / 'docs' / 'performance.md').write_text(f'''# Performance

Made by `bench/run.py` (and `--memory` for the ten minutes of ticking). CPU time under Wine is that of the program and of
its Wine server together, pinned to one core, start-up left out; only the ratio within one run says something.

| Work | Kestrel | Bare calls | Ratio | At most |
| --- | --- | --- | --- | --- |
{chr(10).join(rows)}

The tracker's own logic for one window title, on the simulated desktop (at most 25 ns; no memory is taken from the heap,
which a test watches):

```
{titles}```

{chr(10).join(memory)}
| File (stripped, static) | Size |
| --- | --- |
{sizes}
''')


main()
