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
    local help value=
    help=$("$1" $command --help 2>/dev/null)
    if [[ -z $command && $cur != -* ]]; then
        COMPREPLY=($(compgen -W "$(sed -n '/^Subcommands:/,$s/^  \([a-z][a-z]*\) .*/\1/p' <<<"$help")" -- "$cur"))
        return
    fi
    # What stands behind an option in the help is its value: a choice such as a|b, or what it holds, in capitals.
    [[ $prev != --* ]] || value=$(sed -nE "s/^  (-[a-z],)?$prev ([^ ]*).*/\2/p" <<<"$help")
    case $value in
    *'|'*)
        COMPREPLY=($(compgen -W "${value//|/ }" -- "$cur"))
        return
        ;;
    FILE | FOLDER | '') ;;
    *) return ;;
    esac
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$(sed -nE 's/^  (-[a-z],)?(--[a-z0-9-]+).*/\2/p' <<<"$help")" -- "$cur"))
    elif [[ $value == FILE || $value == FOLDER ]] ||
        grep -qE '^  (PATH|FROM|SOURCE|FOLDER|WHERE)' <<<"$help"; then
        _filedir
    fi
} && complete -F _vyr vyr
