# What an interactive bash reads that is driven by a test.
PS1='READY'
bind 'set enable-bracketed-paste off'
bind 'set bell-style none'
bind 'set page-completions off'
bind 'set completion-query-items 0'
show_line() { printf '\nLINE<%s>END\n' "$READLINE_LINE"; }
bind -x '"\C-t": show_line'
if [[ -n $LOADER ]]; then
    source "$LOADER" # which finds the scripts when they are wanted
else
    source "$XDG_DATA_HOME/bash-completion/completions/checksums"
    source "$XDG_DATA_HOME/bash-completion/completions/peculiar"
fi
