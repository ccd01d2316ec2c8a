#!/usr/bin/python3
"""Tells how many small faults the unit-level tests notice.

Places of src/, equally many of each folder, get a fault that the environment variable MUTANT switches on, so that one
build holds them all. It is a build of a copy of the source tree. Of the tests that come to a fault those of its own
folder run first; which assertions notice which faults is written to matrix.json. Needs the build of the preset "dev"
and python3-clang-14."""

import argparse
import collections
import concurrent.futures
import json
import os
import pathlib
import random
import re
import subprocess
import sys
import time

from clang import cindex
from clang.cindex import CursorKind as Kind
from clang.cindex import TypeKind

ROOT = pathlib.Path(__file__).resolve().parent.parent
SWITCH = """#pragma once
#include <atomic>
#include <cstdlib>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
inline int mutantReport()
{
    static const char *path = std::getenv("MUTANTS_REACHED");
    static const int file = path ? ::open(path, O_WRONLY | O_APPEND | O_CREAT, 0666) : -1;
    return file;
}
inline const int mutantReportAtStart = mutantReport(); // a child of the test may have no right to open it
inline bool mutantOn(int number)
{
    static const char *wanted = std::getenv("MUTANT");
    static const int on = wanted ? std::atoi(wanted) : -1;
    static std::atomic<char> reached[100000];
    if (mutantReport() >= 0 && !reached[number].exchange(1)) {
        char line[12];
        const ssize_t written [[maybe_unused]] =
            ::write(mutantReport(), line, size_t(std::snprintf(line, sizeof line, "%d\\n", number)));
    }
    return number == on;
}
"""
SWAPS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
         "+": "-", "-": "+", "*": "/", "/": "*", "%": "*"}
ARITHMETIC = set("+-*/%")
NUMBERS = set(range(TypeKind.BOOL.value, TypeKind.LONGDOUBLE.value + 1))
PER_FOLDER = 2000
SWITCH_FILE = "src/mutants.h"
FUNCTIONS = {Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.LAMBDA_EXPR}
SKIPPED = {Kind.CALL_EXPR, Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR, Kind.UNARY_OPERATOR}
FAILURE = re.compile(r".*/(tests/[^:\s]+):(\d+): Failure")
ERROR = re.compile(r"/(src/[^:\s]+):(\d+):\d+: error")

Mutant = collections.namedtuple("Mutant", "file line start end text what source")


def run(*command, **options):
    return subprocess.run(command, capture_output=True, text=True, errors="replace", **options)


class Places:
    """The places of one file where a fault can be put."""

    def __init__(self, path, arguments):
        self.bytes = path.read_bytes()
        self.relative = str(path.relative_to(ROOT))
        self.found = []
        unit = cindex.Index.create().parse(str(path), args=arguments)
        for child in unit.cursor.get_children():
            if child.location.file and child.location.file.name == str(path):
                self.visit(child, None, None)

    def text(self, cursor):
        return self.bytes[cursor.extent.start.offset : cursor.extent.end.offset].decode()

    def add(self, cursor, what, fault, original=None):
        text = self.text(cursor)
        if text.strip():
            replacement = "(mutantOn(@) ? %s : %s)" % (fault, original or "(%s)" % text)
            start, end = cursor.extent.start, cursor.extent.end
            source = self.bytes.split(b"\n")[start.line - 1].decode().strip()
            self.found.append(Mutant(self.relative, start.line, start.offset, end.offset, replacement, what, source))

    def visit(self, cursor, parent, function):
        kind = cursor.kind
        if kind in FUNCTIONS:
            if kind != Kind.LAMBDA_EXPR and "constexpr" in self.text(cursor).split("{")[0]:
                return
            function = cursor
        elif kind == Kind.VAR_DECL and "constexpr" in self.text(cursor):
            return
        children = list(cursor.get_children())
        if function:
            self.look(cursor, parent, children, function)
        if kind == Kind.CASE_STMT:
            children = children[1:]  # a label is a constant
        for child in children:
            self.visit(child, cursor, function)

    def look(self, cursor, parent, children, function):
        kind = cursor.kind
        if kind in (Kind.BINARY_OPERATOR, Kind.CALL_EXPR) and len(children) >= 2:
            self.operator(cursor, children[0], children[-1])
        if kind == Kind.UNARY_OPERATOR and self.text(cursor).startswith("!"):
            self.add(cursor, "! left out", "bool(%s)" % self.text(children[0]))
        if kind in (Kind.IF_STMT, Kind.CONDITIONAL_OPERATOR) and children and children[0].kind.is_expression():
            condition = self.text(children[0])
            for value in ("true", "false"):
                self.add(children[0], "condition " + value, value, "bool(%s)" % condition)
        if kind == Kind.RETURN_STMT and children:
            self.returned(children[0], function)
        if kind == Kind.INTEGER_LITERAL and self.text(cursor).isdigit():
            self.add(cursor, "number + 1", str(int(self.text(cursor)) + 1))
        if kind == Kind.CXX_BOOL_LITERAL_EXPR:
            self.add(cursor, "bool turned", "!" + self.text(cursor))
        if kind in SKIPPED and self.is_statement(cursor, parent):
            self.add(cursor, "left out", "void()", "void(%s)" % self.text(cursor))

    def operator(self, cursor, left, right):
        between = self.bytes[left.extent.end.offset : right.extent.start.offset].decode().strip()
        whole = (left.extent.start.offset, right.extent.end.offset)
        if between not in SWAPS or whole != (cursor.extent.start.offset, cursor.extent.end.offset):
            return
        if between in ARITHMETIC and cursor.type.get_canonical().kind.value not in NUMBERS:
            return
        other = SWAPS[between]
        self.add(cursor, between + " to " + other, "(%s %s %s)" % (self.text(left), other, self.text(right)))

    def returned(self, value, function):
        kind = value.type.get_canonical().kind
        text = self.text(value)
        references = (TypeKind.LVALUEREFERENCE, TypeKind.RVALUEREFERENCE)
        if function.result_type.kind in references or text in ("true", "false", "{}"):
            return
        if kind == TypeKind.BOOL:
            self.add(value, "result turned", "!bool(%s)" % text)
        elif kind.value in NUMBERS and not text.isdigit():
            self.add(value, "result + 1", "((%s) + 1)" % text)
        elif kind == TypeKind.POINTER and text != "nullptr":
            self.add(value, "result nullptr", "nullptr")
        elif value.type.spelling in ("QString", "const QString"):
            self.add(value, "result empty", "QString()", "QString(%s)" % text)

    def is_statement(self, cursor, parent):
        if not parent or not self.bytes[cursor.extent.end.offset :].lstrip().startswith(b";"):
            return False
        if parent.kind == Kind.COMPOUND_STMT:
            return True
        return parent.kind in (Kind.IF_STMT, Kind.CXX_FOR_RANGE_STMT, Kind.WHILE_STMT) and cursor != next(
            parent.get_children())


def candidates(wanted):
    """A number, a name and the places of each folder; what is not below a wanted one, if there are any, is left out."""
    folders = collections.defaultdict(list)
    for entry in json.loads((ROOT / "build" / "dev" / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"])
        if path.is_relative_to(ROOT / "src") and path.name != "main.cpp":
            folders[str(path.parent.relative_to(ROOT / "src"))].append((path, entry["command"].split()))
    with concurrent.futures.ProcessPoolExecutor(2) as pool:
        for at, (folder, files) in enumerate(sorted(folders.items())):
            if any(pathlib.Path(folder).is_relative_to(name) for name in wanted or [""]):
                yield at, folder, [place for found in pool.map(places, *zip(*sorted(files))) for place in found]


def places(path, words):
    own = [word.replace('\\"', '"') for word in words if word[:2] in ("-I", "-D")]
    system = [word for at, name in enumerate(words) if name == "-isystem" for word in words[at : at + 2]]
    windows = ["-include", str(ROOT / "cmake" / "pch_windows.h")]
    return Places(path, ["-std=c++20", "-fPIC", "-w", *own, *system, *windows]).found


def choose(found, count, chance):
    """At most COUNT places that do not overlap."""
    chosen = []
    for mutant in chance.sample(found, len(found)):
        if len(chosen) == count:
            break
        if all(m.file != mutant.file or m.end <= mutant.start or mutant.end <= m.start for m in chosen):
            chosen.append(mutant)
    return chosen


def read_sources():
    """The files of the repository as they stand, with the switch of the faults."""
    names = [name for name in run("git", "ls-files", cwd=ROOT).stdout.split("\n") if (ROOT / name).is_file()]
    content = {name: (ROOT / name).read_bytes() for name in names}
    content[SWITCH_FILE] = SWITCH.encode()
    return content


def write_tree(tree, sources, mutants):
    """What is as before is left alone for the build's sake."""
    content = dict(sources)
    for number, mutant in sorted(mutants.items(), key=lambda pair: -pair[1].start):
        code, text = content[mutant.file], mutant.text.replace("@", str(number), 1).encode()
        content[mutant.file] = code[: mutant.start] + text + code[mutant.end :]
    files = sorted({mutant.file for mutant in mutants.values()})
    for name in files:
        content[name] = b'#include "mutants.h"\n#line 1\n' + content[name]
    names = " ".join(name.removeprefix("src/") for name in files)
    content["src/CMakeLists.txt"] += f"set_source_files_properties({names} PROPERTIES COMPILE_OPTIONS -w)\n".encode()
    for name, code in content.items():
        target = tree / name
        target.parent.mkdir(parents=True, exist_ok=True)
        if not (target.is_file() and target.read_bytes() == code):
            target.write_bytes(code)
            target.chmod(0o755)
    for path in [*(tree / "src").rglob("*"), *(tree / "tests").rglob("*")]:
        if path.is_file() and str(path.relative_to(tree)) not in content:
            path.unlink()


def build_all(tree, through, sources, mutants):
    """Builds the faults as the preset does, so that a cache has what holds none; those that the compiler refuses are
    left out."""
    while True:
        write_tree(tree, sources, mutants)
        run("cmake", "--preset", "dev", "-DCMAKE_AUTOGEN_ORIGIN_DEPENDS=OFF", cwd=tree, check=True)
        built = run(*through, "cmake", "--build", "--preset", "dev", "--", "-j2", "-k", "0", cwd=tree)
        if built.returncode == 0:
            return
        errors = {(name, int(line)) for name, line in ERROR.findall(built.stdout)}
        files = {name for name, _ in errors}
        refused = [number for number, m in mutants.items() if (m.file, m.line) in errors] or [
            number for number, m in mutants.items() if m.file in files]
        print(f"The compiler refuses {len(refused)} faults", flush=True)
        if not refused:
            sys.exit(built.stdout[-5000:])
        for number in refused:
            del mutants[number]


class Program:
    """A test program: its tests, how long they take, and which places each of them comes to."""

    def __init__(self, path, through):
        self.path, self.name, self.through = path, path.name, through
        self.reached, self.seconds = {}, 0
        listed = run(path, "--gtest_list_tests", cwd=path.parent.parent).stdout.split("\n")
        for line in listed:
            if line.endswith("."):
                suite = line
            elif line.startswith("  "):
                self.measure(suite + line.split()[0])

    def measure(self, test):
        report = self.path.parent / f"{self.name}.reached"
        report.write_text("")
        report.chmod(0o666)  # also for a test that goes on as another user
        began = time.monotonic()
        if self.run([test], {"MUTANTS_REACHED": str(report)}, 600).returncode:
            print(f"Left out, for it fails without a fault: {test}", flush=True)  # it reads sources, say
            return
        self.seconds += time.monotonic() - began
        self.reached[test] = set(map(int, report.read_text().split()))

    def run(self, tests, variables, limit, *options):
        command = ["timeout", "--kill-after=5", str(limit), str(self.path), "--gtest_filter=" + ":".join(tests)]
        environment = dict(os.environ, **variables)
        return run(*self.through, *command, *options, env=environment, cwd=self.path.parent.parent)

    def try_fault(self, number, *options):
        """What the tests that come to the place print, or nothing if all pass."""
        tests = [test for test, numbers in self.reached.items() if number in numbers]
        if not tests:
            return ""
        done = self.run(tests, {"MUTANT": str(number)}, int(20 + 5 * self.seconds), *options)
        return (done.stdout or "crash") if done.returncode else ""


class Tests:
    """The unit-level test programs."""

    def __init__(self, build, through, jobs):
        paths = sorted((build / "tests").glob("*_test"))
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            self.programs = list(pool.map(lambda path: Program(path, through), paths))

    def own_and_others(self, mutant):
        folder = mutant.file.split("/")[1]
        own = [program for program in self.programs if program.name.startswith(folder + "_")]
        others = [program for program in self.programs if program not in own]
        return own, sorted(others, key=lambda program: program.seconds)

    def noticed_by(self, number, mutant):
        """The assertions that fail in the tests of the fault's own folder, else in the first program where one fails;
        None if no test comes to the place."""
        own, others = self.own_and_others(mutant)
        failed = set().union(*(failures(program.try_fault(number)) for program in own))
        for program in others:
            failed = failed or failures(program.try_fault(number, "--gtest_fail_fast"))
        reached = any(number in numbers for program in self.programs for numbers in program.reached.values())
        return failed if reached else None


def failures(printed):
    """Each as "test file:line", or as "test crash"."""
    found, test = set(), ""
    for line in printed.split("\n"):
        if line.startswith("[ RUN"):
            test = line.split()[-1]
        elif line.startswith("[  FAILED") or line.startswith("[       OK"):
            test = ""
        elif match := FAILURE.match(line):
            found.add(f"{test} {match[1]}:{match[2]}")
    if printed and test or printed and not found:
        found.add(f"{test} crash")
    return found


def tell(mutants, results):
    table = collections.defaultdict(lambda: [0, 0])
    for number, mutant in sorted(mutants.items(), key=lambda pair: (pair[1].file, pair[1].line)):
        folder = mutant.file[4:].rpartition("/")[0]
        table[folder][0] += 1
        table[folder][1] += bool(results[number])
        if not results[number]:
            print(f"{mutant.file}:{mutant.line}: {mutant.what}{'' if results[number] is not None else ' (never reached)'}"
                  f"    {mutant.source}")
    for folder, (count, noticed) in sorted(table.items()):
        print(f"{folder:16} {noticed:4} of {count:4}  {100 * noticed / count:5.1f} %")
    count, noticed = map(sum, zip(*table.values()))
    print(f"{'all':16} {noticed:4} of {count:4}  {100 * noticed / count:5.1f} %")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--count", type=int, default=22, help="faults in each folder; 0 for all")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--folder", nargs="+", help="these and what is in them, such as quiz or app/rules")
    parser.add_argument("--jobs", type=int, default=2, help="test programs at a time")
    parser.add_argument("--survivors", action="store_true", help="only what the last run's tests did not notice")
    parser.add_argument("--through", default="", help="a command that runs builds and tests, such as nice")
    parser.add_argument("--place", type=pathlib.Path, default=ROOT / "build" / "mutation")
    options = parser.parse_args()
    tree, last = options.place / "tree", options.place / "survivors.json"
    through = options.through.split()

    sources, mutants = read_sources(), {}
    for at, folder, found in candidates(options.folder):
        # Neither its number nor its place depends on what other folders are looked at.
        chosen = choose(found, options.count or len(found), random.Random(f"{options.seed} {folder}"))
        mutants.update(enumerate(chosen, at * PER_FOLDER))
    build_all(tree, through, sources, mutants)
    if options.survivors:
        wanted = {tuple(key) for key in json.loads(last.read_text())}
        mutants = {number: m for number, m in mutants.items() if (m.file, m.what, m.source) in wanted}

    tests = Tests(tree / "build" / "dev", through, options.jobs)
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        results = dict(zip(mutants, pool.map(tests.noticed_by, mutants, mutants.values())))
    tell(mutants, results)
    matrix = {f"{number} {m.file}:{m.line}: {m.what}    {m.source}": sorted(results[number] or [])
              for number, m in mutants.items()}
    (options.place / "matrix.json").write_text(json.dumps(matrix, indent=0))
    survivors = [(m.file, m.what, m.source) for number, m in mutants.items() if not results[number]]
    last.write_text(json.dumps(survivors))


if __name__ == "__main__":
    main()
