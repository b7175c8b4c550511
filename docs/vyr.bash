# Completion of vyr's command line for bash. Commands, options and their values are read from vyr's own help, so they
# are those of the installed program.

_vyr()
{
    local cur prev words cword
    _init_completion || return

    local word command=
    for word in "${words[@]:1:cword-1}"; do
        if [[ $word != -* ]]; then
            command=$word
            break
        fi
    done
    if [[ -z $command && $cur != -* ]]; then
        local commands
        commands=$("$1" --help 2>/dev/null | sed -n '/^Subcommands:/,$s/^  \([a-z]*\) .*/\1/p')
        COMPREPLY=($(compgen -W "$commands" -- "$cur"))
        return
    fi

    local help value
    help=$("$1" $command --help 2>/dev/null)
    # The word behind an option in the help is its value: a choice such as a|b, or the value's name in capitals.
    [[ $prev != --* ]] || value=$(sed -n "s/^ *$prev \([A-Za-z:|]*\)  .*/\1/p" <<<"$help")
    case $value in
    *'|'*) COMPREPLY=($(compgen -W "${value//|/ }" -- "$cur")) ;;
    FILE | FOLDER | '') if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$(sed -nE 's/^ +(-[a-z],)?(--[a-z0-9-]+).*/\2/p' <<<"$help")" -- "$cur"))
    else
        _filedir
    fi ;;
    esac
} && complete -F _vyr vyr
