# Completion of tarvexctl for bash.

_tarvexctl() {
    local word=${COMP_WORDS[COMP_CWORD]} last=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]} options
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W 'colour macros used align statement key raw --help --version' -- "$word")
        return
    fi
    case $last in
    --as)
        mapfile -t COMPREPLY < <(compgen -W 'joystick macro template' -- "$word")
        return
        ;;
    --joystick)
        mapfile -t COMPREPLY < <(compgen -W 'f22 flcs pfcs topgun fcs' -- "$word")
        return
        ;;
    --indent) return ;;
    esac
    case $command in
    colour) options='--as --ini --json --ansi --html --rtf --help' ;;
    macros | used | statement) options='--json --help' ;;
    align) options='--indent --help' ;;
    key) options='--all --shift --ctrl --alt --numlock --joystick --no-shf --extended --json --help' ;;
    raw) options='--json --help' ;;
    *) return ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    elif [[ $command != key && $command != raw ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _tarvexctl tarvexctl
