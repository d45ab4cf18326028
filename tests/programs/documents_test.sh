#!/bin/bash
# What zarn-vocabulary writes about checksums, and where. Usage: documents_test.sh PROGRAM SCRIPTS
# SCRIPTS: those that zarn_tool has made for checksums. With --renew behind them the kept pages become
# what the program writes now: read the difference before you keep it.
set -u

program=$(realpath "$1")
scripts=$(realpath "$2")
here=$(dirname "$(realpath "$0")")
description=$here/../../examples/checksums/vocabulary.json
export SOURCE_DATE_EPOCH=0
if [[ ${3-} == --renew ]]; then
    "$program" --man "$description" --output="$here/checksums.1"
    "$program" --markdown "$description" --output="$here/checksums.md"
    exit
fi
source "$here/../support/program_rows.sh"

# row <exit code> <text on the standard error> <argument ...>
row() {
    local code=$1 error=$2
    shift 2
    check "$code" "$@"
    [[ $(<stderr) == "$error" ]] || fail "says: $(<stderr)"
}

same() { cmp -s "$1" "$2" || fail "$(diff "$1" "$2")"; }

row 0 '' --man "$description"
same "$here/checksums.1" stdout
row 0 '' --markdown "$description"
same "$here/checksums.md" stdout

# The date: what is asked for, else what the build says, else that of the file.
row 0 '' --man "$description" --date=2024-02-29
prints stdout '.Dd February 29, 2024'
SOURCE_DATE_EPOCH=1700000000 row 0 '' --man "$description"
prints stdout '.Dd November 14, 2023'
cp "$description" old.json
touch -d 2001-12-31T23:59:59Z old.json
SOURCE_DATE_EPOCH='' row 0 '' --man old.json
prints stdout '.Dd December 31, 2001'
for day in 2023-02-29 2024-13-01 2024-2-9 0000-01-01 20240229 2024-01-00 2024/01/01 x; do
    row 2 "zarn-vocabulary: Value '$day' is not valid for option 'date' in argument '--date=$day': it must be a day, as in 2026-01-31" --man "$description" --date=$day
done
for seconds in 1.5 -x 99999999999999999999 ' 1'; do
    SOURCE_DATE_EPOCH=$seconds row 3 "zarn-vocabulary: SOURCE_DATE_EPOCH is '$seconds', which is no number of seconds" --man "$description"
done
SOURCE_DATE_EPOCH=999999999999 row 3 'zarn-vocabulary: the second 999999999999 since 1970 lies outside the years 1 to 9999' --man "$description"

# A tool that does not say its name has that of the file.
echo '{"format": 1}' >nameless.json
row 0 '' --man nameless.json
prints stdout '.Nm nameless'

# Scripts are those that come with a tool that CMake builds.
row 0 '' --script=bash checksums
same "$scripts/checksums.bash" stdout
row 0 '' --script=fish checksums
same "$scripts/checksums.fish" stdout
row 0 '' --script=zsh checksums
same "$scripts/checksums.zsh" stdout
row 2 "zarn-vocabulary: Value validation problem in argument '--script=tcsh': Option 'script' does not allow value 'tcsh'. Possible values follows: 'bash', 'fish', 'zsh'" --script=tcsh checksums
for name in bin/tool 'a b' 'a;b' 'a$b' ä; do
    row 3 "zarn-vocabulary: '$name' is no name of a tool: it has letters, digits, '_', '.', '+' and '-', which is not the first" --script=bash "$name"
done
row 0 '' --script=bash g++-12.1_x
row 2 "zarn-vocabulary: '--script' takes the name of a tool" --script=bash
row 2 "zarn-vocabulary: '--man' takes one description" --man a b

# Files are written whole or stay as they were.
umask 027
row 0 '' --script=zsh checksums --output=_checksums
same "$scripts/checksums.zsh" _checksums
[[ $(stat -c %a _checksums) == 640 && ! -s stdout ]] || fail 'is no new file'
ln -s _checksums link
row 0 '' --script=fish checksums --output=link
same "$scripts/checksums.fish" _checksums
[[ -L link ]] || fail 'a link is replaced'
row 1 '' --diff "$description" nameless.json --output=changes
[[ -s changes && ! -s stdout ]] || fail 'changes are not in the file'
row 3 'zarn-vocabulary: nowhere.json: cannot be read' --man nowhere.json --output=_checksums
same "$scripts/checksums.fish" _checksums
row 3 "zarn-vocabulary: the file 'no/x' cannot be written: No such file or directory" --script=fish x --output=no/x
row 3 "zarn-vocabulary: the file '.' cannot be written: Is a directory" --script=fish x --output=.
# No device is named here: whoever runs this as root would lose it by a fault in the program.
mkfifo pipe
timeout 10 cat pipe >got &
row 0 '' --script=fish checksums --output=pipe
[[ -p pipe ]] || fail 'a pipe is replaced'
wait $! || fail 'nothing comes out of the pipe'
same "$scripts/checksums.fish" got
said=$(
    ulimit -f 0
    trap '' XFSZ
    "$program" --markdown "$description" --output=_checksums 2>&1
)
[[ $? == 3 && $said == "zarn-vocabulary: the file '_checksums' cannot be written: File too large" ]] || fail "a full disk: $said"
same "$scripts/checksums.fish" _checksums
"$program" --script=fish x >/dev/full 2>stderr
[[ $? == 3 && $(<stderr) == 'zarn-vocabulary: the standard output cannot be written: No space left on device' ]] || fail "a full output: $(<stderr)"
[[ -z $(find . -name '.zarn*') ]] || fail 'files are left behind'

((failures == 0)) && echo 'All checks passed.'
