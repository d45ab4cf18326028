#!/usr/bin/env bash
# clang-tidy over the library, the programs and the examples.
#
# Much of its time goes into headers, so that it reads several sources as one: neighbours,
# whose names differ since other builds compile them as one, too. Where that does not do, or something
# is found, it reads them one by one, and what it says then counts. The analyzer gets a third of its
# usual budget for a function, with which it took three quarters of all time and found no more.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
place=build/tidy
readonly most=9  # sources in a part

tidy() {
    clang-tidy --quiet --config-file=.clang-tidy "$@" -- -std=c++17 -Iinclude -Isrc \
        -Iexamples/checksums -Iprograms/zarn-vocabulary '-DPROGRAM_VERSION="0"' \
        -Xclang -analyzer-config -Xclang max-nodes=75000
}

check_part() {
    local sources
    mapfile -t sources <"$1"
    for source in "${sources[@]}"; do
        echo "// $source"
        cat "$source"
    done >"$1.cpp"
    tidy "$1.cpp" >"$1.log" 2>&1 && return
    echo "Reading one by one what cannot be read as one: $(grep -m 1 'error: ' "$1.log")"
    tidy "${sources[@]}"
}

rm -rf "$place"
mkdir -p "$place"
for group in src programs examples/checksums examples/minimal; do
    find "$group" -name '*.cpp' | LC_ALL=C sort | split -l "$most" - "$place/${group//\//-}-"
done
parts=("$place"/*)
number=$(cat "${parts[@]}" | wc -l)
export -f tidy check_part
printf '%s\n' "${parts[@]}" | xargs -P "$(nproc)" -I{} bash -c 'check_part {}'
echo "clang-tidy has read $number sources"
