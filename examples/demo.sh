#!/bin/bash
# Shows the checksums tool at work on the files of this repository, and fails when an exit code is
# not the expected one. Usage, from the root of the repository: examples/demo.sh <built tool>

set -u

if [[ $# -ne 1 || ! -x $1 || ! -d include/zarn ]]; then
    echo "usage, from the root of the repository: examples/demo.sh <built checksums tool>" >&2
    exit 2
fi
tool=$(realpath "$1")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp -R include examples "$scratch"
cd "$scratch" || exit 1

failures=0

say() { printf '\n# %s\n' "$*"; }

# run <expected exit code> <argument ...>
run() {
    local expected=$1 code=0
    shift
    printf '$ checksums'
    (($# == 0)) || printf ' %s' "${@@Q}" | sed "s/'\([A-Za-z0-9_.,:=/-]*\)'/\1/g"
    printf '\n'
    "$tool" "$@" 2>&1 || code=$?
    ((code == 0)) || echo "[exit code $code]"
    if ((code != expected)); then
        echo "DEMO FAILED: expected exit code $expected, got $code"
        failures=$((failures + 1))
    fi
}

say "Sum a folder and a file, then check them."
run 0 --create include examples/README.md
run 0 --verify

say "Both at once, with another algorithm and manifest; commas in names stay."
cp include/zarn/zarn.h 'one, two.h'
run 0 --create --verify --algorithm=adler32 --manifest=headers.sums 'one, two.h' include/plinth2

say "A change and a loss are caught."
echo '// changed' >>include/zarn/value.h
rm examples/README.md
run 1 --verify --quiet
run 0 --create --manifest=now.txt include examples/CMakeLists.txt
run 1 --compare checksums.txt now.txt
run 0 --verify --ignore-missing --manifest=now.txt --quiet

say "Options may be abbreviated as long as they are unambiguous."
run 0 --verif --man=now.txt --qui
run 2 --co checksums.txt now.txt

say "Wrong values and what belongs to another action are refused."
run 2 --create --algorithm=md5 include
run 2 --create --algorithm=c include
run 2 --create --jobs=0 include
run 2 --create --ignore-missing include
run 2 --create include nowhere
run 0 --create --algorithm=crc --quiet include

say "What nobody understands is refused, and so is what the environment says wrongly."
run 2 --create --fast include
CHECKSUMS_JOBS=many run 2 --create include

say "Arguments kept in a file."
printf '%s\n' '# how we sum' '--algorithm=adler32' '--manifest=kept.sums' >sum.options
echo '$ cat sum.options'
cat sum.options
run 0 --create --option-file=sum.options include/zarn
run 3 --verify --option-file=lost.options

say "No action, and the help."
run 2
run 2 include
run 0 --help
run 0 --help verify
run 0 --help algorithm
run 0 --version

((failures == 0))
