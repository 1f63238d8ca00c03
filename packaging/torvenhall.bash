# shellcheck shell=bash
# What torvenhall's options are completed to, for bash-completion.
_torvenhall() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    compopt -o filenames 2>/dev/null
    COMPREPLY=()
    case $before in
    --data | --tour) mapfile -t COMPREPLY < <(compgen -d -- "$current") ;;
    --record) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    --scale) mapfile -t COMPREPLY < <(compgen -W "1 1.5 2 3 4" -- "$current") ;;
    --font-size) ;;
    *)
        if [[ $current == -* && $before != --show ]]; then
            mapfile -t COMPREPLY < <(compgen -W "--scale --still --data --tour --show
                --font-size --record --help --version" -- "$current")
        else # a saved game
            mapfile -t COMPREPLY < <(compgen -f -X '!*.[Qq][Vv][Ss]' -- "$current"
                compgen -d -- "$current")
        fi
        ;;
    esac
}
complete -F _torvenhall torvenhall
