#!/usr/bin/env python3
"""Builds the native tests so that they count, runs them, and fails where a line or a branch of the logic does not run.

    tools/check-coverage.py           all of src but src/win32
    tools/check-coverage.py --play    runs what is built, and leaves the counts
    tools/check-coverage.py --tell    what has been counted

The tests and the simulated desktop are those of the native build, only the logic is compiled anew.

What cannot run in a test stands in tools/uncovered.tsv, each line of source by itself: file, how many of its branches,
the line, and why. One that it names in vain is a failure too, but for what the compiler adds for exceptions: of those one
may be taken by chance, since which allocations fail depends on how many there are. The tests run in one order and with
one seed, so that two runs count the same; what depends on the code page runs in the three kinds of code pages that there are.
"""
import collections
import json
import os
import pathlib
import shutil
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parent.parent
BUILD = PROJECT / 'build/native'
COUNTED = BUILD / 'CMakeFiles/kestrel-logic-counted.dir'
ACCEPTED = PROJECT / 'tools/uncovered.tsv'
BY_CHANCE = ('unwinding', 'another exception', 'a second copy')  # reasons of what is taken in one build and not in the next
RUNS = [('1252', '*'), ('932', 'runtime/*,store/*'), ('65001', 'runtime/*,store/*')]


def play():
    for counts in COUNTED.rglob('*.gcda'):
        counts.unlink()
    for page, suites in RUNS:
        print(f'== native tests in code page {page}, suites {suites}', flush=True)
        environment = dict(os.environ, KESTREL_CODE_PAGE=page, KESTREL_SEED='1')
        subprocess.run([BUILD / 'bin/kestrel-tests-counted', f'-ts={suites}'], cwd=PROJECT, env=environment, check=True)


def counted():
    """What gcovr says of each file."""
    found = BUILD / 'coverage.json'
    subprocess.run(['gcovr', '-r', PROJECT, '--object-directory', BUILD, '-f', 'src/', '--exclude-throw-branches',
                    '--exclude-unreachable-branches', '-j', '2', '--print-summary', '--json', found, COUNTED],
                   cwd=PROJECT, check=True)
    return json.loads(found.read_text())['files']


def missing(files):
    """(file, line of source) to [branches that never ran, whether the line itself never ran, its number]."""
    found = collections.defaultdict(lambda: [0, False, 0])
    for file in files:
        source = (PROJECT / file['file']).read_text().split('\n')
        for line in file['lines']:
            if line.get('gcovr/noncode') or line.get('gcovr/excluded'):
                continue
            branches = sum(branch['count'] == 0 and not branch['throw'] for branch in line['branches'])
            if branches or line['count'] == 0:
                number = line['line_number']
                entry = found[file['file'], source[number - 1].strip()]
                entry[0] += branches
                entry[1] |= line['count'] == 0
                entry[2] = number
    return found


def accepted():
    named = {}
    for row in ACCEPTED.read_text().splitlines():
        if row and not row.startswith('#'):
            file, branches, line, reason = row.split('\t')
            assert reason, row
            named[file, line] = int(branches), reason
    return named


def stands(file, text):
    """Whether the file has this line."""
    path = PROJECT / file
    return path.exists() and text in (line.strip() for line in path.read_text().split('\n'))


def main():
    if '--play' in sys.argv[1:]:
        play()
        return 0
    if '--tell' not in sys.argv[1:]:
        subprocess.run([PROJECT / 'tools/build.sh', 'native', 'kestrel-tests-counted'], check=True)
        play()
    found = missing(counted())
    named = accepted()
    bad = 0
    for (file, text), (branches, line, number) in sorted(found.items()):
        expected = named.get((file, text), (0, ''))[0]
        if line or branches > expected:
            bad += 1
            what = 'never runs' if line else f'{branches} branches never run, {expected} are accepted'
            print(f'   FAIL  {file}:{number}: {what}: {text}')
    for (file, text), (branches, reason) in sorted(named.items()):
        left = found[file, text][0] if (file, text) in found else 0
        if left < branches and (not any(each in reason for each in BY_CHANCE) or not stands(file, text)):
            bad += 1
            print(f'   FAIL  tools/uncovered.tsv names {branches} branches, {left} are left: {file}: {text}')
    print(f'{sum(branches for branches, _ in named.values())} branches in {len(named)} lines that cannot run are named in '
          'tools/uncovered.tsv')
    print(f'== coverage of the logic: {"all of it runs" if bad == 0 else f"{bad} lines are not as they should be"}')
    return bad > 0


if __name__ == '__main__':
    shutil.which('gcovr') or sys.exit('gcovr is missing: tools/setup-toolchain.sh')
    sys.exit(main())
