#!/usr/bin/env python3
"""Measures the library against another build of itself, by turns; prints the worst row first.

One program runs on either library, each time in a process of its own. A time is that of the
processor, the best of a few repetitions. "before" and "now" are the medians of all rounds, "ratio"
and its quartiles those of the ratios within a round: two neighbours in time suffer alike from what
else the machine does. Where 1 lies far outside of the quartiles, it is a difference, not noise.
"""

import argparse
import json
import os
import re
import statistics
import subprocess
import sys


class Side:
    """The program on one of the two libraries."""

    def __init__(self, program, directory):
        self.program = program
        # Symbols are bound at the start, not when a first call of them is timed.
        self.environment = {**os.environ, "LD_LIBRARY_PATH": directory, "LD_BIND_NOW": "1"}
        self.environment["ZARN_PROCESSOR_TIME"] = "1"
        loaded = self._run("ldd", program).stdout
        if f"=> {os.path.join(directory, 'libzarn.so')}" not in loaded:
            sys.exit(f"{program} does not load the library of {directory}")

    def _run(self, *command):
        return subprocess.run(
            command, check=True, capture_output=True, text=True, env=self.environment
        )

    def rows(self):
        listed = self._run(self.program, "--benchmark_list_tests", "--benchmark_filter=/zarn")
        return [name.removesuffix("/manual_time") for name in listed.stdout.split()]

    def _command(self, row, *options):
        return [self.program, f"--benchmark_filter=^{row}/manual_time$", *options]

    def nanoseconds(self, row):
        repetitions = 1 if "/1000000/" in row else 3
        options = ["--benchmark_min_time=0.01", f"--benchmark_repetitions={repetitions}"]
        output = self._run(*self._command(row, "--benchmark_format=json", *options)).stdout
        runs = json.loads(output)["benchmarks"]
        return min(run["ns"] for run in runs if run["run_type"] == "iteration")

    def instructions(self, row):
        counter = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null"]
        counter += ["--toggle-collect=zarn_benchmarks::timed*"]
        output = self._run(*counter, *self._command(row, "--benchmark_min_time=0")).stderr
        return int(re.search(r"Collected : (\d+)", output)[1])


def selected_rows(rows, options):
    """A million of something is left out where there is a smaller size, or with a slow count."""

    def is_left_out(row):
        smaller = row.replace("/1000000/", "/100000/")
        return not options.all and smaller != row and (options.instructions or smaller in rows)

    return [row for row in rows if re.search(options.rows, row) and not is_left_out(row)]


def measure_by_turns(sides, rows, rounds, measure):
    """For each row, the pairs (before, now) of all rounds."""
    pairs = {row: [] for row in rows}
    for number in range(rounds):
        print(f"round {number + 1} of {rounds}", file=sys.stderr)
        order = -1 if number % 2 else 1  # who is first takes turns as well
        for row in rows:
            pairs[row].append([measure(side, row) for side in sides[::order]][::order])
    return pairs


def summary(pairs):
    """What the table shows of a row, the ratio first."""
    before, now = (statistics.median(values) for values in zip(*pairs))
    ratios = [after / earlier for earlier, after in pairs]
    low, ratio, high = statistics.quantiles(ratios * 2, n=4)  # twice: a single one has none
    return ratio, before, now, low, high


def main():
    parser = argparse.ArgumentParser(prog="./dev bench --against REVISION", description=__doc__)
    parser.add_argument("paths", nargs=3, help=argparse.SUPPRESS)
    parser.add_argument("rows", nargs="?", default="", help="a pattern: only the rows it matches")
    parser.add_argument("--all", action="store_true", help="a million of everything as well")
    parser.add_argument("--rounds", type=int, default=11, help="11 unless given")
    parser.add_argument("--instructions", action="store_true", help="count them, with valgrind")
    options = parser.parse_intermixed_args()
    program, *libraries = options.paths
    sides = [Side(program, library) for library in libraries]
    rows = selected_rows(sides[0].rows(), options)
    if not rows:
        sys.exit(f"no row matches {options.rows!r}")
    if options.instructions:
        options.rounds, measure, unit = 1, Side.instructions, "instructions of two rounds"
    else:
        measure, unit = Side.nanoseconds, "ns per step"
    pairs = measure_by_turns(sides, rows, options.rounds, measure)
    print(f"{unit:28}{'before':>18}{'now':>18}{'ratio':>8}  quartiles")
    worst_first = sorted(((summary(found), row) for row, found in pairs.items()), reverse=True)
    for (ratio, before, now, low, high), row in worst_first:
        print(f"{row:28}{before:18,.3f}{now:18,.3f}{ratio:8.3f}  {low:.3f} .. {high:.3f}")


if __name__ == "__main__":
    main()
