#!/usr/bin/env python3
"""Builds the native tests so that they count, runs them, and fails where a line or a branch of the logic does not run.

    tools/check-coverage.py           all of src but src/win32
    tools/check-coverage.py --play    runs what is built, and leaves the counts
    tools/check-coverage.py --tell    what has been counted

The tests and the simulated desktop are those of the native build, only the logic is compiled anew.

What cannot run in a test stands in tools/uncovered.tsv, each line of source by itself: file, how many of its branches,
the line, and why. One that it names in vain is told of. The tests run in one order and with one seed, so that two runs
count the same; what depends on the code page runs in the three kinds of code pages that there are.
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
            named[file, line] = int(branches)
    return named


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
        if line or branches > named.get((file, text), 0):
            bad += 1
            what = 'never runs' if line else f'{branches} branches never run, {named.get((file, text), 0)} are accepted'
            print(f'   FAIL  {file}:{number}: {what}: {text}')
    for (file, text), branches in sorted(named.items()):
        least = found[file, text][0] if (file, text) in found else 0
        if least < branches:
            print(f'   tools/uncovered.tsv names {branches} branches, {least} are left: {file}: {text}')
    print(f'{len(named)} lines with branches that cannot run are named in tools/uncovered.tsv')
    print(f'== coverage of the logic: {"all" if bad == 0 else "not all"} of it runs')
    return bad > 0


if __name__ == '__main__':
    shutil.which('gcovr') or sys.exit('gcovr is missing: tools/setup-toolchain.sh')
    sys.exit(main())
