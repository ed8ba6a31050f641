# bash completion for print-panels                          -*- shell-script -*-
# The options come from the program's own --help; the arguments of those
# that take one are completed here.

_print_panels_queue_from_line()
{
    local i
    for ((i = 1; i < ${#COMP_WORDS[@]} - 1; i++)); do
        if [[ ${COMP_WORDS[i]} == --printer ]]; then
            printf '%s\n' "${COMP_WORDS[i + 1]%%/*}"
            return
        fi
    done
}

_print_panels()
{
    local cur prev words cword
    # '=' stays inside a word: -o KEY=VALUE is completed as one.
    _init_completion -n = || return

    case $prev in
        --ppd)
            _filedir '@(ppd|PPD|ppd.gz)'
            return
            ;;
        --printer)
            local queues
            queues=$(lpstat -e 2>/dev/null)
            COMPREPLY=($(compgen -W "$queues" -- "$cur"))
            return
            ;;
        --bundle)
            _filedir -d
            return
            ;;
        --print)
            _filedir
            return
            ;;
        --server)
            return
            ;;
        -o)
            # The queue's PPD options (lpoptions -l) and the job settings
            # every queue takes; after '=', the option's choices.
            local queue
            queue=$(_print_panels_queue_from_line)
            if [[ $cur == *=* ]]; then
                local key=${cur%%=*} choices=""
                [[ -n $queue ]] && choices=$(lpoptions -p "$queue" -l 2>/dev/null |
                    awk -F': ' -v key="$key" '{ split($1, k, "/") } k[1] == key { gsub(/\*/, "", $2); print $2 }')
                # Readline replaces only what follows the '='.
                COMPREPLY=($(compgen -W "$choices" -- "${cur#*=}"))
            else
                local keys="copies= page-ranges= number-up= orientation-requested= sides= media= job-sheets="
                [[ -n $queue ]] && keys+=" $(lpoptions -p "$queue" -l 2>/dev/null | awk -F'/' '{ print $1 "=" }')"
                COMPREPLY=($(compgen -W "$keys" -- "$cur"))
                compopt -o nospace
            fi
            return
            ;;
    esac

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '$(_parse_help "$1")' -- "$cur"))
        return
    fi
    _filedir
} &&
    complete -F _print_panels print-panels

# ex: filetype=sh
