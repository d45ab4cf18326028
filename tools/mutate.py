#!/usr/bin/env python3
"""Breaks the library in small ways, one at a time, and tells which of them no test notices.

Each mutant is one change of one line of src/: a comparison flipped, a constant moved, a statement
dropped. It is built in a copy of the sources, and the tests run until one fails. What survives is
listed; tools/equivalent_mutants.txt names those that change nothing that can be seen, with the
reason. The same seed gives the same sample.
"""

import argparse
import concurrent.futures
import os
import pathlib
import queue
import random
import re
import shutil
import subprocess
import sys
from dataclasses import dataclass

ROOT = pathlib.Path(__file__).resolve().parent.parent
EQUIVALENT = ROOT / "tools" / "equivalent_mutants.txt"
SECONDS = 120  # of the processor; a mutant that takes more is caught in a loop
PATIENCE = 10  # on a machine that is busy with other things, how many times as long that may take

# Tests that run as one program, the quickest first, and labels of those that run before all others
# or see nothing of src/.
PROGRAMS = ["unit_test", "growth_test", "tooling_test", "typed_test", "vocabulary_test"]
ELSEWHERE = ["scenarios", "docs", "compile"]

# What is looked for, and what takes its place.
OPERATORS = [
    (r" == ", " != "),
    (r" != ", " == "),
    (r" < ", " <= "),
    (r" <= ", " < "),
    (r" > ", " >= "),
    (r" >= ", " > "),
    (r" && ", " || "),
    (r" \|\| ", " && "),
    (r" \+ ", " - "),
    (r" - ", " + "),
    (r"\+\+", "--"),
    (r" \+= ", " -= "),
    (r"\btrue\b", "false"),
    (r"\bfalse\b", "true"),
    (r"(?<=[(\s])!(?=[a-zA-Z(])", ""),
    (r"(?<![\w.\"'x])0(?![\w.\"'x])", "1"),
    (r"(?<![\w.\"'x])1(?![\w.\"'x])", "2"),
    (r"\bstd::min\b", "std::max"),
    (r"\bstd::max\b", "std::min"),
    (r"\bbreak;", "continue;"),
]
STATEMENT = re.compile(r"^\s+(?!return\b|throw\b|using\b|delete\b|friend\b)[\w.:>\[\]-]+(\(.*\)|\s=\s.*|\s\+=\s.*);$")


@dataclass(frozen=True)
class Mutant:
    file: str
    line: int  # from 0
    before: str
    after: str

    def key(self):
        return f"{self.file}: {self.before.strip()} => {self.after.strip()}"

    def __str__(self):
        return f"{self.file}:{self.line + 1}\n    - {self.before.strip()}\n    + {self.after.strip()}"


def code_of(line):
    """The line without its comment; empty for what is no code that runs."""
    if re.match(r"\s*(//|#|static_assert|template|namespace|using|enum|class|struct)", line):
        return ""
    return line.split("  //")[0]


def outside_texts(line, at):
    return line[:at].count('"') % 2 == 0


def mutants_of(path):
    name = str(path.relative_to(ROOT))
    for number, line in enumerate(path.read_text().splitlines()):
        code = code_of(line)
        for pattern, replacement in OPERATORS:
            for found in re.finditer(pattern, code):
                if outside_texts(code, found.start()):
                    changed = code[: found.start()] + replacement + code[found.end() :]
                    yield Mutant(name, number, line, changed + line[len(code) :])
        if STATEMENT.match(code):
            yield Mutant(name, number, line, ";")


class Workshop:
    """A copy of the sources with a build of its own."""

    def __init__(self, place):
        self.place = place
        self.build = place / "build"
        shutil.rmtree(place / "source", ignore_errors=True)
        listed = subprocess.run(
            ["git", "ls-files", "--cached", "--others", "--exclude-standard"],
            cwd=ROOT, check=True, capture_output=True, text=True).stdout.split("\n")
        for file in listed:
            if file and (ROOT / file).is_file():
                target = place / "source" / file
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy2(ROOT / file, target)
        subprocess.run(
            ["cmake", "-S", place / "source", "-B", self.build, "-G", "Ninja",
             "-DCMAKE_BUILD_TYPE=Debug", "-DZARN_BUILD_TESTS=ON", "-DZARN_BUILD_EXAMPLES=ON",
             "-DCMAKE_CXX_FLAGS=-D_GLIBCXX_ASSERTIONS", "-DCMAKE_CXX_FLAGS_DEBUG=",
             "-DCMAKE_UNITY_BUILD=ON", "-DCMAKE_UNITY_BUILD_BATCH_SIZE=4"],
            check=True, stdout=subprocess.DEVNULL)

    def run(self, command):
        """Whether the command succeeds in time; memory is limited as well."""
        try:
            return subprocess.run(
                ["prlimit", "--as=8000000000", f"--cpu={SECONDS}", *command],
                cwd=self.build, timeout=SECONDS * PATIENCE,
                env={**os.environ, "MALLOC_PERTURB_": "85"},  # as the tests have it
                stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def is_built(self, *targets):
        return self.run(["ninja", *targets])

    def first_failure(self):
        """What notices that something is wrong, the quickest first; None for nothing."""
        for program in ["play", *PROGRAMS]:
            if not self.is_built(program):
                return f"build of {program}"
            test = [f"tests/{program}", "--gtest_fail_fast"]
            if not self.run(["ctest", "-L", "scenarios"] if program == "play" else test):
                return program
        if not self.is_built():
            return "build"
        if not self.run(["ctest", "--stop-on-failure", "-LE", "|".join([*ELSEWHERE, *PROGRAMS])]):
            return "ctest"
        return None

    def judge(self, mutant):
        """'uncompiled', 'survived', or what noticed it."""
        file = self.place / "source" / mutant.file
        original = file.read_text()
        lines = original.splitlines()
        lines[mutant.line] = mutant.after
        file.write_text("\n".join(lines) + "\n")
        try:
            if not self.is_built("zarn"):
                return "uncompiled"
            return self.first_failure() or "survived"
        finally:
            file.write_text(original)


def equivalents():
    """The keys of the mutants that cannot be noticed."""
    if not EQUIVALENT.exists():
        return set()
    lines = EQUIVALENT.read_text().splitlines()
    return {line for line in lines if line and not line.startswith(("#", "    "))}


def sample(count, seed, within):
    files = sorted(p for p in (ROOT / "src").rglob("*") if p.suffix in (".h", ".cpp"))
    known = equivalents()
    mutants = [m for f in files if within in str(f) for m in mutants_of(f)]
    mutants = [m for m in mutants if m.key() not in known]
    random.Random(seed).shuffle(mutants)
    return mutants[:count]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("count", nargs="?", type=int, default=200)
    parser.add_argument("seed", nargs="?", type=int, default=1)
    parser.add_argument("--within", default="", help="only files whose path holds this")
    parser.add_argument("--jobs", type=int, default=2)
    given = parser.parse_args()

    mutants = sample(given.count, given.seed, given.within)
    print(f"{len(mutants)} mutants", flush=True)
    workshops = queue.Queue()
    for number in range(given.jobs):
        workshop = Workshop(ROOT / "build" / "mutate" / str(number))
        noticed = workshop.first_failure() if workshop.is_built() else "build"
        if noticed is not None:
            sys.exit(f"mutate: {noticed} fails without any change")
        workshops.put(workshop)

    def judge(mutant):
        workshop = workshops.get()
        try:
            verdict = workshop.judge(mutant)
        finally:
            workshops.put(workshop)
        print(f"{verdict:20} {mutant.key()}", flush=True)
        return verdict

    with concurrent.futures.ThreadPoolExecutor(given.jobs) as pool:
        verdicts = list(pool.map(judge, mutants))

    survivors = [m for m, verdict in zip(mutants, verdicts) if verdict == "survived"]
    compiled = len(verdicts) - verdicts.count("uncompiled")
    print()
    for mutant in survivors:
        print(mutant)
    print(f"\n{compiled - len(survivors)} of {compiled} mutants that compile were noticed "
          f"({100 * (compiled - len(survivors)) / max(compiled, 1):.1f} %).")


if __name__ == "__main__":
    main()
