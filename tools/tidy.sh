#!/usr/bin/env bash
# clang-tidy over the library and the examples.
#
# Nearly all of its time goes into headers, so that it reads several sources as one: each of the
# rest is a few seconds. Neighbours, which may have names in common, are kept apart.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
place=build/tidy
readonly parts=4

rm -rf "$place"
mkdir -p "$place"
number=0
for file in src/*/*.cpp examples/*/*.cpp; do
    { echo "// $file" && cat "$file"; } >>"$place/$((number % parts)).cpp"
    number=$((number + 1))
done
echo "$number sources in $parts parts"
printf '%s\n' "$place"/*.cpp | xargs -P "$(nproc)" -I {} clang-tidy --quiet \
    --config-file=.clang-tidy {} -- -std=c++17 -Iinclude -Isrc -Iexamples/checksums
