# Completion of styleconv for fish. Commands and options are those that the installed tool tells of itself.

function __styleconv_command
    set -l words (commandline -opc)
    test (count $words) -ge 2; and echo $words[2]
end

function __styleconv_commands
    styleconv --help 2>/dev/null | sed -n '/^Commands:/,$s/^  \([a-z]*\)  *\(.*\)/\1\t\2/p'
end

function __styleconv_options
    styleconv (__styleconv_command) --help 2>/dev/null | grep -oE '^ +(-[a-z],)?--[a-z-]+' | grep -oE -- '--[a-z-]+'
end

complete -c styleconv -n 'not __styleconv_command' -f -a '(__styleconv_commands)'
complete -c styleconv -n '__styleconv_command; and string match -q -- "-*" (commandline -ct)' -f \
    -a '(__styleconv_options)'
