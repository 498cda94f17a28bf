# Completion of vantor-recovery-cli's options, their values, and the media of this machine.
_vantor_recovery_cli() {
    local cur prev words cword
    _init_completion || return

    case $prev in
        --mode)
            COMPREPLY=($(compgen -W 'photo video rawfile' -- "$cur"))
            return
            ;;
        --save | --catalogue)
            _filedir -d
            return
            ;;
        --reference)
            _filedir
            return
            ;;
        --types | --range | --min-bytes | --min-pixels)
            return
            ;;
    esac

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--help --version --mode --types --range --no-thorough --catalogue
            --save --as-published --report --by-date --min-bytes --min-pixels --keep-duplicates
            --skip-unsound --complete --repair-movies --reference --list-json --list-media' -- "$cur"))
        return
    fi

    # An image file, or a medium by its identifier.
    _filedir
    local media
    media=$("$1" --list-media --list-json 2>/dev/null | sed -n 's/.*"identifier":"\([^"]*\)".*/\1/p')
    COMPREPLY+=($(compgen -W "$media" -- "$cur"))
} && complete -F _vantor_recovery_cli vantor-recovery-cli
