# Completion of tarvonel-json for bash. The words come from --help, so that they are always those of the program.
_tarvonel_json()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=() word words
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $word == -* ]] || { command=("$word") && break; }
    done
    case $previous in
        --output) words='text json' ;;
        --fail-on) words='fatal failure skipped any' ;;
        *)
            if [[ $current == -* ]]; then
                words=$("$1" "${command[@]}" --help 2>/dev/null |
                    grep -oE '^ +(-[a-zA-Z],)?--[a-z-]+' | grep -oE -- '--[a-z-]+')
            elif ((${#command[@]} == 0)) || [[ ${command[0]} == help ]]; then
                words=$("$1" --help 2>/dev/null | sed -nE '/^Subcommands:/,/^$/s/^  ([a-z]+) .*/\1/p')
            else
                return # file names, see below
            fi
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -o bashdefault -o default -F _tarvonel_json tarvonel-json
