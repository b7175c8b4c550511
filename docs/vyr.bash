# Completion of vyr's command line for bash. Commands, options and their values are read from vyr's own help, so they
# are those of the installed program.

# The words that the help in $1 names for the values of option $2, such as "today, yesterday, ... or FROM..TO".
_vyr_words()
{
    awk -v option="$2" '$1 == option { on = 1; print; next } on && /^          / { print; next } { on = 0 }' <<<"$1" |
        tr -s ' \n' ' ' | sed -E 's/ \([^)]*\)//g; s/^( *--set LIST Set |.*they are |[^:]*: )//; s/,? or .*//' | tr -d ,
}

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
    # The help of "vyr rename" is short; all its options are in another one.
    if [[ $command == rename ]]; then
        help=$("$1" help rename 2>/dev/null)
    else
        help=$("$1" $command --help 2>/dev/null)
    fi
    if [[ -z $command && $cur != -* ]]; then
        COMPREPLY=($(compgen -W "$(sed -n '/^Subcommands:/,$s/^  \([a-z][a-z]*\) .*/\1/p' <<<"$help")" -- "$cur"))
        return
    fi
    if [[ $command == help ]]; then
        COMPREPLY=($(compgen -W "$("$1" help | sed -n 's/^  vyr help \([a-z]*\) .*/\1/p'
            "$1" --help | sed -n '/^Subcommands:/,$s/^  \([a-z][a-z]*\) .*/\1/p')" -- "$cur"))
        return
    fi
    # What stands behind an option in the help is its value: a choice such as a|b, or what it holds, in capitals.
    [[ $prev != --* ]] || value=$(sed -nE "s/^  (-[a-z],)?$prev ([^ ]*).*/\2/p" <<<"$help")
    case $value in
    *'|'*)
        COMPREPLY=($(compgen -W "${value//|/ }" -- "$cur"))
        return
        ;;
    RANGE | LIST | COLUMN)
        local option=$prev first=
        case $prev in
        --created | --taken) option=--modified ;;
        --clear) option=--set ;;
        --sort) option=--columns ;;
        esac
        # Behind a comma another one of a list begins.
        [[ $value != LIST || $cur != *,* ]] || first=${cur%,*},
        COMPREPLY=($(compgen -P "$first" -W "$(_vyr_words "$help" "$option")" -- "${cur#"$first"}"))
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
