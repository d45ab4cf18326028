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
from pathlib import Path

PEERS = "zarn zarn-typed getopt_long argp popt args cxxopts CLI11 TCLAP Boost".split()
ARGUMENTS = ["--name=you", "--count=3", "--ratio=1.25", "--quiet", "here.txt"]
EXPECTED = "you 3 1.25 1 here.txt\n"


def output_of(*command, environment=None):
    return subprocess.run(
        command, check=True, stdout=subprocess.PIPE, text=True, env=environment
    ).stdout


def seconds(action):
    start = time.perf_counter()
    action()
    return time.perf_counter() - start


def environment_of(peer, library):
    """Has the loader find the library at once, as an installed one: with a path in the program it
    would look there for all others too, in vain."""
    return {**os.environ, "LD_PRELOAD": library} if peer.startswith("zarn") else os.environ


def build(peer, compiler, include, libraries, scratch, compilations):
    """Compiles, links and strips; the program, and the median time of the compilation alone."""
    source = Path(__file__).parent / f"{peer.lower().replace('-', '_')}_client.cpp"
    program = os.path.join(scratch, peer)
    compile_it = [compiler, "-std=c++17", "-O2", "-I", include, "-c", source, "-o", program + ".o"]
    times = [seconds(lambda: output_of(*compile_it)) for _ in range(int(compilations))]
    output_of(compiler, program + ".o", "-o", program, "-Wl,--as-needed", *libraries)
    output_of("strip", program)
    environment = environment_of(peer, libraries[0])
    if output_of(program, *ARGUMENTS, environment=environment) != EXPECTED:
        sys.exit(f"{program} did not print {EXPECTED!r}")
    return program, statistics.median(times)


def run(program, environment):
    silent = [(os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0)]
    child = os.posix_spawn(program, [program, *ARGUMENTS], environment, file_actions=silent)
    os.waitpid(child, 0)


def library_bytes(library):
    """Code and read-only data, without what the loader and exceptions need, and code alone."""
    lines = [line.split() for line in output_of("size", "-A", library).splitlines()]
    sizes = {fields[0]: int(fields[1]) for fields in lines if fields[:1] in ([".text"], [".rodata"])}
    return {"text": sum(sizes.values()), "code": sizes[".text"]}


def main():
    compiler, include, library, scratch, compilations, runs = sys.argv[1:]
    os.makedirs(scratch, exist_ok=True)
    libraries = [library, "-lpopt", "-lboost_program_options"]
    results = {"library/1/zarn": library_bytes(library)}
    programs = {}
    for peer in PEERS:
        programs[peer], median = build(peer, compiler, include, libraries, scratch, compilations)
        size = os.path.getsize(programs[peer])
        results[f"client/1/{peer}"] = {"compile": median, "size": size}
    # Processes from start to end, the programs in turns.
    found = {p: environment_of(p, library) for p in PEERS}
    turns = [
        {p: seconds(lambda: run(programs[p], found[p])) for p in PEERS} for _ in range(int(runs))
    ]
    for peer in PEERS:
        median = statistics.median(turn[peer] for turn in turns)
        results[f"client/1/{peer}"]["process"] = median * 1e6
    print(json.dumps(results, indent=2))


if __name__ == "__main__":
    main()
