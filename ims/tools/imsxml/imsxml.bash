# Completion of the command imsxml. It needs nothing but bash.

_imsxml() {
    local word=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]}
    # "=" is a word of its own: --format=tree arrives as three.
    if [ "$word" = = ]; then
        word=''
        option+='='
    elif [ "$option" = = ]; then
        option=${COMP_WORDS[COMP_CWORD - 2]}=
    fi
    # What stands behind --log alone is a file.
    [ "$option" != --log= ] || { mapfile -t COMPREPLY < <(compgen -W 'all faults' -- "$word"); return; }
    case ${option%=} in
        --schema | --json)
            mapfile -t COMPREPLY < <(compgen -W "$("$1" schemas 2>/dev/null | awk 'NR > 1 { print $2 }')" -- "$word")
            return
            ;;
        --content-type)
            mapfile -t COMPREPLY < <(compgen -W "$("$1" schemas 2>/dev/null |
                awk 'NR > 1 && $5 != "-" { gsub(",", "\n", $5); print $5 }')" -- "$word")
            return
            ;;
        --format) mapfile -t COMPREPLY < <(compgen -W 'json tree' -- "$word"); return ;;
        --profile) mapfile -t COMPREPLY < <(compgen -W 'device standard' -- "$word"); return ;;
        --color) mapfile -t COMPREPLY < <(compgen -W 'auto always never' -- "$word"); return ;;
        --timeout) COMPREPLY=(); return ;;
    esac

    local command='' earlier words
    for earlier in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $earlier in
            -*) ;;
            *) command=$earlier; break ;;
        esac
    done
    case $command in
        '') words='decode convert encode lost diff validate namespaces schemas --help --version' ;;
        decode) words='--schema --content-type --sip --binder --format --color --log --leaks --profile --timeout --help' ;;
        convert) words='--schema --content-type --binder --strict --log --leaks --profile --timeout --help' ;;
        encode) words='--schema --log --leaks --profile --timeout --help' ;;
        lost) words='--schema --content-type --binder --log --leaks --profile --timeout --help' ;;
        validate) words='--schema --content-type --log --leaks --timeout --help' ;;
        namespaces) words='--log --leaks --profile --timeout --help' ;;
        schemas) words='--long --json --help' ;;
        *) words='--help' ;;
    esac
    if [ -z "$command" ] || [ "${word:0:1}" = - ] || [ "$command" = schemas ]; then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}

complete -F _imsxml imsxml
