# Prints what zsh completes lines to: complete.zsh COMPLETIONS LINE...
# Behind each line, which stands there with "== " in front, come the words. A shell on a terminal of
# its own gets the lines and the Tab key; what its completion offers is printed as well.
zmodload zsh/zpty || exit 9
zpty shell zsh -f -i
zpty -w shell 'PROMPT=; stty -echo'
zpty -w shell "fpath=(${(q)1} \$fpath); autoload -Uz compinit; compinit -u -D"
zpty -w shell 'compadd () {
    if [[ ${@[1,(i)(-|--)]} != *-(O|A|D)\ * ]]; then
        local -a hits
        builtin compadd -A hits "$@"
        (( $#hits )) && print -rl -- "HIT:"${^hits}
    fi
    builtin compadd "$@"
}'
# Said once the line editor has the terminal: what is typed before would be the terminal's to edit.
zpty -w shell 'zle-line-init () { print REA""DY }; zle -N zle-line-init'
zpty -w shell "bindkey '^I' complete-word; unsetopt auto_menu; LISTMAX=10000"
repeat 2; do
    zpty -r shell output '*READY*' || exit 8
done
for line in "${@:2}"; do
    zpty -w shell "$line"$'\t\C-u'
    zpty -r shell output '*READY*' || exit 7
    print -r -- "== $line"
    print -r -- "$output" | tr -d '\r' | sed -n 's/^.*HIT://p'
done
zpty -d shell
