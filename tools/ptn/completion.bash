# Completion of ptn for bash. Commands, options and types of items are those that ptn itself tells.

# The first words of the indented lines below a heading of its help.
_ptn_listed()
{
    sed -n "/^$1/,/^\$/s/^  \([a-z][a-z-]*\) .*/\1/p"
}

_ptn()
{
    local program=$1 current=$2 words=
    local command=${COMP_WORDS[1]}
    COMPREPLY=()
    if [ "$COMP_CWORD" -gt 1 ] && [[ $current == -* ]]; then
        words=$("$program" "$command" --help 2>/dev/null | sed -n 's/^  \(-[^ ]*\).*/\1/p' | tr , ' ')
    elif [[ $current == -* ]]; then
        words='--help --version'
    elif [ "$COMP_CWORD" = 1 ]; then
        words=$("$program" --help 2>/dev/null | _ptn_listed Subcommands:)
    elif [ "$command" = help ] && [ "$COMP_CWORD" = 2 ]; then
        words="attributes editions links $("$program" --help 2>/dev/null | _ptn_listed Subcommands:)"
    elif [ "$command" = help ] && [ "${COMP_WORDS[2]}" = attributes ]; then
        words=$("$program" help attributes 2>/dev/null | _ptn_listed Types)
    else
        return # files and folders
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -o bashdefault -o default -F _ptn ptn
