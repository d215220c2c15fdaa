# Prints what bash completes lines to: complete.bash COMPLETIONS LINE...
# Behind each line, which stands there with "== " in front, come the words.
. /usr/share/bash-completion/bash_completion
. "$1/cmped.bash"
. "$1/cmped-cli.bash"

for COMP_LINE in "${@:2}"; do
    COMP_POINT=${#COMP_LINE}
    read -ra COMP_WORDS <<<"$COMP_LINE"
    [[ $COMP_LINE == *' ' ]] && COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMP_TYPE=9
    COMPREPLY=()
    function=$(complete -p "${COMP_WORDS[0]}" | sed 's/.*-F \([^ ]*\).*/\1/')
    "$function"
    echo "== $COMP_LINE"
    printf '%s\n' "${COMPREPLY[@]}"
done
