#!/usr/bin/env fish
# Asks fish for what may follow on lines, and compares. Usage: drive.fish SCRIPTS TOOLS ROWS

set -l scripts $argv[1]
set -x PATH (string split : $argv[2]) /usr/bin /bin
set -l rows (cat $argv[3])
set -l scratch (mktemp -d)
cd $scratch
touch notes.txt 'my list.txt'
source $scripts/checksums.fish
source $scripts/peculiar.fish

set -l failures 0
set -l count 0
for row in $rows
    string match -q '#*' -- $row; and continue
    set -l fields (string split \t -- $row)
    set -l found (complete -C $fields[1] | string replace \t ': ' | string join '|')
    set count (math $count + 1)
    if test "$found" != "$fields[2]"
        echo "FAILED: '$fields[1]' and TAB give '$found', not '$fields[2]'"
        set failures (math $failures + 1)
    end
end
if test -e hit
    echo "FAILED: something on the line was executed"
    set failures (math $failures + 1)
end
rm -r $scratch
echo "$count lines, $failures failures"
test $failures -eq 0 -a $count -ge 18
