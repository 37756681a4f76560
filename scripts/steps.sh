# shellcheck shell=bash
# Says in a line what a step does, and keeps its output in a log that is shown only when it fails.
# Sourced by ./run, ./test, ./test-windows and what they call.

# logged LOG WHAT COMMAND [ARGUMENT]...
# Not inside a condition: there a function goes on after a step that failed.
logged() {
    local log=$1 what=$2 status
    shift 2
    mkdir -p "$(dirname "$log")"
    echo "$what (output in $log) ..."
    set +e
    (
        set -e
        printf '\n== %s\n' "$what"
        "$@"
    ) >>"$log" 2>&1
    status=$?
    set -e
    [ "$status" -ne 0 ] || return 0
    tail -n 60 "$log" >&2
    echo "$what: failed. The whole output is in $log." >&2
    return "$status"
}

# Begins a log anew.
new_log() {
    mkdir -p "$(dirname "$1")"
    : >"$1"
}

# configure_and_build PRESET
configure_and_build() {
    cmake --preset "$1" && cmake --build --preset "$1"
}
