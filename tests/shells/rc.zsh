# What an interactive zsh reads that is driven by a test.
PS1=READY
setopt no_beep no_list_beep no_prompt_cr no_prompt_sp
fpath=($XDG_DATA_HOME $fpath)
autoload -Uz compinit && compinit -u -D
zstyle ':completion:*' list-prompt ''
show_line() { printf '\nLINE<%s>END\n' "$BUFFER" }
zle -N show_line
bindkey '^T' show_line
bindkey '^U' kill-whole-line
bindkey '^I' complete-word
