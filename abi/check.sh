#!/usr/bin/env bash
# Usage: check.sh LIBRARY DEBUG_LIBRARY [--update]
# Compares the binary interface with what is kept here: names and calls of the library as delivered,
# types of one built for debugging, since optimising it as a whole loses their description.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
library=$1
described=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

baseline_of() {
    abidw --no-comp-dir-path --no-corpus-path --no-show-locs --type-id-style hash \
        --exported-interfaces-only --suppressions "$here/zarn.suppr" --out-file "$2" "$1"
    sed -i -E "s#path='[^']*/(src|include)/#path='\1/#" "$2"  # no path of the machine
}

same_interface() {
    abidiff --suppressions "$here/zarn.suppr" "$1" "$2"
}

# A comparison can go blind silently: one with two operations swapped must be seen.
sees_a_swap() {
    local headers=$here/../include status=0
    mkdir "$work/swapped"
    cp -r "$headers/." "$work/swapped"
    sed -i -e 's/virtual bool addHandler(/virtual bool SWAP(/' \
        -e 's/virtual bool removeHandler(/virtual bool addHandler(/' \
        -e 's/virtual bool SWAP(/virtual bool removeHandler(/' "$work/swapped/zarn/parser.h"
    ! cmp -s "$headers/zarn/parser.h" "$work/swapped/zarn/parser.h" || return 1

    local kind
    for kind in swapped true; do
        local include=$headers
        if [[ $kind == swapped ]]; then
            include=$work/swapped
        fi
        g++ -std=c++17 -g -femit-class-debug-always -shared -fPIC -I"$include" \
            -o "$work/$kind.so" -x c++ - <<'CODE'
#include "zarn/parser.h"
int zarn_3_3::createParser(IParser** out, int) { return (*out)->addHandler(nullptr) ? 0 : 1; }
CODE
    done
    baseline_of "$work/true.so" "$work/true.abi"
    same_interface "$work/true.abi" "$work/true.so" >/dev/null || return 1
    same_interface "$work/true.abi" "$work/swapped.so" >"$work/report" || status=$?
    # 4 and 8 are the bits for a change; 1 and 2 would be a failure of the tool.
    (((status & 12) != 0 && (status & 3) == 0))
}

check() {
    local what=$1
    shift
    if ! "$@"; then
        echo "abi: failed: $what" >&2
        exit 1
    fi
    echo "abi: $what"
}

if [[ ${3-} == --update ]]; then
    baseline_of "$described" "$here/zarn.abi"
    echo "abi: wrote abi/zarn.abi"
fi
check "the exported names are those of abi/exports.txt" "$here/symbols.sh" exports "$library"
check "nothing of abi/forbidden_imports.txt is called" "$here/symbols.sh" imports "$library"
check "the library is hardened" "$here/hardening.sh" "$library"
check "the comparison sees two operations swapped" sees_a_swap
check "the interface is that of abi/zarn.abi" same_interface "$here/zarn.abi" "$described"
