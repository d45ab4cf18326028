#!/usr/bin/env python3
"""Writes the table of medians, ratios and targets, and the plot of the same data.

usage: report.py TABLE PLOT COMPILER MEASUREMENTS...
"""

import datetime
import os
import subprocess
import sys

from measurements import PEERS, Measurements
from plot import write_plot

SIZES = [1000, 100000, 1000000]
VOCABULARIES = [10, 100, 1000, 10000]


class Check:
    """A target: what is compared, as text and as numbers."""

    def __init__(self, target, limit, value, unit):
        self.target = target
        self.limit = limit
        self.value = value
        self.unit = unit


class Row:
    def __init__(self, label, workload, size, unit="ns", scale=1.0, zarn="zarn", check=None):
        self.label = label
        self.workload = workload
        self.size = size
        self.unit = unit
        self.scale = scale
        self.zarn = zarn
        self.check = check or (lambda data, row: None)

    def value(self, data, peer):
        found = data.get(self.workload, self.size, self.zarn if peer == "zarn" else peer, self.unit)
        return None if found is None else found / self.scale


def at_most(limit, target=None):
    return lambda data, row: Check(
        target or f"at most {limit}", limit, row.value(data, "zarn"), ""
    )


def divided(dividend, divisor):
    return None if dividend is None or not divisor else dividend / divisor


def against_peer(peer, factor):
    def check(data, row):
        ratio = divided(row.value(data, "zarn"), row.value(data, peer))
        return Check(f"at most {factor}x {peer}", factor, ratio, "x")

    return check


def against_best(data, row):
    others = [row.value(data, peer) for peer in PEERS]
    best = min((value for value in others if value is not None), default=None)
    return Check("below every peer", 1.0, divided(row.value(data, "zarn"), best), "x the best")


def against_own(workload, size, factor, target):
    def check(data, row):
        own = data.get(workload, size, "zarn", row.unit)
        return Check(target, factor, divided(row.value(data, "zarn"), own and own / row.scale), "x")

    return check


def both(first, second):
    return lambda data, row: [first(data, row), second(data, row)]


def client_rows():
    rows = []
    for header, zarn, seconds in (("zarn.h", "zarn", 0.7), ("typed.h", "zarn-typed", 1.2)):
        label = f"a small client on {header}: "
        check = at_most(seconds)
        rows.append(Row(label + "compile seconds", "client", 1, "compile", zarn=zarn, check=check))
        check = at_most(30000)
        rows.append(Row(label + "stripped bytes", "client", 1, "size", zarn=zarn, check=check))
    return rows


def argument_rows():
    rows = []
    for kind, factor in (("texts", 1.6), ("integers", 1.1)):
        for size in SIZES:
            label = f"{size:,} arguments, {kind}: ns per argument"
            rows.append(Row(label, kind, size, check=against_peer("getopt_long", factor)))
    for kind, allocations, heap in (("texts", 2, 110), ("integers", 1, 90)):
        label = f"1,000,000 {kind}: allocations per argument"
        # What is taken once, not for each argument, still shows as some millionths.
        check = at_most(allocations + 0.005, f"at most {allocations}")
        rows.append(Row(label, kind, 1000000, "allocations", check=check))
        label = f"1,000,000 {kind}: heap bytes per argument, kept by the parse"
        rows.append(Row(label, kind, 1000000, "bytes", check=at_most(heap)))
        label = f"1,000,000 {kind}: heap bytes per argument, at the peak of the parse"
        rows.append(Row(label, kind, 1000000, "peak", check=at_most(heap)))
    return rows


def vocabulary_rows():
    rows = []
    for size in VOCABULARIES:
        label = f"declaration of {size:,} options: ns per option"
        rows.append(Row(label, "declare", size, check=at_most(200)))
    for size in VOCABULARIES:
        check = against_best if size >= 100 else None
        if size == 10000:
            own = against_own("names-exact", 10, 4, "at most 4x zarn with 10 options")
            check = both(against_best, own)
        label = f"exact names of {size:,} options: ns per argument"
        rows.append(Row(label, "names-exact", size, check=check))
    for size in VOCABULARIES:
        own = against_own("names-exact", size, 1.5, "at most 1.5x exact")
        check = both(against_best, own) if size >= 100 else own
        label = f"names without their last byte, {size:,} options: ns per argument"
        rows.append(Row(label, "names-cut", size, check=check))
    for size in VOCABULARIES:
        check = against_own("again-exact", size, 1.5, "at most 1.5x exact")
        label = f"second parse, exact names of {size:,} options: ns per argument"
        rows.append(Row(label, "again-exact", size))
        label = f"second parse, without their last byte, {size:,} options: ns per argument"
        rows.append(Row(label, "again-cut", size, check=check))
    for size in VOCABULARIES:
        label = f"exact booleans of {size:,} options: ns per argument"
        rows.append(Row(label, "booleans-exact", size))
    for size in VOCABULARIES:
        check = against_own("booleans-exact", size, 1.5, "at most 1.5x exact")
        label = f'"no-" forms of {size:,} options: ns per argument'
        rows.append(Row(label, "booleans-no", size, check=check))
    return rows


def positional_rows():
    rows = []
    for name, zarn in (("", "zarn"), (", first one takes the rest", "zarn-rest")):
        for size in SIZES:
            label = f"{size:,} plain arguments{name}: ns per argument"
            check = against_peer("args", 2)
            rows.append(Row(label, "positional", size, zarn=zarn, check=check))
    return rows


def library_rows():
    million = SIZES[-1]
    rows = [Row("1,000,000 arguments as a vector: ns per argument", "source-vector", million)]
    for source, label in (("source-text", "a text"), ("source-file", "an option file")):
        check = against_own("source-vector", million, 1.3, "at most 1.3x the vector")
        label = f"the same as lines of {label}: ns per argument"
        rows.append(Row(label, source, million, check=check))
    for size, before in zip(SIZES, [None] + SIZES):
        linear = against_own("pieces", before, 3, f"linear: at most 3x at {before or 0:,}")
        label = f"one value of {size:,} pieces: ns per piece"
        rows.append(Row(label, "pieces", size, check=linear if before else None))
    for size, before in ((2**14, None), (2**20, 2**14), (2**24, 2**20)):
        linear = against_own("long-value", before, 3, f"linear: at most 3x at {before or 0:,}")
        label = f"one value of {size:,} bytes: ns per byte"
        rows.append(Row(label, "long-value", size, check=linear if before else None))
    for query, limit in (("next", 20), ("get", 60)):
        for size in SIZES:
            label = f"`{query}` with {size:,} texts kept: ns per value"
            # "About" leaves a quarter for the machine.
            check = at_most(limit * 1.25, f"about {limit}")
            rows.append(Row(label, f"query-{query}", size, check=check))
    return rows


def all_rows():
    process = against_peer("Boost", 1.0)
    return [
        Row(
            "start-up cycle, 50 options, 20 arguments: microseconds",
            "start-up",
            20,
            scale=1000,
            check=against_peer("getopt_long", 5),
        ),
        Row("start-up cycle: allocations", "start-up", 20, "allocations", check=at_most(300)),
        *argument_rows(),
        *vocabulary_rows(),
        *positional_rows(),
        Row(
            "help of 1,000 options: microseconds",
            "help",
            1000,
            scale=1000,
            check=against_peer("argp", 1.0),
        ),
        *library_rows(),
        *client_rows(),
        Row("a small client's process: microseconds", "client", 1, "process", check=process),
        Row("library, code and read-only data: bytes", "library", 1, "text", check=at_most(150000)),
        Row("library, code alone: bytes", "library", 1, "code"),
    ]


def number(value):
    if value is None:
        return "-"
    if value >= 100:
        return f"{value:,.0f}"
    return f"{value:.3g}" if value >= 0.01 else f"{value:.2f}"


def verdict(check):
    if check.value is None:
        return "-", check.target, "-"
    measured = f"{number(check.value)}{check.unit}"
    return measured, check.target, "yes" if check.value <= check.limit else "**no**"


def table(data):
    columns = ["zarn", "floor", *PEERS]
    header = ["workload", *columns, "measured", "target", "met"]
    lines = [header, ["---", *["--:"] * len(columns), "--:", "---", "---"]]
    for row in all_rows():
        values = [row.value(data, column) for column in columns]
        if all(value is None for value in values):
            continue
        checks = row.check(data, row)
        checks = checks if isinstance(checks, list) else [checks] if checks else []
        cells = ["<br>".join(part) for part in zip(*map(verdict, checks))] or ["", "", ""]
        lines.append([row.label, *map(number, values), *cells])
    return "\n".join("| " + " | ".join(line) + " |" for line in lines)


def processor():
    with open("/proc/cpuinfo", encoding="utf-8") as stream:
        for line in stream:
            if line.startswith("model name"):
                return line.split(":", 1)[1].strip()
    return os.uname().machine


def machine(compiler):
    version = subprocess.run([compiler, "--version"], check=True, capture_output=True, text=True)
    today = datetime.datetime.now(datetime.timezone.utc).date().isoformat()
    return (
        f"{processor()}, {os.cpu_count()} cores; {version.stdout.splitlines()[0]}, -O2; {today}"
    )


TEXT = """# Benchmarks

Written by `./dev bench`. Medians of interleaved runs, all in one process of one run:
compare the columns of a line, not lines of different machines.

Machine: {machine}.

![The start-up cycle, and costs over the number of arguments and options](results.svg)

Every peer does the same work behind one small adapter, and a checksum over all values that are read
must be the same for all of them, or the run stops. `floor` is what the work costs when nothing else
is done: one flat hash table and views into the arguments. Peers that find values by name read them
by name, the others from the variables or objects that they fill. "-" stands where a peer cannot do
the work, or takes too long for it. Allocations and bytes are those of `operator new`: argp and popt
call `malloc` and are left out. What is compared with the target is in the column `measured`.

{table}
"""


def main():
    table_path, plot_path, compiler, *files = sys.argv[1:]
    data = Measurements(files)
    with open(table_path, "w", encoding="utf-8") as stream:
        stream.write(TEXT.format(machine=machine(compiler), table=table(data)))
    write_plot(plot_path, data)


if __name__ == "__main__":
    main()
