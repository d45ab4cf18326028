#!/usr/bin/env zsh
# Types lines into an interactive shell, presses TAB, and compares what stands there then.
# Usage: drive.zsh bash|zsh SCRIPTS TOOLS ROWS [LOADER]
# LOADER: what loads the scripts of bash when they are wanted.
emulate -R zsh
setopt extended_glob
zmodload zsh/zpty || exit 2

here=${0:A:h} shell=$1 scripts=${2:A} tools=$3 rows=${4:A} loader=$5
scratch=$(mktemp -d)
trap 'rm -rf $scratch' EXIT
cp $here/rc.zsh $scratch/.zshrc
mkdir $scratch/place && cd $scratch/place || exit 2
touch notes.txt 'my list.txt'

case $shell in
    bash) start="bash --noprofile --rcfile ${(q)here}/rc.bash -i" ;;
    zsh) start="zsh -d -i" ;;
esac
# Lines are never broken, and nobody's settings are read.
zpty -b shell "env -i PATH=${(q)tools}:/usr/bin:/bin TERM=dumb HOME=$scratch ZDOTDIR=$scratch \
    XDG_DATA_HOME=${(q)scripts} LC_ALL=C.UTF-8 COLUMNS=500 LOADER=${(q)loader} $start 2>&1"
zpty -r shell output '*READY*' || exit 2

integer failures=0 count=0
while IFS=$'\t' read -r typed expected; do
    [[ -n $typed && $typed != '#'* ]] || continue
    # The cursor stands at "^", or at the end.
    behind=${${(M)typed%\^*}#\^}
    zpty -w -n shell "${typed/\^/}${(pl:$#behind::\C-b:)}"$'\t\C-t\C-e\C-u'
    zpty -r shell output $'*LINE<*>END*' || exit 2
    found=${${output##*LINE<}%%>END*}
    (( ++count ))
    if [[ $found != $expected ]]; then
        print -r -- "FAILED: '$typed' and TAB give '$found', not '$expected'"
        (( ++failures ))
    fi
done <$rows
zpty -d shell
if [[ -n $(print -r -- $scratch/**/hit(N)) ]]; then
    print "FAILED: something on the line was executed"
    (( ++failures ))
fi
print "$count lines, $failures failures"
(( failures == 0 && count >= 24 ))
