#!/usr/bin/python3
"""Fills in the template with medians, ratios and targets, and plots the same data.

usage: report.py TEMPLATE TABLE PLOT COMPILER MEASUREMENTS...
"""

import datetime
import os
import re
import subprocess
import sys

from measurements import PEERS, read_measurements
from plot import write_plot

# A row of the template has a label, a run with its unit, and targets: "at most 2", "about 2" (which
# leaves a quarter for the machine), "at most 2x PEER", "at most 2x [TEXT](RUN)" for another run of
# this library, "below every peer".
TARGET = re.compile(r"(at most|about) ([\d.]+)(?:x (?:\[(.*)\]\((.*)\)|(\w+)))?")


class Row:
    def __init__(self, data, label, run, targets):
        self.data, self.label = data, label
        self.run, self.unit = run.split()
        self.targets = targets.split("<br>") if targets else []

    def value(self, peer, run=None):
        """None when the peer does not run this. What is ours may have a name of its own."""
        workload, size, *own = (run or self.run).split("/")
        name = own[0] if own and peer == "zarn" else peer
        units = self.data.get(f"{workload}/{size}/{name}", {})
        if self.unit == "us":
            return units["ns"] / 1000 if "ns" in units else None
        return units.get(self.unit)

    def ratio(self, other):
        ours = self.value("zarn")
        return None if ours is None or not other else ours / other

    def verdict(self, target):
        """What is compared, the target as it is shown, and whether it is met."""
        if target == "below every peer":
            values = [value for peer in PEERS if (value := self.value(peer)) is not None]
            return shown(self.ratio(min(values, default=None)), "x the best", target, 1)
        kind, limit, text, run, peer = TARGET.search(target).groups()
        if run:
            other = self.value("zarn", run)
            return shown(self.ratio(other), "x", target.replace(f"[{text}]({run})", text), limit)
        if peer:
            return shown(self.ratio(self.value(peer)), "x", target, limit)
        factor = 1.25 if kind == "about" else 1
        return shown(self.value("zarn"), "", target, factor * float(limit))

    def cells(self):
        values = [self.value(column) for column in ["zarn", "floor", *PEERS]]
        if all(value is None for value in values):
            return []
        verdicts = zip(*map(self.verdict, self.targets)) if self.targets else [[""]] * 3
        return [self.label, *map(number, values), *map("<br>".join, verdicts)]


def number(value):
    if value is None:
        return "-"
    if value >= 100:
        return f"{value:,.0f}"
    return f"{value:.3g}" if value >= 0.01 else f"{value:.2f}"


def shown(value, unit, target, limit):
    if value is None:
        return "-", target, "-"
    return number(value) + unit, target, "yes" if value <= float(limit) else "**no**"


def filled(line, data):
    """A row of the template with its values, or nothing when there are none; others as they are."""
    cells = [cell.strip() for cell in line.strip("|\n").split("|")]
    if len(cells) != 3:
        return line
    found = Row(data, *cells).cells()
    return f"| {' | '.join(found)} |\n" if found else ""


def processor():
    with open("/proc/cpuinfo", encoding="utf-8") as stream:
        names = re.findall("^model name.*: (.*)$", stream.read(), re.MULTILINE)
    return names[0] if names else os.uname().machine


def machine(compiler):
    version = subprocess.check_output([compiler, "--version"], text=True)
    today = datetime.datetime.now(datetime.timezone.utc).date().isoformat()
    return f"{processor()}, {os.cpu_count()} cores; {version.splitlines()[0]}, -O2; {today}"


def main():
    template, table, plot, compiler, *files = sys.argv[1:]
    data = read_measurements(files)
    with open(template, encoding="utf-8") as stream:
        text = "".join(filled(line, data) for line in stream)
    with open(table, "w", encoding="utf-8") as stream:
        stream.write(text.replace("{machine}", machine(compiler)))
    write_plot(plot, data)


if __name__ == "__main__":
    main()
