#!/usr/bin/env bash
# What ./dev bench does when everything is installed.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(dirname "$here")
build=$root/build/bench
programs=$build/benchmarks
export PYTHONDONTWRITEBYTECODE=1

# build_in DIRECTORY SOURCE WITH_BENCHMARKS TARGET...
build_in() {
    cmake -S "$2" -B "$1" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DZARN_BUILD_BENCHMARKS="$3" -DZARN_BUILD_TESTS=OFF -DZARN_BUILD_EXAMPLES=OFF
    cmake --build "$1" --target "${@:4}"
} >&2

against() {
    local commit before
    commit=$(git -C "$root" rev-parse --verify "$1^{commit}")
    before=$root/build/against/$commit
    mkdir -p "$before/source"
    git -C "$root" archive "$commit" | tar -x -C "$before/source"
    build_in "$before/build" "$before/source" OFF zarn
    build_in "$build" "$root" ON zarn timings
    "$here/against.py" "$programs/timings" "$before/build" "$build" "${@:2}"
}

# beside_peers RESULTS_DIR FILTER REPETITIONS COMPILATIONS PROCESSES
beside_peers() {
    build_in "$build" "$root" ON all
    local compiler
    compiler=$(sed -n 's/^CMAKE_CXX_COMPILER:[A-Z]*=//p' "$build/CMakeCache.txt")
    echo "Counting allocations"
    "$programs/allocations" >"$build/allocations.json"
    echo "Building and running small clients"
    "$here/clients/measure.py" "$compiler" "$root/include" "$build/libzarn.so" \
        "$build/clients" "$4" "$5" >"$build/clients.json"
    echo "Timing the library and its peers"
    "$programs/timings" --benchmark_out="$build/timings.json" --benchmark_out_format=json \
        --benchmark_min_time=0.02 --benchmark_repetitions="$3" --benchmark_filter="$2" \
        --benchmark_report_aggregates_only=true --benchmark_enable_random_interleaving=true \
        >"$build/timings.log"
    "$here/report.py" "$here/RESULTS.md.in" "$1/RESULTS.md" "$1/results.svg" "$compiler" \
        "$build"/{allocations,clients,timings}.json
    cat "$1/RESULTS.md"
}

# Whether it still builds and runs: on the library that the tests use, without optimising, and far too
# short to measure anything.
smoke() {
    {
        cmake -S "$root" --preset dev -DZARN_BUILD_BENCHMARKS=ON
        cmake --build "$root/build/dev" --target timings allocations
    } >&2
    "$root/build/dev/benchmarks/allocations" 1000
    "$root/build/dev/benchmarks/timings" --benchmark_filter="-/[0-9]{4,}/" --benchmark_min_time=0
}

# A quick run is smaller, and leaves its results in the build directory.
case ${1-} in
    "") beside_peers "$here" . 5 3 200 ;;
    --quick) beside_peers "$build" "-(/1000000/|/10000/(argp|CLI11|TCLAP|Boost)/)" 3 1 50 ;;
    --smoke) smoke ;;
    --against) against "${2:?of which revision?}" "${@:3}" ;;
    *)
        echo "Usage: ./dev bench [--quick | --smoke | --against REVISION [--help | OPTIONS] [ROWS]]" >&2
        exit 2
        ;;
esac
