# shellcheck shell=bash
# A trial of the real program on a display: sourced by the scripts that play what an operator does.
#   trial_start BUILD_FOLDER WORK_FOLDER   lays out a fresh trial folder, starts the program, lets it
#                                          read the controller's file list and activates its window
#   trial_close                            closes it as an operator does; it has to end well
source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

title='Vantrel  -- Hispeed Link --'

trial_lay_out() {
    rm -rf "$2"
    mkdir -p "$2"
    work=$(cd "$2" && pwd)
    screenshots=$work
    trial=$work/trial
    cmake --install "$1" --prefix "$trial" >"$work/install.log"
    jobs=$trial/jobs
    controller=$trial/controllers/line1-weld
}

# Behind the progress window the lists are filled anew, with another selection.
progress_ends() {
    until_true "the progress window to close" is_gone 'File transfer'
    until_true "the lists to be filled" is_settled "$main"
}

launch() {
    env LC_ALL=C.UTF-8 "${launcher:-$trial/Vantrel}" >"$work/program.log" 2>&1 &
    program=$!
}

trial_start() {
    launch
    trap 'kill "$program" 2>/dev/null || true' EXIT
    answer Vantrel alt+y
    until_true "the version window" is_shown "About Vantrel"
    until_true "the main window" is_shown "$title"
    main=$window
    # The version window is put before the main one, and may be gone for a moment meanwhile.
    until_true "the windows to be painted" is_still "$main"
    until_true "the version window to close" closes Escape is_shown "About Vantrel"
    activate "$main"
    until_true "the main window to be ready" is_settled "$main"
}

trial_close() {
    activate "$main"
    keys alt+F4
    activate_question Vantrel
    keys Return
    until_true "the program to end" has_ended
    local status=0
    wait "$program" || status=$?
    trap - EXIT
    [ "$status" -eq 0 ] || { cat "$work/program.log"; give_up "the program ended with $status"; }
}

# Rows of the panes, from 0: the PC pane shows folders, then jobs by name; the controller's pane jobs
# by name.
row_of() {
    local folders
    folders=$(find "$jobs" -mindepth 1 -maxdepth 1 -type d | wc -l)
    printf '%s\n' $((folders + $(cd "$jobs" && printf '%s\n' *.JBI | sort -f | grep -n "^$1\$" | cut -d: -f1) - 1))
}
controller_row_of() {
    printf '%s\n' $(($(cd "$controller" && printf '%s\n' *.JBI | sort -f | grep -n "^$1\$" | cut -d: -f1) - 1))
}
repeat() { local i; for ((i = 0; i < $1; i++)); do printf '%s ' "$2"; done; }

# Panes of the window at its place in the trial, in pixels from its corner.
# A press on a frame gives its list the focus; two quick presses on a list would be a double click.
pc_frame=(200 488)
controller_frame=(620 488)
pc_pane=(60 300)
controller_pane=(760 440)
pc_item() { printf '70 %s' $((149 + 22 * $1)); }
controller_item() { printf '490 %s' $((125 + 19 * $1)); }
# shellcheck disable=SC2046
select_on_pc() { # NAME
    activate "$main"
    click "$main" "${pc_frame[@]}"
    keys Home $(repeat "$(row_of "$1")" Down)
    until_true "$1 to be selected" is_still "$main"
}
# shellcheck disable=SC2046
select_on_controller() { # NAME
    activate "$main"
    click "$main" "${controller_frame[@]}"
    keys Home $(repeat "$(controller_row_of "$1")" Down)
    until_true "$1 to be selected" is_still "$main"
}
# drag FROM_X FROM_Y TO_X TO_Y: with the left button held.
drag() {
    xdotool mousemove --window "$main" "$1" "$2" mousedown 1
    local step
    # A hand starts slowly; the drag begins while the pointer is still on the item.
    for step in 1 2 3 4 5; do
        xdotool mousemove --window "$main" $(($1 + 2 * step)) "$2"
        pause 0.03
    done
    until_true "the drag to begin" is_still "$main"
    for step in 1 2 3 4 5 6 7 8 9 10; do
        xdotool mousemove --window "$main" $(($1 + ($3 - $1) * step / 10)) $(($2 + ($4 - $2) * step / 10))
        pause 0.03
    done
    until_true "the drag to arrive" is_still "$main"
    xdotool mouseup 1
}
