# Completion of vantor-recovery-cli's options, their values, and the media of this machine.
_vantor_recovery_cli() {
    local cur prev words cword
    _init_completion -n @ || return

    case $prev in
        --mode)
            COMPREPLY=($(compgen -W 'photo video rawfile' -- "$cur"))
            return
            ;;
        --save | --catalogue)
            _filedir -d
            return
            ;;
        --reference | --session | --resume)
            _filedir
            return
            ;;
        --language)
            COMPREPLY=($(compgen -W 'en de fr es it pt_BR nl pl ja zh_CN' -- "$cur"))
            return
            ;;
        --names)
            COMPREPLY=($(compgen -W 'original found' -- "$cur"))
            return
            ;;
        --folders)
            COMPREPLY=($(compgen -W 'card type date' -- "$cur"))
            return
            ;;
        --types)
            # The last of a list; what stands before it stays.
            local mode=rawfile chosen= i types
            for ((i = 1; i < cword; i++)); do
                [[ ${words[i]} == --mode ]] && mode=${words[i + 1]}
            done
            [[ $cur == *,* ]] && chosen=${cur%,*},
            types=$("$1" --mode "$mode" --list-types 2>/dev/null | sed 's/ .*//')
            COMPREPLY=($(compgen -P "$chosen" -W "$types" -- "${cur##*,}"))
            # The shell takes what stands behind an @ for a word of its own.
            if [[ $cur == *@* && $COMP_WORDBREAKS == *@* ]]; then
                COMPREPLY=("${COMPREPLY[@]#"${cur%"${cur##*@}"}"}")
            fi
            compopt -o nospace
            return
            ;;
        --range | --min-bytes | --min-pixels)
            return
            ;;
    esac

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--help --version --language --mode --types --range --no-thorough --catalogue
            --save --as-published --report --names --folders --lost-only --by-date --min-bytes --min-pixels --keep-duplicates
            --skip-unsound --parts
            --retry-bad
            --session --resume
            --map
            --image --scrape
            --complete
            --repair-movies --reference
            --list-json --list-media --list-files --list-types
            --quiet' -- "$cur"))
        return
    fi

    # An image file, or a medium by its identifier.
    _filedir
    local media
    media=$("$1" --list-media --list-json 2>/dev/null | sed -n 's/.*"identifier":"\([^"]*\)".*/\1/p')
    COMPREPLY+=($(compgen -W "$media" -- "$cur"))
} && complete -F _vantor_recovery_cli vantor-recovery-cli
