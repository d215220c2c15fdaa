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
zpty -w shell "bindkey '^I' complete-word; unsetopt auto_menu; LISTMAX=10000; print REA''DY"
zpty -r shell output '*READY*' || exit 8
for line in "${@:2}"; do
    zpty -n -w shell "$line"$'\t\C-u'
    zpty -w shell "print DO''NE"
    zpty -r shell output '*DONE*' || exit 7
    print -r -- "== $line"
    print -r -- "$output" | tr -d '\r' | sed -n 's/^.*HIT://p'
done
zpty -d shell
