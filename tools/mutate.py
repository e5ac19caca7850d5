#!/usr/bin/env python3
"""Changes the logic at random, one place at a time, and tells which changes the native tests do not notice.

    tools/mutate.py [COUNT] [SEED]    so many changes, 400 if not said; stopped (Ctrl+C), it goes on where it was
    tools/mutate.py --tell            what has been found so far, without playing

A change is another operator, another constant or a statement less, in a source under src but src/win32. Only its object
is built, and linked to what the tests are without it; no sanitizers, but a program that looks beyond the end of an array
stops, and so does one that does not come to an end or takes all memory. build/mutate/found.tsv keeps a line for each change
of each commit. A change that makes no difference, or none that a user could notice, is named in tools/mutants.tsv: file,
line, changed line, and why; it does not count. Of the others 97 % are to be noticed.
"""
import json
import os
import pathlib
import random
import re
import resource
import shlex
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parent.parent
BUILD = PROJECT / 'build/mutate'
FOUND = BUILD / 'found.tsv'
ACCEPTED = PROJECT / 'tools/mutants.tsv'
RUNS = [('1252', '*'), ('932', 'runtime/*,store/*'), ('65001', 'runtime/*,store/*')]
SECONDS = 120  # of computing, for a run that takes twenty
BYTES = 1 << 30  # of memory, for a run that takes 50 MB
WANTED = 0.97

OPERATORS = [(r' == ', ' != '), (r' != ', ' == '), (r' < ', ' <= '), (r' <= ', ' < '), (r' > ', ' >= '), (r' >= ', ' > '),
             (r' && ', ' || '), (r' \|\| ', ' && '), (r' \+ ', ' - '), (r' - ', ' + '), (r' \* ', ' / '), (r' / ', ' * '),
             (r' \+= ', ' -= '), (r' -= ', ' += '), (r'\+\+(?=\w)', '--'), (r'--(?=\w)', '++'), (r'\btrue\b', 'false'),
             (r'\bfalse\b', 'true'), (r'(?<=[(\s])!(?=[\w(])', ''), (r' \| ', ' & '), (r' & (?=\w+[;)])', ' | ')]
NUMBER = re.compile(r'(?<![\w.\'"\\])(\d+)(?![\w.\'"xX])')
STATEMENT = re.compile(r'^\s+(?!return|throw|break|continue|case|using|const|constexpr|static|auto|else|if|for|while|do\b|try)'
                       r'[\w.\[\]>*:-]+(\(.*\)|\s*[-+|]?=\s.*|\+\+);$')
TEXT = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'|//.*')


def changes(line):
    """All changes of a line of source, texts and comments left alone."""
    code = TEXT.sub(lambda found: 'T' * len(found.group()), line)
    if code.lstrip().startswith(('#', 'namespace', 'template', 'static_assert', 'using ', 'T')):
        return []
    made = []
    for pattern, other in OPERATORS:
        made += [line[:found.start()] + other + line[found.end():] for found in re.finditer(pattern, code)]
    for found in NUMBER.finditer(code):
        made.append(line[:found.start()] + str(int(found.group()) + 1) + line[found.end():])
    if STATEMENT.match(code) and code.count('(') == code.count(')') and code.count('{') == code.count('}'):
        made.append(re.match(r'\s*', line).group() + ';')
    return made


def allChanges():
    """(file, number of the line, line, changed line), each one once, always in the same order."""
    made = []
    for file in sorted((PROJECT / 'src').rglob('*.cpp')):
        if 'win32' in file.parts:
            continue
        lines = file.read_text().split('\n')
        for number, line in enumerate(lines):
            # A statement that goes on from the line before, or into the next one, is not one to be left out.
            whole = number == 0 or lines[number - 1].rstrip().endswith((';', '{', '}', ':', ')')) or not lines[number - 1].strip()
            for changed in changes(line):
                if whole or changed.strip() != ';':
                    made.append((str(file.relative_to(PROJECT)), number, line, changed))
    return made


class Builder:
    """Builds the tests with one object changed."""

    def __init__(self):
        cmake = ['cmake', '-S', PROJECT, '-B', BUILD, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Debug',
                 '-DCMAKE_CXX_FLAGS_DEBUG=-g0 -O0 -D_GLIBCXX_ASSERTIONS', '-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON']
        subprocess.run(cmake, check=True, stdout=subprocess.DEVNULL)
        subprocess.run(['cmake', '--build', BUILD, '--target', 'kestrel-tests'], check=True)
        commands = subprocess.run(['ninja', '-C', BUILD, '-t', 'commands', 'bin/kestrel-tests'], check=True,
                                  capture_output=True, text=True).stdout.strip().split('\n')
        self.link = next(part for part in commands[-1].split(' && ') if '-o bin/kestrel-tests' in part)
        self.compile = {entry['file']: entry['command'] for entry in json.loads((BUILD / 'compile_commands.json').read_text())}

    def build(self, file, number, changed):
        """False if the change does not compile: then it is none."""
        source = PROJECT / file
        lines = source.read_text().split('\n')
        lines[number] = changed
        mutant = BUILD / 'mutant.cpp'
        mutant.write_text('\n'.join(lines))
        command = shlex.split(self.compile[str(source)])
        command[command.index('-o') + 1] = 'mutant.o'
        command[command.index('-c') + 1] = str(mutant)
        command += ['-w', '-I', str(source.parent)]
        if subprocess.run(command, cwd=BUILD, capture_output=True).returncode != 0:
            return False
        # In front of the library, whose own object of that name is then not asked for.
        link = self.link.replace('-o bin/kestrel-tests', 'mutant.o -o bin/mutant', 1)
        return subprocess.run(link, cwd=BUILD, shell=True, capture_output=True).returncode == 0


def limit():
    """A changed loop may go on for ever, and append."""
    resource.setrlimit(resource.RLIMIT_CPU, (SECONDS, SECONDS))
    resource.setrlimit(resource.RLIMIT_AS, (BYTES, BYTES))


def noticed(file):
    """Whether the tests fail, crash or do not end; those of the same folder are asked first."""
    folder = file.split('/')[1]
    for page, suites in [('1252', f'{folder}/*'), *RUNS]:
        environment = dict(os.environ, KESTREL_CODE_PAGE=page, KESTREL_SEED='1')
        run = subprocess.run(['bin/mutant', '-aa=1', '-m', f'-ts={suites}'], cwd=BUILD, env=environment, preexec_fn=limit,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if run.returncode != 0:
            return True
    return False


def rows(path):
    return [line.split('\t') for line in path.read_text().split('\n') if line and not line.startswith('#')] if path.exists() else []


def tell(commit):
    accepted = {tuple(row[:3]) for row in rows(ACCEPTED)}
    played = [row for row in rows(FOUND) if row[0] == commit and row[2] != 'none']
    survived = [row for row in played if row[2] == 'survived']
    left = [row for row in survived if (row[3], row[5].strip(), row[6].strip()) not in accepted]
    for _, _, _, file, number, line, changed in left:
        print(f'   {file}:{number}: {line.strip()}   ->   {changed.strip()}')
    counted = len(played) - len(survived) + len(left)
    share = 1 - len(left) / counted if counted else 0
    print(f'{len(played)} changes, {len(survived) - len(left)} accepted survivors; of the other {counted}: '
          f'{counted - len(left)} noticed, {100 * share:.1f} %')
    return share >= WANTED


def main(arguments):
    commit = subprocess.run(['git', 'rev-parse', '--short=10', 'HEAD'], cwd=PROJECT, check=True, capture_output=True,
                            text=True).stdout.strip()
    if '--tell' in arguments:
        return 0 if tell(commit) else 1
    count, seed = int(arguments[0]) if arguments else 400, arguments[1] if len(arguments) > 1 else '1'
    builder = Builder()
    order = allChanges()
    random.Random(seed).shuffle(order)
    known = {(row[3], int(row[4]), row[6]): row[2] for row in rows(FOUND) if row[0] == commit}
    done = 0
    for file, number, line, changed in order:
        if done == count:
            break
        outcome = known.get((file, number + 1, changed))
        if outcome is None:
            outcome = 'none' if not builder.build(file, number, changed) else 'noticed' if noticed(file) else 'survived'
            with FOUND.open('a') as found:
                found.write('\t'.join([commit, seed, outcome, file, str(number + 1), line, changed]) + '\n')
            print(f'{done + 1}: {outcome}: {file}:{number + 1}: {changed.strip()}', flush=True)
        done += outcome != 'none'
    return 0 if tell(commit) else 1


if __name__ == '__main__':
    try:
        sys.exit(main(sys.argv[1:]))
    except KeyboardInterrupt:
        sys.exit(130)
