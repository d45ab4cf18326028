#!/usr/bin/env bash
# Runs the benchmarks beside other libraries and writes RESULTS.md and results.svg.
set -euo pipefail

usage() {
    cat <<'TEXT'
Usage: benchmarks/run.sh [--quick] [BUILD_DIR]

Builds in BUILD_DIR (build/bench) and writes benchmarks/RESULTS.md and benchmarks/results.svg.
With --quick, fewer and smaller runs, whose results stay in BUILD_DIR.
Debian packages of benchmarks/packages.txt that are missing are installed.
TEXT
}

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(dirname "$here")
build=$root/build/bench
quick=false
for argument in "$@"; do
    case $argument in
        --quick) quick=true ;;
        -h | --help)
            usage
            exit
            ;;
        -*)
            usage >&2
            exit 2
            ;;
        *) build=$argument ;;
    esac
done

install_missing() {
    local missing=() package
    while read -r package; do
        if [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
            missing+=("$package")
        fi
    done <"$here/packages.txt"
    if ((${#missing[@]} == 0)); then
        return
    fi
    local as_root=()
    if ((EUID != 0)); then
        as_root=(sudo)
    fi
    echo "Installing from Debian: ${missing[*]}"
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# measure PROGRAM OUTPUT: medians of interleaved repetitions.
measure() {
    local -a filter=()
    if $quick; then
        filter=("--benchmark_filter=-(/1000000/|/10000/(argp|CLI11|TCLAP|Boost)/)")
    fi
    "$1" --benchmark_out="$2" --benchmark_out_format=json --benchmark_min_time=0.02 \
        --benchmark_repetitions="$repetitions" --benchmark_report_aggregates_only=true \
        --benchmark_enable_random_interleaving=true "${filter[@]}" >"$2.log"
}

repetitions=5
compilations=3
processes=200
table=$here/RESULTS.md
plot=$here/results.svg
if $quick; then
    repetitions=3
    compilations=1
    processes=50
    table=$build/RESULTS.md
    plot=$build/results.svg
fi

install_missing
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DZARN_BUILD_BENCHMARKS=ON -DZARN_BUILD_TESTS=OFF -DZARN_BUILD_EXAMPLES=OFF
cmake --build "$build"
build=$(cd "$build" && pwd)
programs=$build/benchmarks
compiler=$(sed -n 's/^CMAKE_CXX_COMPILER:[A-Z]*=//p' "$build/CMakeCache.txt")

echo "Counting allocations"
"$programs/allocations" >"$build/allocations.json"
echo "Building and running small clients"
python3 "$here/clients/measure.py" "$compiler" "$root/include" "$build/libzarn.so" \
    "$build/clients" "$compilations" "$processes" >"$build/clients.json"
echo "Timing the library"
measure "$programs/library_benchmark" "$build/library.json"
echo "Timing the library and its peers"
measure "$programs/peers_benchmark" "$build/peers.json"

PYTHONDONTWRITEBYTECODE=1 python3 "$here/report.py" "$table" "$plot" "$compiler" \
    "$build"/{allocations,clients,library,peers}.json
cat "$table"
