#!/usr/bin/env bash
# clang-tidy over the library, the programs and the examples.
#
# Nearly all of its time goes into headers, so that it reads several sources as one. Neighbours,
# which may have names in common, are kept apart; where that does not do, or something is found, it
# reads them one by one, and what it says then counts.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
place=build/tidy
readonly parts=4

tidy() {
    clang-tidy --quiet --config-file=.clang-tidy "$@" -- -std=c++17 -Iinclude -Isrc \
        -Iexamples/checksums -Iprograms/zarn-vocabulary '-DPROGRAM_VERSION="0"'
}

check_part() {
    local sources
    mapfile -t sources <"$1"
    for source in "${sources[@]}"; do
        echo "// $source"
        cat "$source"
    done >"$1.cpp"
    tidy "$1.cpp" 2>"$1.log" >&2 || tidy "${sources[@]}"
}

rm -rf "$place"
mkdir -p "$place"
number=0
for source in src/*/*.cpp programs/*/*.cpp examples/*/*.cpp; do
    echo "$source" >>"$place/$((number % parts))"
    number=$((number + 1))
done
running=()
for ((part = 0; part < parts; ++part)); do
    check_part "$place/$part" &
    running+=($!)
done
failed=0
for one in "${running[@]}"; do
    wait "$one" || failed=1
done
echo "clang-tidy has read $number sources"
exit "$failed"
