# Completion of vyr's command line for fish. Commands, options and their values are read from vyr's own help, so they are
# those of the installed program.

# The command on the line so far; nothing where there is none yet.
function __vyr_command
    set -l words (commandline -opc)
    string match -v -- '-*' $words[2..-1] | head -n 1
end

# The commands of vyr, with what they do.
function __vyr_commands
    vyr --help | string match -rg '^  ([a-z]+) +(\S.*)$' | paste - -
end

# The help of the command on the line. That of "vyr rename" is short; all its options are in another one.
function __vyr_help
    set -l command (__vyr_command)
    if test "$command" = rename
        vyr help rename
    else
        vyr $command --help 2>/dev/null
    end
end

# The options of the command on the line, with what they do.
function __vyr_options
    __vyr_help |
        string match -rg '^  (?:-[a-z],)?(--[a-z0-9-]+)(?: \S+)* +(\S.*)?$' | paste - -
end

# The choices of the option before the cursor, such as a|b, one a line.
function __vyr_choices
    set -l option (commandline -opc)[-1]
    string match -q -- '--*' $option; or return 1
    set -l value (__vyr_help | string match -rg "^  (?:-[a-z],)?$option (\S+)")
    string match -q '*|*' -- $value; or return 1
    string split '|' -- $value | string match -r '^[a-z-]+$'
end

function __vyr_topics
    vyr help | string match -rg '^  vyr help ([a-z]+) +(\S.*)$' | paste - -
end

complete -c vyr -n 'test -z "$(__vyr_command)"' -f -a '(__vyr_commands)'
complete -c vyr -n 'test -z "$(__vyr_command)"' -f -a '--help --version'
complete -c vyr -n 'test -n "$(__vyr_command)"; and string match -q -- "-*" (commandline -ct)' -f -a '(__vyr_options)'
complete -c vyr -n '__vyr_choices >/dev/null' -f -a '(__vyr_choices)'
complete -c vyr -n 'test "$(__vyr_command)" = help' -f -a '(__vyr_topics; __vyr_commands)'
