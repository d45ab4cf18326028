#!/usr/bin/env bash
# Fuzzes the targets, or renews their kept inputs. See fuzz/README.md.
#
#     fuzz/run.sh SECONDS|--renew BUILD_DIR
#
# What fuzzing finds stays in BUILD_DIR/fuzz-work.
set -euo pipefail

mode=$1
build=$(cd "$2" && pwd)
cd "$(dirname "${BASH_SOURCE[0]}")/.."
work=$build/fuzz-work
mapfile -t targets < <(find fuzz -name "*_target.cpp" -printf "%f\n" | sed "s/_target.cpp//")
for target in "${targets[@]}"; do
    mkdir -p "$work/$target"/{corpus,finds}
done
# What was freed is held back for so long only: the rest of the memory is for the input.
export ASAN_OPTIONS=quarantine_size_mb=64${ASAN_OPTIONS:+:$ASAN_OPTIONS}

fuzz_target() {
    "$build/fuzz/fuzz_$1" -max_total_time="$mode" -max_len=300 -len_control=0 -entropic=0 -timeout=20 \
        -dict=fuzz/zarn.dict -rss_limit_mb=1024 -print_final_stats=1 \
        -artifact_prefix="$work/$1/finds/" "$work/$1/corpus" "fuzz/corpus/$1" >"$work/$1/log" 2>&1
}

report_find() {
    local input
    input=$(sed -n 's/.*Test unit written to //p' "$work/$1/log" | tail -n 1)
    echo "FOUND by $1: ${input:-no input was written}; the whole story: $work/$1/log"
    grep -E -a -m 4 '^Does not hold|ERROR: |runtime error: ' "$work/$1/log" || true
    if [[ $1 == scenario && -n $input ]]; then
        "$build/fuzz/write_scenario" <"$input"
    fi
}

fuzz_all() {
    local target found=0
    declare -A runs
    for target in "${targets[@]}"; do
        fuzz_target "$target" &
        runs[$target]=$!
    done
    for target in "${targets[@]}"; do
        wait "${runs[$target]}" || { found=1 && report_find "$target"; }
        sed -n "s/^stat::\(number_of_exec\|average_exec\)/$target: \1/p" "$work/$target/log"
    done
    return "$found"
}

# The few inputs that reach all that any of them reaches take the place of those that were kept.
renew() {
    local target
    for target in "${targets[@]}"; do
        mkdir "$work/$target/renewed"
        find "fuzz/corpus/$target" -name 'found_*' -exec cp -t "$work/$target/renewed" {} +
        "$build/fuzz/fuzz_$target" -set_cover_merge=1 -use_counters=0 -use_cmp=0 -max_len=300 \
            "$work/$target/renewed" "fuzz/corpus/$target" "$work/$target/corpus"
        # Those that reach most come first.
        find "$work/$target/renewed" -type f -printf '%T@ %p\n' | sort -n | tail -n +101 |
            cut -d ' ' -f 2- | xargs -r rm
        rm -r "fuzz/corpus/$target"
        mv "$work/$target/renewed" "fuzz/corpus/$target"
    done
}

if [[ $mode == --renew ]]; then
    renew
else
    fuzz_all
fi
