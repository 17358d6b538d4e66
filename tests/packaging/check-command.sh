#!/usr/bin/env bash
# The manual page is valid, and it and the shell completion know every command and option that the tool has, and no other.
#
# usage: check-command.sh TOOL MANUAL COMPLETION
set -euo pipefail
[ $# -eq 3 ] || { echo "usage: $0 TOOL MANUAL COMPLETION" >&2; exit 2; }
tool=$1
manual=$2
status=0

# same NAME EXPECTED ACTUAL compares lists, one entry a line.
same() {
    [ "$2" = "$3" ] && return
    printf '%s:\n' "$1" >&2
    diff -u --label expected --label actual <(printf '%s\n' "$2") <(printf '%s\n' "$3") >&2 || status=1
}

commands() { "$tool" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p' | LC_ALL=C sort; }
options() { "$tool" "$@" --help | sed -n '/^Options:/,/^$/s/^ *\(-h,\)\?\(--[a-z-]*\).*/\2/p' | LC_ALL=C sort; }
found() { grep -oE -e "$1" | LC_ALL=C sort -u; }

mandoc -T lint -W warning "$manual" || status=1
page=$(mandoc -T ascii -O width=1000 "$manual" | sed 's/.\x08//g')
synopsis=$(sed -n '/^SYNOPSIS/,/^DESCRIPTION/p' <<<"$page")
same 'commands of the synopsis' "$(commands)" "$(sed -n 's/^ *imsxml \([a-z]\+\).*/\1/p' <<<"$synopsis" | LC_ALL=C sort)"
for command in $(commands); do
    listed=$( (grep -E "^ *imsxml $command( |$)" <<<"$synopsis"; echo --help) | found '--[a-z-]+')
    same "options of $command in the synopsis" "$(options "$command")" "$listed"
done
described=$(grep -E '^ +(-h, )?--[a-z-]+( [a-z]+)?( |$)' <<<"$page" | found '--[a-z-]+')
same 'options described' "$( (options; for command in $(commands); do options "$command"; done) | sort -u)" "$described"

# complete WORD... prints what is offered for the last word.
source "$3"
complete_words() {
    COMP_WORDS=("$tool" "$@")
    COMP_CWORD=$#
    COMPREPLY=()
    _imsxml "$tool"
    [ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort
}
complete -p imsxml >/dev/null || status=1
same 'first word' "$( (commands; options) | LC_ALL=C sort)" "$(complete_words '')"
same 'beginning of a command' convert "$(complete_words con)"
for command in $(commands); do
    same "options completed for $command" "$(options "$command")" "$(complete_words "$command" --)"
done
schemas=$("$tool" schemas | awk 'NR > 1 { print $2 }' | LC_ALL=C sort)
same 'schemas' "$schemas" "$(complete_words decode --schema '')"
same 'beginning of a schema' "$(grep ^re <<<"$schemas")" "$(complete_words convert --binder --schema re)"
same 'schemas behind --json' "$schemas" "$(complete_words schemas --json '')"
same 'content types' $'application/rlmi+xml\napplication/rls-services+xml' "$(complete_words validate --content-type application/rl)"
same 'formats' $'json\ntree' "$(complete_words decode --format '')"
same 'formats behind =' $'json\ntree' "$(complete_words decode --format =)"
same 'beginning of a format behind =' tree "$(complete_words decode --format = t)"
same 'lines behind =' faults "$(complete_words decode --log = f)"
same 'colours' $'always\nauto' "$(complete_words decode --color a)"
same 'seconds' '' "$(complete_words decode --timeout '')"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
touch "$work/a document.xml" "$work/b.xml"
same 'files' "$work/a document.xml" "$(complete_words decode --format tree "$work/a")"
same 'more files' "$work/b.xml" "$(complete_words convert "$work/a document.xml" "$work/b")"
exit "$status"
