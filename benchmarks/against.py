#!/usr/bin/env python3
"""Measures the library against another build of itself, by turns; prints the worst row first.

One program runs on either library, each time in a process of its own. A time is that of the
processor, the best of a few repetitions; the table shows medians of all rounds. The quartiles are
those of the ratios of each round: a ratio that lies far from 1 beside quartiles that lie close
to it is a difference, not noise.
"""

import argparse
import json
import os
import re
import statistics
import subprocess
import sys

LARGE = 1000000


def row_parts(row):
    workload, size, peer = row.split("/")
    return workload, int(size), peer


class Side:
    """The program on one of the two libraries."""

    def __init__(self, program, directory):
        self.program = program
        # Symbols are bound at the start, not when a first call of them is timed.
        self.environment = {**os.environ, "LD_LIBRARY_PATH": directory, "LD_BIND_NOW": "1"}
        loaded = self._run("ldd", program).stdout
        if f"=> {os.path.join(directory, 'libzarn.so')}" not in loaded:
            sys.exit(f"{program} does not load the library of {directory}")

    def _run(self, *command):
        return subprocess.run(
            command, check=True, capture_output=True, text=True, env=self.environment
        )

    def rows(self):
        listed = self._run(self.program, "--benchmark_list_tests").stdout.split()
        names = [name.removesuffix("/manual_time") for name in listed]
        return [name for name in names if row_parts(name)[2].startswith("zarn")]

    def _command(self, row, seconds):
        selected = f"--benchmark_filter=^{row}/manual_time$"
        return [selected, f"--benchmark_min_time={seconds}", "--benchmark_format=json"]

    def nanoseconds(self, row):
        repetitions = 1 if row_parts(row)[1] >= LARGE else 3
        output = self._run(
            self.program,
            "--processor-time",
            *self._command(row, 0.01),
            f"--benchmark_repetitions={repetitions}",
        )
        runs = json.loads(output.stdout)["benchmarks"]
        return min(run["ns"] for run in runs if run["run_type"] == "iteration")

    def instructions(self, row):
        counter = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null"]
        timed = "--toggle-collect=zarn_benchmarks::timed*"
        output = self._run(*counter, timed, self.program, *self._command(row, 0))
        return int(re.search(r"Collected : (\d+)", output.stderr)[1])


def selected_rows(rows, pattern, everything):
    """Without `everything`, a million of something only where there is no smaller size."""

    def is_large(row):
        workload, size, peer = row_parts(row)
        return size >= LARGE and f"{workload}/{LARGE // 10}/{peer}" in rows

    return [row for row in rows if re.search(pattern, row) and (everything or not is_large(row))]


def measure_by_turns(sides, rows, rounds, measure):
    """For each row, the pairs (before, now) of all rounds."""
    pairs = {row: [] for row in rows}
    for number in range(rounds):
        print(f"round {number + 1} of {rounds}", file=sys.stderr)
        for row in rows:
            turns = sides if number % 2 == 0 else sides[::-1]
            found = [measure(side, row) for side in turns]
            pairs[row].append(found if number % 2 == 0 else found[::-1])
    return pairs


def summary(pairs):
    """What the table shows of a row, the ratio first."""
    before, now = (statistics.median(values) for values in zip(*pairs))
    ratios = [after / earlier for earlier, after in pairs]
    low, _, high = statistics.quantiles(ratios * 2, n=4)  # twice, for a single one has none
    return now / before, before, now, low, high


def number(value):
    return f"{value:14,.{3 if value < 10 else 1}f}"


def main():
    parser = argparse.ArgumentParser(prog="./dev bench --against REVISION", description=__doc__)
    parser.add_argument("program", help=argparse.SUPPRESS)
    parser.add_argument("before", help=argparse.SUPPRESS)
    parser.add_argument("now", help=argparse.SUPPRESS)
    parser.add_argument("rows", nargs="?", default="", help="a pattern: only the rows it matches")
    parser.add_argument("--all", action="store_true", help="a million of everything as well")
    parser.add_argument("--rounds", type=int, default=11, help="11 unless given")
    parser.add_argument(
        "--instructions", action="store_true", help="count instructions, once, with valgrind"
    )
    options = parser.parse_intermixed_args()
    sides = [Side(options.program, options.before), Side(options.program, options.now)]
    rows = selected_rows(sides[0].rows(), options.rows, options.all)
    if not rows:
        sys.exit(f"no row matches {options.rows!r}")
    if options.instructions:
        options.rounds, measure, unit = 1, Side.instructions, "instructions of two rounds"
    else:
        measure, unit = Side.nanoseconds, "ns per step"
    pairs = measure_by_turns(sides, rows, options.rounds, measure)
    print(f"{unit:32}{'before':>14}{'now':>14}{'ratio':>8}  quartiles")
    worst_first = sorted(((summary(found), row) for row, found in pairs.items()), reverse=True)
    for (ratio, before, now, low, high), row in worst_first:
        print(f"{row:32}{number(before)}{number(now)}{ratio:8.3f}  {low:.3f} .. {high:.3f}")


if __name__ == "__main__":
    main()
