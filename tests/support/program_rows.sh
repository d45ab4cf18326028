# What the end-to-end tests of a program share. To be sourced with its path in `program`; goes to a
# folder of its own.

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch" || exit 1

failures=0
arguments=()

fail() {
    printf 'FAILED: %s%s\n    %s\n' "${program##*/}" "$(printf " '%s'" "${arguments[@]}")" "$1"
    failures=$((failures + 1))
}

# check <exit code> <argument ...>: leaves what was printed in ./stdout and ./stderr.
check() {
    local expected=$1 code=0
    shift
    arguments=("$@")
    "$program" "$@" >stdout 2>stderr </dev/null || code=$?
    ((code == expected)) || fail "exit code $code, expected $expected; $(cat stderr)"
}

# prints <file> <text>: a line of it is exactly this text.
prints() { grep -qxF -e "$2" "$1" || fail "$1 lacks the line: $2; it holds: $(cat "$1")"; }
