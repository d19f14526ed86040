# Completion of styleconv for fish. Commands and options are those that the installed tool tells of itself.

function __styleconv_command
    set -l words (commandline -opc)
    test (count $words) -ge 2; and echo $words[2]
end

function __styleconv_commands
    styleconv --help 2>/dev/null | sed -n '/^Commands:/,$s/^  \([a-z]*\)  *\(.*\)/\1\t\2/p'
end

function __styleconv_options
    styleconv (__styleconv_command) --help 2>/dev/null | grep -oE '^ +(-[a-z],)?--[a-z0-9-]+' | grep -oE -- '--[a-z0-9-]+'
end

# The word before the one that is being typed.
function __styleconv_previous
    set -l words (commandline -opc)
    test (count $words) -gt 2; and echo $words[-1]
end

function __styleconv_choices
    set -l previous (__styleconv_previous)
    string match -q -- '--*' $previous; or return 1
    set -l choices (styleconv (__styleconv_command) --help 2>/dev/null |
        sed -n "s/.*$previous [A-Z]*:{\([a-z,]*\)}.*/\1/p" | string split ,)
    test (count $choices) -gt 0; and string join \n -- $choices
end

complete -c styleconv -n 'not __styleconv_command' -f -a '(__styleconv_commands) --help --version'
complete -c styleconv -n '__styleconv_command; and test (__styleconv_previous)x = --shapesx' -f \
    -a '(__fish_complete_directories)'
complete -c styleconv -n '__styleconv_command; and __styleconv_choices' -f -a '(__styleconv_choices)'
complete -c styleconv -n '__styleconv_command; and string match -q -- "-*" (commandline -ct)' -f \
    -a '(__styleconv_options)'
