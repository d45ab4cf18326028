#!/usr/bin/env python3
"""Compiles a small tool on each peer; prints, as JSON, its compile time, size and run time.

usage: measure.py CXX INCLUDE_DIR LIBRARY SCRATCH_DIR COMPILATIONS RUNS
"""

import json
import os
import statistics
import subprocess
import sys
import time

PEERS = {
    "zarn": ("zarn_client.cpp", None),
    "zarn-typed": ("typed_client.cpp", None),
    "getopt_long": ("getopt_client.cpp", []),
    "argp": ("argp_client.cpp", []),
    "popt": ("popt_client.cpp", ["-lpopt"]),
    "args": ("args_client.cpp", []),
    "cxxopts": ("cxxopts_client.cpp", []),
    "CLI11": ("cli11_client.cpp", []),
    "TCLAP": ("tclap_client.cpp", []),
    "Boost": ("boost_client.cpp", ["-lboost_program_options"]),
}
ARGUMENTS = ["--name=you", "--count=3", "--ratio=1.25", "--quiet", "here.txt"]
EXPECTED = "you 3 1.25 1 here.txt\n"


def seconds(command):
    start = time.perf_counter()
    subprocess.run(command, check=True)
    return time.perf_counter() - start


def build(compiler, flags, source, program, libraries, compilations):
    """Compiles, links and strips; answers the median time of the compilation alone."""
    compile_command = [compiler, "-std=c++17", "-O2", *flags, "-c", source, "-o", program + ".o"]
    median = statistics.median(seconds(compile_command) for _ in range(compilations))
    subprocess.run([compiler, program + ".o", "-o", program, *libraries], check=True)
    subprocess.run(["strip", program], check=True)
    return median


def require_same_work(program):
    output = subprocess.run([program, *ARGUMENTS], check=True, capture_output=True, text=True)
    if output.stdout != EXPECTED:
        sys.exit(f"{program} printed {output.stdout!r}, not {EXPECTED!r}")


def time_processes(programs, runs):
    """Median microseconds from the start to the end of a process, the programs in turns."""
    silent = [(os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0)]
    times = {name: [] for name in programs}
    for _ in range(runs):
        for name, program in programs.items():
            start = time.perf_counter()
            child = os.posix_spawn(
                program, [program, *ARGUMENTS], os.environ, file_actions=silent
            )
            os.waitpid(child, 0)
            times[name].append((time.perf_counter() - start) * 1e6)
    return {name: statistics.median(values) for name, values in times.items()}


def library_bytes(library):
    """Code and read-only data as `size` counts them, and code alone."""

    def size(*options):
        command = ["size", *options, library]
        output = subprocess.run(command, check=True, capture_output=True, text=True).stdout
        return [line.split() for line in output.splitlines()]

    code = next(fields for fields in size("-A") if fields[:1] == [".text"])
    return {"text": int(size()[1][0]), "code": int(code[1])}


def main():
    compiler, include, library, scratch, compilations, runs = sys.argv[1:]
    sources = os.path.dirname(os.path.abspath(__file__))
    os.makedirs(scratch, exist_ok=True)
    library = os.path.abspath(library)
    zarn = [library, "-Wl,-rpath," + os.path.dirname(library)]
    results = {}
    programs = {}
    for name, (source, libraries) in PEERS.items():
        programs[name] = os.path.join(scratch, name)
        flags = ["-I", include] if libraries is None else []
        compile_seconds = build(
            compiler,
            flags,
            os.path.join(sources, source),
            programs[name],
            zarn if libraries is None else libraries,
            int(compilations),
        )
        require_same_work(programs[name])
        results[f"client/1/{name}"] = {
            "compile": compile_seconds,
            "size": os.path.getsize(programs[name]),
        }
    for name, median in time_processes(programs, int(runs)).items():
        results[f"client/1/{name}"]["process"] = median
    results["library/1/zarn"] = library_bytes(library)
    print(json.dumps(results, indent=2))


if __name__ == "__main__":
    main()
