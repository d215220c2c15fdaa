#!/usr/bin/env python3
"""Runs a linter over many sources at the price of a few.

    lint_joined.py BUILD_FOLDER COMMAND... <SOURCES

A linter spends nearly all of its time on the headers of Qt. So the sources of a folder are joined as
text into one file, which the command sees as BUILD_FOLDER/joined/NAME.cpp; what it says about that is
told as said about the source. Sources that can't be in one file, as both give a name to something
else, get into different ones. Ends with 1 if the command failed for any.
"""

import concurrent.futures
import itertools
import json
import os
import re
import shlex
import subprocess
import sys
import threading

MOST_AT_ONCE = 24
INCLUDE = re.compile(r'#include (?!.*\.moc")')
STARTS = ('main', 'LLVMFuzzerTestOneInput')
PROGRAM = re.compile(r'^(QTEST_\w*MAIN|int main|extern "C" int LLVMFuzzerTestOneInput)\b', re.M)

build = os.path.abspath(sys.argv[1])
command = sys.argv[2:]
printing = threading.Lock()


def flags_of_sources():
    """What each source is compiled with, but for what concerns its output and the compiler's warnings:
    some of those would only be about the joining."""
    with open(build + '/compile_commands.json') as database:
        entries = json.load(database)
    result = {}
    for entry in entries:
        words = shlex.split(entry['command'])[1:]
        del words[words.index('-o'):]
        result.setdefault(os.path.relpath(entry['file']),
                          [word for word in words if not word.startswith('-W') or word == '-Werror'])
    return result


flags = flags_of_sources()


class Joined:
    """Some sources as one file."""

    def __init__(self, sources, name):
        self.sources = sources
        self.folder = f'{build}/joined/{name}'
        self.path = f'{self.folder}/{name}.cpp'
        self.starts = []
        self.flags = list(flags[sources[0]])
        lines = []
        for number, source in enumerate(sources):
            # Defines also end what a linter knows of the includes so far.
            lines += [f'#define {start} {start}{number}' for start in STARTS]
            self.starts.append(len(lines))
            lines += self.lines(source, number) + [f'#undef {start}' for start in STARTS]
            self.add_folders(flags[source])
        os.makedirs(self.folder, exist_ok=True)
        with open(self.path, 'w') as file:
            file.write('\n'.join(lines) + '\n')
        with open(self.folder + '/compile_commands.json', 'w') as database:
            json.dump([{'directory': build, 'file': self.path,
                        'arguments': ['clang++', *self.flags, '-c', self.path]}], database)

    @staticmethod
    def lines(source, number):
        """A program's source declares nothing for others and is put into a namespace of its own, on
        the line after its last include. Types are declared to Qt outside of namespaces."""
        with open(source) as file:
            text = file.read()
        lines = text.split('\n')
        if PROGRAM.search(text) and 'Q_DECLARE_METATYPE' not in text:
            first = max((i for i, line in enumerate(lines) if INCLUDE.match(line)), default=-1) + 1
            lines[first] = f'namespace program{number} {{ {lines[first]}'
            lines[-1] += '}'
        return lines

    def add_folders(self, others):
        """-isystem has its folder in the next word."""
        for i, word in enumerate(others):
            if word.startswith('-I') and word not in self.flags:
                self.flags.append(word)
            elif word == '-isystem' and others[i + 1] not in self.flags:
                self.flags += [word, others[i + 1]]

    def source_at(self, line):
        """The source a line of the joined file is from, and the line there."""
        number = max((i for i, start in enumerate(self.starts) if start < line), default=0)
        return self.sources[number], line - self.starts[number]

    def misfits(self):
        """The sources that keep the file from being compiled."""
        run = subprocess.run(['clang++', *self.flags, '-w', '-fsyntax-only', '-ferror-limit=0', self.path],
                             cwd=build, capture_output=True, text=True)
        if run.returncode == 0:
            return set()
        places = re.findall(re.escape(self.path) + r':(\d+):(?=\d+: (?:fatal )?error:|$)', run.stderr, re.M)
        return {self.source_at(int(line))[0] for line in places} or set(self.sources[1:])

    def lint(self):
        return run_linter(self.folder, self.path, self.with_own_places)

    def with_own_places(self, text):
        return re.sub(re.escape(self.path) + r':(\d+)',
                      lambda place: '{}:{}'.format(*self.source_at(int(place[1]))), text)


def run_linter(folder, path, tidied=str):
    """Whether the linter was content. What it says otherwise is printed."""
    run = subprocess.run([*command, '-p', folder, path], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                         text=True)
    if run.returncode != 0:
        with printing:
            print(tidied(run.stdout), flush=True)
    return run.returncode == 0


def lint_some(sources, name):
    """Lints sources of one folder in as few files as they fit into."""
    fine = True
    for number in itertools.count():
        if not sources:
            return fine
        group = [source for source in sources if source in flags] or sources[:1]
        while len(group) > 1:
            joined = Joined(group, f'{name}{number}')
            misfits = joined.misfits()
            if not misfits:
                break
            group = [source for source in group if source not in misfits] or group[:1]
        fine = (joined.lint() if len(group) > 1 else run_linter(build, group[0])) and fine
        sources = [source for source in sources if source not in group]


def main():
    portions = []
    sources = [os.path.relpath(line) for line in sys.stdin.read().splitlines()]
    by_folder = sorted(sources, key=lambda source: (os.path.dirname(source), source))
    for folder, sources in itertools.groupby(by_folder, os.path.dirname):
        sources = list(sources)
        for start in range(0, len(sources), MOST_AT_ONCE):
            name = f"{folder.replace('/', '_')}_{start}_"
            portions.append((sources[start:start + MOST_AT_ONCE], name))
    with concurrent.futures.ThreadPoolExecutor(int(os.environ.get('LINTERS', os.cpu_count()))) as pool:
        results = list(pool.map(lambda portion: lint_some(*portion), portions))
    sys.exit(0 if all(results) else 1)


main()
