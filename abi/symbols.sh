#!/usr/bin/env bash
# Usage: symbols.sh exports|imports LIBRARY
#   exports  the names that the library defines are those of exports.txt, each with the version node
#   imports  it calls nothing of forbidden_imports.txt (builds without assertions only)
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
library=$2

# Names alone: the letters of nm differ between compilers.
names() {
    LC_ALL=C nm --dynamic --demangle "$@" "$library" |
        sed -E 's/^[0-9a-f ]* [A-Za-z] //; s/@.*//' | LC_ALL=C sort -u
}

case $1 in
    exports)
        if ! diff "$here/exports.txt" <(names --defined-only | grep -v '^ZARN_3.3$'); then
            echo "The exported names have changed (< abi/exports.txt, > library)." >&2
            exit 1
        fi
        if nm --dynamic --defined-only "$library" | grep -Ev '@@ZARN_3\.3$| A ZARN_3\.3$'; then
            echo "These are exported without the version." >&2
            exit 1
        fi
        ;;
    imports)
        imported=$(names --undefined-only)
        [[ -n $imported ]]
        if grep -Fx -f "$here/forbidden_imports.txt" <<<"$imported"; then
            echo "A library does not do this to the process of its client." >&2
            exit 1
        fi
        ;;
    *) exit 2 ;;
esac
