#!/usr/bin/env bash
# Fuzzes every target, or measures what their kept inputs reach.
set -euo pipefail

usage() {
    cat <<'TEXT'
Usage: fuzz/run.sh SECONDS BUILD_DIR      fuzz each target for so long, two at a time
       fuzz/run.sh --coverage BUILD_DIR   which lines the kept inputs reach of what is aimed at

Targets and aims are those of the table in fuzz/README.md. What fuzzing finds stays in
BUILD_DIR/fuzz-work; the kept inputs are read, never written.
TEXT
}

if (($# != 2)); then
    usage >&2
    exit 2
fi
mode=$1
build=$(cd "$2" && pwd)
cd "$(dirname "${BASH_SOURCE[0]}")/.."
work=$build/fuzz-work
least_coverage=90
# What was freed is held back for so long only: the rest of the memory is for the input.
export ASAN_OPTIONS=quarantine_size_mb=64${ASAN_OPTIONS:+:$ASAN_OPTIONS}

# "target file file..." of each row of the table.
table() {
    sed -n 's/^| `\([a-z_]*\)` |.*| \([^|]*\) |$/\1 \2/p' fuzz/README.md | tr -d '`,'
}

# The folders of the inputs kept for a target.
kept_inputs() {
    local folder
    for folder in "fuzz/corpus/$1" "fuzz/finds/$1"; do
        if [[ -d $folder ]]; then
            printf '%s\n' "$folder"
        fi
    done
}

fuzz_target() {
    local target=$1 kept code=0
    mapfile -t kept < <(kept_inputs "$target")
    mkdir -p "$work/$target/corpus" "$work/$target/finds"
    rm -f "$work/$target/code"
    "$build/fuzz/targets/fuzz_$target" -max_total_time="$mode" -max_len=4096 \
        -dict=fuzz/zarn.dict -timeout=5 -rss_limit_mb=512 -print_final_stats=1 \
        -artifact_prefix="$work/$target/finds/" \
        "$work/$target/corpus" "${kept[@]}" >"$work/$target/log" 2>&1 || code=$?
    echo "$code" >"$work/$target/code"
}

# Whether a target ended well; one that left no code did not.
is_clean() {
    [[ $(cat "$work/$1/code" 2>/dev/null) == 0 ]]
}

# The last number behind a label in the log of a target.
logged() {
    grep -o "$2 *[0-9]*" "$work/$1/log" | tail -n 1 | grep -o '[0-9]*$' || echo 0
}

report_target() {
    local target=$1 verdict="no find"
    if ! is_clean "$target"; then
        verdict=FOUND
    fi
    printf '%-16s %10d executions %7d/s %6d edges %6d features  %s\n' "$target" \
        "$(logged "$target" number_of_executed_units:)" \
        "$(logged "$target" average_exec_per_sec:)" \
        "$(logged "$target" cov:)" "$(logged "$target" ft:)" "$verdict"
}

report_find() {
    local target=$1 input
    grep -E -m 4 '^(Does not hold|Differs)|ERROR: |runtime error: ' "$work/$target/log" || true
    input=$(sed -n 's/.*Test unit written to //p' "$work/$target/log" | tail -n 1)
    cat <<TEXT
  The whole story: $work/$target/log
  The input:       ${input:-none was written}
  To keep it, so that every ./dev test replays it:
    mkdir -p fuzz/finds/$target && cp ${input:-INPUT} fuzz/finds/$target/
TEXT
}

fuzz_all() {
    local target executions=0 found=0
    for target in "${targets[@]}"; do
        while (($(jobs -rp | wc -l) >= 2)); do
            wait -n
        done
        fuzz_target "$target" &
    done
    wait
    for target in "${targets[@]}"; do
        report_target "$target"
        executions=$((executions + $(logged "$target" number_of_executed_units:)))
        if ! is_clean "$target"; then
            report_find "$target"
            found=1
        fi
    done
    echo "$executions executions in all"
    return "$found"
}

# Prints what a target reaches of the files in its row; fails below the least coverage.
cover_target() {
    local target=$1 replay=$build/fuzz/targets/replay_$1 kept files
    shift
    files=("${@/#/$PWD/}")
    ls "${files[@]}" >/dev/null || return
    mapfile -t kept < <(kept_inputs "$target")
    LLVM_PROFILE_FILE=$work/$target.profraw "$replay" "${kept[@]}" >/dev/null &&
        llvm-profdata merge -o "$work/$target.profdata" "$work/$target.profraw" &&
        llvm-cov report "$replay" -instr-profile="$work/$target.profdata" \
            "${files[@]}" >"$work/$target.report" &&
        awk -v target="$target" -v least="$least_coverage" '
            $1 == "TOTAL" {
                reached = $8 - $9
                percent = 100 * reached / $8
                printf "%-16s %5d of %5d lines  %5.1f %%\n", target, reached, $8, percent
            }
            END { exit !(percent >= least) }' "$work/$target.report"
}

cover_all() {
    local row short=0
    mkdir -p "$work"
    while read -r -a row; do
        cover_target "${row[@]}" || short=1
    done < <(table)
    echo "By file: $work/*.report"
    return "$short"
}

mapfile -t targets < <(table | cut -d ' ' -f 1)
if ((${#targets[@]} == 0)); then
    echo "fuzz/run.sh: no targets in fuzz/README.md" >&2
    exit 2
fi
case $mode in
    --coverage) cover_all ;;
    *[!0-9]* | "")
        usage >&2
        exit 2
        ;;
    *) fuzz_all ;;
esac
