# Completion for bash. The command itself tells what may follow; where it proposes nothing, files are.
_coltre_calcolo() {
    mapfile -t COMPREPLY < <("$1" completa "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null)
    # Names such as Cirie' need quotation marks.
    if [ ${#COMPREPLY[@]} -gt 0 ]; then compopt -o filenames; fi
}
complete -o default -F _coltre_calcolo coltre-calcolo
