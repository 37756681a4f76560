# Completion of vantrelctl for bash.
_vantrelctl() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]:-} choices=
    COMPREPLY=()
    case $before in
    --overwrite) choices='never always ask' ;;
    --mode) choices='bsc hispeed' ;;
    --lang) choices='English Japanese System' ;;
    --folder | --history)
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        return
        ;;
    --robot)
        local IFS=$'\n'
        mapfile -t COMPREPLY < <(compgen -W "$(vantrelctl robots 2>/dev/null | cut -f 1)" -- "$word")
        # A name with blanks is one word.
        [ ${#COMPREPLY[@]} -eq 0 ] || mapfile -t COMPREPLY < <(printf '%q\n' "${COMPREPLY[@]}")
        return
        ;;
    --report)
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
        ;;
    --port | --address | --parallel | --timeout | --version | --most) return ;;
    esac
    if [ -n "$choices" ]; then
        mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$word")
        return
    fi
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W 'robots list get put delete get-vars put-vars jobs-run vars-run call doctor backup history --help' -- "$word")
        return
    fi
    if [ "$command $COMP_CWORD" = 'history 2' ]; then
        mapfile -t COMPREPLY < <(compgen -W 'log restore --help' -- "$word")
        return
    fi
    choices='--help --json --lang --robot --all-robots --mode --port --address --parallel --timeout'
    case $command in
    robots) choices+=' --check' ;;
    get | put) choices+=' --folder --keep-going --dry-run --overwrite' ;;
    delete) choices+=' --keep-going --dry-run' ;;
    get-vars) choices+=' --folder --dry-run --overwrite' ;;
    put-vars) choices+=' --folder --keep-going --dry-run' ;;
    backup) choices+=' --history --report' ;;
    history)
        if [ "${COMP_WORDS[2]}" = log ]; then
            choices='--help --json --lang --robot --history --most'
        else
            choices+=' --folder --dry-run --overwrite --history --version'
        fi
        ;;
    call) choices+=' --folder --dry-run --overwrite' ;;
    *-run) choices+=' --send --receive --folder --keep-going --dry-run --overwrite' ;;
    esac
    if [ "$command $COMP_CWORD" = 'call 2' ]; then
        choices+=" $(vantrelctl call '' 2>&1 >/dev/null | sed -n 's/^  \([^ ]*\).*/\1/p')"
        mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$word")
        return
    fi
    case $word in
    -*) mapfile -t COMPREPLY < <(compgen -W "$choices" -- "$word") ;;
    *) [[ $command != put && $command != *-vars && $command != *-run ]] || mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    esac
}
complete -F _vantrelctl vantrelctl
