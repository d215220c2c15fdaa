# Completion of cmped-cli for bash, with the functions of bash-completion.

# The words behind the command that are arguments: none of its options and none of their values.
_cmped_cli_arguments()
{
    local i count=0
    for ((i = $1 + 1; i < cword; i++)); do
        case ${words[i]} in
            --format | --size) ((i++)) ;;
            --*) ;;
            *) ((count++)) ;;
        esac
    done
    echo "$count"
}

_cmped_cli()
{
    local cur prev words cword split
    _init_completion -s || return

    local command='' place=0 i program=("${words[0]}")
    for ((i = 1; i < cword; i++)); do
        case ${words[i]} in
            --game | --encoding)
                program+=("${words[i]}" "${words[i + 1]/#~\//$HOME/}")
                ((i++))
                ;;
            --*) program+=("${words[i]}") ;;
            *)
                command=${words[i]}
                place=$i
                break
                ;;
        esac
    done

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
        --format)
            COMPREPLY=($(compgen -W 'po xliff csv txt' -- "$cur"))
            return
            ;;
        --size)
            COMPREPLY=($(compgen -W '64 128 256 512' -- "$cur"))
            return
            ;;
    esac
    $split && return

    if [[ -z $command ]]; then
        if [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W '--game --encoding --help --version' -- "$cur"))
        else
            COMPREPLY=($(compgen -W 'dump resave check export-texts import-texts export-maps
                refresh-maps render tables list extract region' -- "$cur"))
        fi
        return
    fi

    if [[ $cur == -* ]]; then
        local options=--help
        case $command in
            export-texts) options+=' --format' ;;
            import-texts) options+=' --format --force' ;;
            render) options+=' --size' ;;
        esac
        COMPREPLY=($(compgen -W "$options" -- "$cur"))
        return
    fi

    case $command:$(_cmped_cli_arguments "$place") in
        check:*) _filedir '@(e3c|e3m)' ;;
        dump:0 | resave:[01] | export-texts:0 | import-texts:[02] | export-maps:0) _filedir e3c ;;
        refresh-maps:[02] | render:0) _filedir e3c ;;
        export-texts:1 | import-texts:1) _filedir '@(po|pot|xlf|xliff|csv|txt)' ;;
        export-maps:1 | refresh-maps:1) _filedir -d ;;
        render:1 | region:4) _filedir png ;;
        extract:0)
            COMPREPLY=($(compgen -W "$("${program[@]}" list 2>/dev/null | cut -f 1)" -- "$cur"))
            ;;
        extract:1) _filedir ;;
        region:2) COMPREPLY=($(compgen -W '0 1 2' -- "$cur")) ;;
        region:3) COMPREPLY=($(compgen -W '0 1 2 3 4 5 6 7' -- "$cur")) ;;
    esac
} &&
    complete -F _cmped_cli cmped-cli
