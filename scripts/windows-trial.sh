# shellcheck shell=bash
# What is different in a trial of the program for Windows, which runs under Wine: sourced after
# trial.sh, whose functions and places it replaces.

launch() {
    "$here/wine.sh" "$trial/Vantrel.exe" >"$work/program.log" 2>&1 &
    program=$!
}

# Wine tells the display of no modal windows. What asks belongs to the main window, as the progress
# window does not; a box of the program's own title always asks.
question_titled() {
    local window
    for window in $(visible_windows --name "^$1\$"); do
        if [ "$1" = Vantrel ] || xprop -id "$window" WM_TRANSIENT_FOR 2>/dev/null | grep -q '#'; then
            printf '%s\n' "$window"
            return 0
        fi
    done
    return 1
}

pc_frame=(200 478)
controller_frame=(620 478)
pc_item() { printf '70 %s' $((137 + 17 * $1)); }
controller_item() { printf '490 %s' $((117 + 17 * $1)); }
