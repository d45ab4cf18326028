#!/usr/bin/env bash
# Usage: hardening.sh LIBRARY
# An optimised library shows everything of cmake/hardening.cmake.
set -euo pipefail
library=$1

segments=$(readelf --wide --segments "$library")
dynamic=$(readelf --wide --dynamic "$library")
imports=$(nm --dynamic --undefined-only "$library")
unresolved=$(ldd -r "$library" 2>&1 | grep 'undefined symbol' || true)

missing=0
# shows WHAT PATTERN TEXT
shows() {
    if ! grep -Eq "$2" <<<"$3"; then
        echo "Hardening: $library lacks $1." >&2
        missing=1
    fi
}

shows "read-only relocations" '^ *GNU_RELRO ' "$segments"
shows "a stack that cannot be executed" '^ *GNU_STACK .* RW ' "$segments"
shows "the binding of all symbols at the start" '\(FLAGS_1\) .*NOW' "$dynamic"
shows "code without relocations" '^0$' "$(grep -c TEXTREL <<<"$dynamic")"
shows "guarded stacks" ' __stack_chk_fail(@|$)' "$imports"
shows "checked copies" ' __mem(cpy|move|set)_chk(@|$)' "$imports"
if [[ $(uname -m) == x86_64 ]]; then
    entry=_ZN8zarn_3_312createParserEPPNS_7IParserEi
    shows "landing places for calls" 'endbr64' "$(objdump "--disassemble=$entry" "$library")"
fi
shows "a definition of every symbol" '^$' "$unresolved"
exit "$missing"
