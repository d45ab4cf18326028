"""What the programs measured: by "workload/size/peer" the values, by unit."""

import json

PEERS = ["getopt_long", "argp", "popt", "args", "cxxopts", "CLI11", "TCLAP", "Boost"]


def medians(timings):
    """Those of a file that the benchmark library wrote."""
    for run in timings["benchmarks"]:
        if run.get("aggregate_name") == "median":
            yield run["run_name"].removesuffix("/manual_time"), {"ns": run["ns"]}


def read_measurements(files):
    found = {}
    for file in files:
        with open(file, encoding="utf-8") as stream:
            content = json.load(stream)
        for run, units in medians(content) if "benchmarks" in content else content.items():
            found.setdefault(run, {}).update(units)
    return found
