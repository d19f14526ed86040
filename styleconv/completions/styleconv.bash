# Completion of styleconv for bash. Commands and options are those that the installed tool tells of itself.

_styleconv_options() {
    "$1" ${2:+"$2"} --help 2>/dev/null | grep -oE '^ +(-[a-z],)?--[a-z0-9-]+' | grep -oE -- '--[a-z0-9-]+'
}

_styleconv() {
    local tool=$1 current=$2 previous=$3 command=${COMP_WORDS[1]}
    COMPREPLY=()
    if [[ $COMP_CWORD -eq 1 ]]; then
        local commands
        commands=$("$tool" --help 2>/dev/null | sed -n '/^Commands:/,$s/^  \([a-z]*\) .*/\1/p')
        mapfile -t COMPREPLY < <(compgen -W "$commands --help --version" -- "$current")
        return
    fi
    if [[ $previous == --shapes ]]; then
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        return
    fi
    local choices=
    if [[ $previous == --* ]]; then
        choices=$("$tool" "$command" --help 2>/dev/null | sed -n "s/.*$previous [A-Z]*:{\([a-z,]*\)}.*/\1/p")
    fi
    if [[ -n $choices ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${choices//,/ }" -- "$current")
    elif [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_styleconv_options "$tool" "$command")" -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}

complete -o filenames -F _styleconv styleconv
