# Completion of rippenscheibe-cli for bash: commands, options and the values of options are read from the
# tool's own help, so that they are those of the installed version.
_rippenscheibe_cli() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} help values
    COMPREPLY=()
    if [[ $COMP_CWORD -eq 1 ]]; then
        help=$("$1" --help 2>/dev/null)
        values=$(sed -n '/^Befehle:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p' <<<"$help")
        mapfile -t COMPREPLY < <(compgen -W "$values --help --version" -- "$word")
        return
    fi
    help=$("$1" "${COMP_WORDS[1]}" --help 2>/dev/null)
    values=$(sed -n "s/^  $before \([^ ]*|[^ ]*\).*/\1/p" <<<"$help")
    if [[ -n $values ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${values//|/ }" -- "$word")
    elif [[ $word == -* ]]; then
        values=$(sed -n 's/^  \(-h,\)\{0,1\}\(--\{0,1\}[a-z-]*\).*/\2/p' <<<"$help")
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word")
    else
        # Words that the command line takes as they stand, "lastfaelle neu", then files.
        values=$(sed -n '/^Angaben:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p' <<<"$help")
        if [[ $COMP_CWORD -eq 2 && -n $values ]]; then
            mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word")
            return
        fi
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _rippenscheibe_cli rippenscheibe-cli
