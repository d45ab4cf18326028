"""What the programs measured, by "workload/size/peer" and unit."""

import json

PEERS = ["getopt_long", "argp", "popt", "args", "cxxopts", "CLI11", "TCLAP", "Boost"]


class Measurements:
    def __init__(self, files):
        self.values = {}
        for file in files:
            with open(file, encoding="utf-8") as stream:
                self._add(json.load(stream))

    def _add(self, content):
        if "benchmarks" not in content:
            for name, units in content.items():
                self.values.setdefault(name, {}).update(units)
            return
        for run in content["benchmarks"]:
            if run.get("aggregate_name") == "median":
                name = run["run_name"].removesuffix("/manual_time")
                self.values.setdefault(name, {})["ns"] = run["ns"]

    def get(self, workload, size, peer, unit="ns"):
        """The median, or None when the peer does not run this."""
        return self.values.get(f"{workload}/{size}/{peer}", {}).get(unit)

    def timings(self, workload, peer):
        """What was timed at every size: (size, nanoseconds) pairs."""
        found = []
        for name, units in self.values.items():
            run, size, runner = name.split("/")
            if (run, runner) == (workload, peer) and "ns" in units:
                found.append((int(size), units["ns"]))
        return sorted(found)
