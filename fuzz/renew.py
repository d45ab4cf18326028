#!/usr/bin/env python3
"""Chooses the few inputs that stand for all that a fuzz target was ever given.

    fuzz/renew.py BUILD_DIR TARGET...

Of the kept inputs and those in BUILD_DIR/fuzz-work, those take the place of fuzz/corpus/TARGET that
reach every place in the code that any of them reaches; while they are few, others join that get
there more or less often. Where libFuzzer's own -merge=1 prefers the smallest inputs, and keeps
hundreds, this prefers those that reach most: a kept corpus is there to be replayed.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent
LONGEST = 1000  # bytes: what stands in a larger one is found again from smaller ones
FEW = 40


def reached(program, path):
    """The places in the code that one input reaches, and those with how often."""
    with tempfile.NamedTemporaryFile("w+", suffix=".control") as control:
        control.write(f"1\n0\n{path}\n")  # one file, none of which is merged already
        control.flush()
        subprocess.run(
            [program, "-merge_inner=1", f"-merge_control_file={control.name}"],
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            check=True,
            env={**os.environ, "ASAN_OPTIONS": "quarantine_size_mb=16"},
        )
        control.seek(0)
        lines = [line.split() for line in control]
    return [{n for line in lines if line[0] == label for n in line[2:]} for label in ("COV", "FT")]


def choose(sets, chosen, most):
    """Adds inputs to the chosen ones, each the one that adds most, until nothing is left to add."""
    missing = set().union(*sets.values()).difference(*(sets[path] for path in chosen))
    while missing and len(chosen) < most:
        best = max(sets, key=lambda path: (len(sets[path] & missing), -path.stat().st_size))
        chosen.append(best)
        missing -= sets[best]


def renew(build, target):
    kept = ROOT / "corpus" / target
    folders = [kept, build / "fuzz-work" / target / "corpus"]
    inputs = [path for folder in folders if folder.is_dir() for path in sorted(folder.iterdir())]
    program = build / "fuzz" / "targets" / f"fuzz_{target}"
    small = [path for path in inputs if path.stat().st_size <= LONGEST]
    answers = {path: reached(program, path) for path in small}
    chosen = []
    choose({path: places for path, (places, _) in answers.items()}, chosen, len(small))
    choose({path: counts for path, (_, counts) in answers.items()}, chosen, FEW)
    contents = {path.name: path.read_bytes() for path in chosen}
    shutil.rmtree(kept, ignore_errors=True)
    kept.mkdir(parents=True)
    for name, content in contents.items():
        (kept / name).write_bytes(content)
    size = sum(map(len, contents.values()))
    print(f"{target}: {len(contents)} of {len(inputs)} inputs kept, {size} bytes")


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    for target in sys.argv[2:]:
        renew(pathlib.Path(sys.argv[1]).resolve(), target)


main()
