#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Plants deliberate faults one at a time in a copy, and reports which tests notice them.

The faults are in faults.toml beside this script. A fault that no test notices is a gap; a test that
notices only faults that other tests notice too may be redundant. docs/checks.md explains the use.
"""
import argparse
import json
import os
import re
import shutil
import subprocess
import sys
import time
import tomllib
import xml.etree.ElementTree as ElementTree
from pathlib import Path

HERE = Path(__file__).resolve().parent
LIBRARIES = {"OrvCameraApi", "OrvCameraGuiApi"}  # for a test without a program of its own
UNNOTICED = "nothing"


class ListError(Exception):
    """The list of faults does not match the sources."""


class Fault:
    def __init__(self, entry):
        self.name = entry["name"]
        self.globs = [entry["file"]] if isinstance(entry["file"], str) else entry["file"]
        self.text = entry["text"]
        self.replacement = entry["replacement"]
        self.tests = re.compile(entry["tests"])

    def place(self, root):
        """The file that contains the text; it must occur exactly once."""
        files = {file for glob in self.globs for file in root.glob(glob)}
        counts = {file: file.read_text().count(self.text) for file in files}
        if sum(counts.values()) != 1:
            raise ListError(f"{self.name}: out of date: its text occurs {sum(counts.values())} "
                            f"times in {' '.join(self.globs)}")
        return next(file for file, count in counts.items() if count)


class Build:
    """A copy of the sources and its build folder."""

    def __init__(self, root, folder, jobs, timeout):
        self.root = root
        self.folder = folder or root / "build" / "dev"
        self.jobs = str(jobs)
        self.timeout = str(timeout)

    def configure(self):
        if (self.folder / "build.ninja").exists():
            return
        # The programs need no new link when a shared library changes.
        options = ["-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"]
        if shutil.which("ccache"):
            options += [f"-DCMAKE_{language}_COMPILER_LAUNCHER=ccache" for language in ("C", "CXX")]
        if shutil.which("ld.lld"):
            options += [f"-DCMAKE_{kind}_LINKER_FLAGS=-fuse-ld=lld -Wl,--strip-debug"
                        for kind in ("EXE", "SHARED")]
        run(["cmake", "--preset", "dev", "-B", str(self.folder), *options], self.root, check=True)

    def tests(self, never):
        """The names of the tests, each with the targets to build for it."""
        listed = run(["ctest", "--test-dir", str(self.folder), "--show-only=json-v1"], self.root,
                     check=True)
        tests = {}
        for test in json.loads(listed.stdout)["tests"]:
            if not never.fullmatch(test["name"]):
                words = [Path(word) for word in test.get("command", [])]
                tests[test["name"]] = {str(word.relative_to(self.folder)) for word in words
                                       if self.folder in word.parents} or LIBRARIES
        return tests

    def build(self, targets):
        return run(["ninja", "-C", str(self.folder), "-j", self.jobs, *sorted(targets)], self.root)

    def failing(self, names):
        """The tests that fail, twice unless the first failure is a time-out."""
        failed, timedOut = self._failingOnce(names)
        again = self._failingOnce(failed - timedOut)[0] if failed - timedOut else set()
        return again | timedOut

    def _failingOnce(self, names):
        results = self.folder / "planted-faults.xml"
        pattern = "^(" + "|".join(sorted(names)) + ")$"
        run(["ctest", "--test-dir", str(self.folder), "-R", pattern, "--parallel", self.jobs,
             "--timeout", self.timeout, "--output-junit", str(results)], self.root)
        failed, timedOut, seen = set(), set(), set()
        for case in ElementTree.parse(results).iter("testcase"):
            seen.add(case.get("name"))
            if case.get("status") != "run":
                failed.add(case.get("name"))
                if "Timeout" in ElementTree.tostring(case, encoding="unicode"):
                    timedOut.add(case.get("name"))
        if seen != set(names):
            raise ListError(f"ctest has not run {', '.join(sorted(set(names) - seen))}")
        return failed, timedOut


def run(command, folder, check=False):
    # LC_ALL: the messages of ninja and ctest are parsed.
    done = subprocess.run(command, cwd=folder, text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT if not check else None,
                          env={**os.environ, "LC_ALL": "C.UTF-8"})
    if check and done.returncode != 0:
        sys.exit(f"{' '.join(command)} failed:\n{done.stdout}")
    return done


def load(pattern):
    data = tomllib.loads((HERE / "faults.toml").read_text())
    faults = [Fault(entry) for entry in data["fault"]]
    names = [fault.name for fault in faults]
    for name in set(names):
        if names.count(name) > 1:
            raise ListError(f"{name}: there are several faults of that name")
    return ([fault for fault in faults if re.search(pattern, fault.name)],
            re.compile(data["never"]))


def testsOf(fault, tests):
    names = {name for name in tests if fault.tests.fullmatch(name)}
    if not names:
        raise ListError(f"{fault.name}: no test is called {fault.tests.pattern}")
    return names


def plant(fault, build, tests):
    """The names of the tests that notice the fault."""
    names = testsOf(fault, tests)
    file = fault.place(build.root)
    original = file.read_text()
    try:
        file.write_text(original.replace(fault.text, fault.replacement))
        built = build.build(set().union(*(tests[name] for name in names)))
        if built.returncode != 0:
            errors = [line for line in built.stdout.splitlines() if "error" in line]
            raise ListError(f"{fault.name}: does not build: {(errors or ['?'])[0]}")
        if "no work to do" in built.stdout:
            raise ListError(f"{fault.name}: no test that is run for it contains {file.name}")
        return build.failing(names)
    finally:
        file.write_text(original)


def prepare(args):
    if args.here:
        root = HERE.parents[1]
    else:
        root = Path(args.folder).resolve()
        if not root.exists():
            run(["git", "worktree", "add", "--detach", str(root), args.revision], HERE, check=True)
    changed = run(["git", "status", "--porcelain", "--untracked-files=no"], root, check=True).stdout
    if changed:
        sys.exit(f"plant-faults: {root} has changes that are not committed")
    folder = Path(args.build).resolve() if args.build else None
    build = Build(root, folder, args.jobs, args.timeout)
    build.configure()
    return build


def checkWithoutFaults(faults, build, tests):
    """Ends the program if a test fails without a fault: it would fail with every fault."""
    names = set().union(*(testsOf(fault, tests) for fault in faults))
    built = build.build(set().union(*(tests[name] for name in names)))
    if built.returncode != 0:
        sys.exit(f"plant-faults: the copy does not build:\n{built.stdout[-3000:]}")
    failing = build.failing(names)
    if failing:
        sys.exit(f"plant-faults: these fail without a fault: {', '.join(sorted(failing))}")
    return names


def report(args, line):
    print(line, flush=True)
    if args.output:
        with open(args.output, "a") as file:
            print(line, file=file)


def runFaults(args):
    faults, never = load(args.faults)
    build = prepare(args)
    checkPlaces(faults, build.root)
    tests = {name: targets for name, targets in build.tests(never).items()
             if re.search(args.tests, name)}
    faults = [fault for fault in faults if any(map(fault.tests.fullmatch, tests))]
    if args.output:
        Path(args.output).unlink(missing_ok=True)
    names = checkWithoutFaults(faults, build, tests)
    revision = run(["git", "log", "-1", "--format=%h %s"], build.root, check=True).stdout.strip()
    report(args, f"Faults planted in {revision}; {len(names)} test programs.\n")
    report(args, "| Fault | Place | Noticed by | Not by | Seconds |\n|---|---|---|---|---|")
    errors, unnoticed = [], []
    for fault in faults:
        started = time.monotonic()
        place = fault.place(build.root).relative_to(build.root)
        try:
            noticing = plant(fault, build, tests)
        except ListError as error:
            errors.append(str(error))
            print(f"plant-faults: {error}", file=sys.stderr, flush=True)
            continue
        others = testsOf(fault, tests) - noticing
        if not noticing:
            unnoticed.append(fault.name)
        report(args, f"| {fault.name} | {place} | {', '.join(sorted(noticing)) or UNNOTICED} "
                     f"| {', '.join(sorted(others))} | {time.monotonic() - started:.0f} |")
    report(args, f"\n{len(faults) - len(errors)} faults, {len(unnoticed)} of them not noticed"
                 f"{': ' + ', '.join(unnoticed) if unnoticed else ''}.")
    if errors:
        raise ListError("\n".join(errors))
    return 1 if unnoticed else 0


def tableOf(file):
    rows = {}
    for line in Path(file).read_text().splitlines():
        cells = [cell.strip() for cell in line.split("|")[1:-1]]
        if len(cells) == 5 and cells[0] not in ("Fault", "---"):
            rows[cells[0]] = {name for name in cells[2].split(", ") if name != UNNOTICED}
    return rows


def compare(args):
    before, after = tableOf(args.before), tableOf(args.after)
    lost = []
    print("| Fault | No longer noticed by | Now also by | Still by |\n|---|---|---|---|")
    for name in sorted(before.keys() | after.keys()):
        if name not in before or name not in after:
            print(f"| {name} | only in {args.before if name in before else args.after} | | |")
            continue
        old, new = before[name], after[name]
        if old != new:
            print(f"| {name} | {', '.join(sorted(old - new))} | {', '.join(sorted(new - old))} "
                  f"| {', '.join(sorted(old & new))} |")
        if old and not new:
            lost.append(name)
    print(f"\nNo longer noticed at all: {', '.join(lost) or 'none'}.")
    return 1 if lost else 0


def checkPlaces(faults, root):
    errors = []
    for fault in faults:
        try:
            fault.place(root)
        except ListError as error:
            errors.append(str(error))
    if errors:
        raise ListError("\n".join(errors))


def checkList(args):
    faults, _ = load(args.faults)
    checkPlaces(faults, HERE.parents[1])
    print(f"{len(faults)} faults fit the sources")
    return 0


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    commands = parser.add_subparsers(dest="command", required=True)

    running = commands.add_parser("run", help="plant faults and print a table")
    where = running.add_mutually_exclusive_group(required=True)
    where.add_argument("folder", nargs="?", help="a git worktree to plant them in; made if missing")
    where.add_argument("--here", action="store_true", help="in the worktree of this script")
    running.add_argument("--revision", default="HEAD", help="what a new worktree shows (HEAD)")
    running.add_argument("--build", help="its build folder (build/dev in it)")
    running.add_argument("--faults", default="", metavar="REGEX", help="only faults of such names")
    running.add_argument("--tests", default="", metavar="REGEX", help="only tests of such names")
    running.add_argument("--jobs", type=int, default=2, help="of ninja and ctest (2)")
    running.add_argument("--timeout", type=int, default=60, help="seconds for each test (60)")
    running.add_argument("--output", help="a file for the table, too")
    running.set_defaults(function=runFaults)

    comparing = commands.add_parser("compare", help="compare the tables of two runs")
    comparing.add_argument("before")
    comparing.add_argument("after")
    comparing.set_defaults(function=compare)

    checking = commands.add_parser("check", help="check that each fault fits the sources here")
    checking.add_argument("--faults", default="", metavar="REGEX", help="only faults of such names")
    checking.set_defaults(function=checkList)
    return parser.parse_args()


def main():
    args = arguments()
    try:
        return args.function(args)
    except ListError as error:
        for line in str(error).splitlines():
            print(f"plant-faults: {line}", file=sys.stderr)
        return 2


if __name__ == "__main__":
    sys.exit(main())
