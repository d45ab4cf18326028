#!/bin/bash
# The checksums tool from end to end. Usage: checksums_test.sh <tool>

set -u

if [[ $# -ne 1 || ! -x $1 ]]; then
    echo 'usage: checksums_test.sh <built checksums tool>' >&2
    exit 2
fi
program=$(realpath "$1")
# What is printed has no place in the folders that are summed.
source "$(dirname "$(realpath "$0")")/../support/program_rows.sh"

says() { grep -qF -e "$2" "$1" || fail "$1 lacks: $2; it holds: $(cat "$1")"; }
is_silent() { [[ ! -s $1 ]] || fail "$1 should be empty; it holds: $(cat "$1")"; }

# row <exit code> <stream> <line> <argument ...>
row() {
    local code=$1 stream=$2 line=$3
    shift 3
    check "$code" "$@"
    prints "$stream" "$line"
}

# holds <manifest> <expected content>
holds() { [[ $(cat "$1") == "$2" ]] || fail "$1 holds: $(cat "$1")"; }

mkdir -p data/sub
printf 123456789 >data/check
printf 123456789 >'data/sub/a, b'
printf '' >data/sub/empty
ln -s .. data/sub/loop
ln -s nowhere data/dangling

# The check values of both algorithms are published: cbf43926 and 091e01de.
row 0 stdout 'checksums.txt: 3 summed' --create data
is_silent stderr
holds checksums.txt 'crc32 cbf43926  data/check
crc32 cbf43926  data/sub/a, b
crc32 00000000  data/sub/empty'
row 0 stdout 'a.txt: 3 summed' -c -a=adler32 -m a.txt data/sub ./data/check data
holds a.txt 'adler32 091e01de  data/check
adler32 091e01de  data/sub/a, b
adler32 00000001  data/sub/empty'
row 0 stdout 'checksums.txt: 3 OK, 0 changed, 0 missing, 0 unreadable' --verify
prints stdout 'data/sub/a, b: OK'

# Neither the number of threads nor the size of the buffer changes a sum.
row 0 stdout '0 of 3 differ' --compare checksums.txt checksums.txt
check 0 --create --jobs=5 --buffer-size=2 --manifest=slow.txt data
cmp -s checksums.txt slow.txt || fail 'slow.txt differs'

# Names with what manifests are made of.
odd=$'odd  \\name\nwith\rall'
printf x >"$odd"
row 0 stdout 'odd.txt: 1 summed' --create --manifest=odd.txt "$odd"
holds odd.txt '\crc32 8cdc1683  odd  \\name\nwith\rall'
row 0 stdout '\odd  \\name\nwith\rall: OK' --verify --manifest=odd.txt
printf x >-dash
row 0 stdout 'dash.txt: 1 summed' --create --manifest=dash.txt -- -dash
printf 'crc32 cbf43926  data/check\r\n' >dos.txt
row 0 stdout 'data/check: OK' --verify --manifest=dos.txt

# The manifest itself is not summed.
check 0 --create --manifest=data/own.txt data
check 0 --create --verify --quiet --manifest=data/own.txt data
is_silent stdout
rm data/own.txt

# Differences.
printf changed >data/check
rm data/sub/empty
row 1 stdout 'checksums.txt: 1 OK, 1 changed, 1 missing, 0 unreadable' --verify
prints stdout 'data/check: CHANGED'
prints stdout 'data/sub/empty: MISSING'
row 1 stdout 'checksums.txt: 1 OK, 1 changed, 0 missing, 0 unreadable' --verify --ignore-missing
check 1 --verify --quiet --no-color
[[ $(cat stdout) == $'data/check: CHANGED\ndata/sub/empty: MISSING' ]] || fail "$(cat stdout)"
row 1 stdout $'data/check: \e[31mCHANGED\e[0m' --verify --color
printf x >data/new
check 0 --create --manifest=now.txt data
row 1 stdout '3 of 4 differ' --compare checksums.txt now.txt
prints stdout 'data/check: CHANGED'
prints stdout 'data/new: ADDED'
prints stdout 'data/sub/empty: REMOVED'
row 1 stdout 'data/check: NOT COMPARABLE (other algorithm)' --compare a.txt now.txt

# Files that cannot be used.
mkfifo pipe
printf 'crc32 cbf43926  data\n' >folder.txt
printf 'crc32 cbf43926  data/check\nnonsense\n' >broken.txt
: >empty.txt
row 2 stderr "checksums: Value 'nowhere' is not valid for option 'file' in argument 'nowhere': there is no such file or folder (options stand before the first file)" --create data nowhere
row 3 stderr 'checksums: pipe: not a regular file' --create --manifest=x.txt pipe data/new
holds x.txt 'crc32 8cdc1683  data/new'
row 3 stderr 'checksums: data: not a regular file' --verify --manifest=folder.txt
row 3 stderr 'checksums: broken.txt: line 2 holds no checksum' --verify --manifest=broken.txt
row 3 stderr 'checksums: empty.txt: no file was verified' --verify --manifest=empty.txt
row 3 stderr 'checksums: data: is a folder' --verify --manifest=data
row 3 stderr 'checksums: nowhere: No such file or directory' --verify --manifest=nowhere
row 3 stderr 'checksums: no/x.txt: No such file or directory' --create --manifest=no/x.txt data
row 3 stderr "checksums: Error reading option file 'nowhere'" --verify --option-file=nowhere
"$program" --help >/dev/full 2>stderr
[[ $? == 4 ]] || fail 'a full output goes unnoticed'

# Lines that are almost entries.
while IFS= read -r line; do
    printf '%s\n' "$line" >almost.txt
    row 3 stderr 'checksums: almost.txt: line 1 holds no checksum' --compare almost.txt a.txt
done <<'EOF'

crc32
crc32 cbf43926 name
crc32  cbf43926  name
md5 cbf43926  name
crc32 cbf4392  name
crc32 cbf4392g  name
crc32 0cbf43926  name
crc32 -bf43926  name
crc32 cbf43926  
\crc32 cbf43926  na\me
\crc32 cbf43926  name\
EOF

# The command line.
row 2 stderr 'checksums: No action defined.'
row 2 stderr 'checksums: No action defined.' data
row 2 stderr 'checksums: Unknown option: --bogus' --bogus -5 - --create data
row 2 stderr 'checksums: Unknown option: -a\x1b[31m' --create -a$'\e[31m' data
row 2 stderr "checksums: Ambiguous option 'co' in argument: '--co', could be: 'compare', 'color'" --co
row 2 stderr "checksums: Action '-compare' and action '-create' were defined, but only one action possible." --create --compare a.txt a.txt
row 2 stderr "checksums: Action '-compare' doesn't accept option '-manifest'" --compare --manifest=x a.txt a.txt
row 2 stderr "checksums: Option 'color' is boolean and should be declared in form '--option' or '--no-option' in argument: '--color=1'. Did you mean '--color'?" --color=1
row 2 stderr "checksums: Action '--create' requires argument 'FILE'" --create
row 2 stderr "checksums: Argument 'FILE' is empty" --create ''
row 2 stderr "checksums: Action '--compare' needs two manifests, the old one and the new one." --compare a.txt
row 2 stderr "checksums: Action '--verify' takes no argument 'FILE'" --verify data
check 2 --create --algorithm=crc32,adler32 data
says stderr "does not allow value 'crc32,adler32'. Possible values follows: 'crc32', 'adler32'"
check 2 --create --algorithm=c data
says stderr "Ambiguous value for option 'algorithm'. Possible values follows: 'crc32', 'adler32'"
for jobs in 0 65 -1; do
    row 2 stderr "checksums: Value '$jobs' is not valid for option 'jobs' in argument '--jobs=$jobs': it must be between 1 and 64" --create --jobs=$jobs data
done
check 2 --create --jobs=many data
says stderr "Option 'jobs' can not parse 'many' value"
check 2 --create data --quiet
says stderr '(options stand before the first file)'
row 0 stderr "Warning: 'crc' argument is deprecated for the option '-algorithm'. Use the 'crc32' argument instead." --create --algorithm=crc --manifest=x.txt data/new
holds x.txt 'crc32 8cdc1683  data/new'

# Option files: the command line overrules them, the last of them the others, and they may hold
# everything.
printf '%s\n' '; the usual' --algorithm=adler32 '--manifest=kept, too.txt' >usual.opt
row 0 stdout 'kept, too.txt: 1 summed' --create --option-file=usual.opt data/new
row 0 stdout 'mine.txt: 1 summed' --create --manifest=mine.txt --option-file=usual.opt data/new
says mine.txt adler32
printf '%s\n' --create --manifest=all.txt 'data/sub/a, b' data/new >all.opt
row 0 stdout 'kept, too.txt: 2 summed' --option-file=all.opt --option-file=usual.opt
CHECKSUMS_JOBS=0 check 2 --verify --manifest=all.txt
prints stderr "checksums: Value '0' is not valid for option 'jobs' in argument 'CHECKSUMS_JOBS=0': it must be between 1 and 64"

# Help.
unset COLUMNS
row 0 stdout 'Usage: checksums --create [options] [--] FILE...' --help
prints stdout '       checksums --verify [options]'
prints stdout 'Options of --create and --verify:'
if grep -qF -e buffer-size stdout; then fail 'hidden options are shown'; fi
row 0 stdout 'Usage: checksums --create [options] [--] FILE...' -h create
prints stdout '  -a, --algorithm KIND     The kind of checksum: crc32 or adler32 (default'
check 0 --bogus --help=jobs
says stdout '--jobs COUNT'
COLUMNS=40 check 0 --help
[[ $(awk 'length > 40' stdout) == '' ]] || fail 'lines are wider than asked for'
row 0 stdout 'checksums 1.0' --version
check 2 --help=nowhere
says stderr 'Help for nowhere not available.'
is_silent stdout

((failures == 0)) && echo 'All checks passed.'
