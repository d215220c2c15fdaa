# Completion of cmped for bash, with the functions of bash-completion.

_cmped()
{
    local cur prev words cword split
    _init_completion -s || return

    case $prev in
        --game)
            _filedir -d
            return
            ;;
        --encoding)
            COMPREPLY=($(compgen -W 'UTF-8 Windows-1250 Windows-1251 Windows-1252 Windows-1253
                Windows-1254 Windows-1257 ISO-8859-1 ISO-8859-2 ISO-8859-5 ISO-8859-15 KOI8-R
                KOI8-U GB18030 Big5 EUC-KR Shift_JIS' -- "$cur"))
            return
            ;;
    esac
    $split && return

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--game --encoding --help --version' -- "$cur"))
    else
        _filedir e3c
    fi
} &&
    complete -F _cmped cmped
