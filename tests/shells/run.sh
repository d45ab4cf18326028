#!/bin/bash
# Completes lines of the tools in a real shell. Usage: run.sh bash|bash-completion|fish|zsh SCRIPTS TOOLS
# TOOLS: directories, separated by ':'. Ends with 77 when what it takes is not installed; with CI=true
# in the environment that is a failure.
set -u

shell=$1
scripts=$2
tools=$3
here=$(dirname "$(realpath "$0")")
loader=/usr/share/bash-completion/bash_completion

require() {
    if ! type "$1" >/dev/null 2>&1 && [[ ! -e $1 ]]; then
        echo "$1 is not installed: $shell is not tried"
        [[ ${CI-} == true ]] && exit 1
        exit 77
    fi
}

if [[ $shell == fish ]]; then
    require fish
    exec fish --no-config "$here/drive.fish" "$scripts" "$tools" "$here/fish.rows"
fi
require zsh  # which plays the terminal for bash as well
case $shell in
    bash) exec zsh "$here/drive.zsh" bash "$scripts" "$tools" "$here/bash.rows" ;;
    bash-completion)
        require "$loader"
        exec zsh "$here/drive.zsh" bash "$scripts" "$tools" "$here/bash.rows" "$loader"
        ;;
    zsh) exec zsh "$here/drive.zsh" zsh "$scripts" "$tools" "$here/zsh.rows" ;;
esac
