#!/usr/bin/env bash
# Plays the main job through the real window, as an operator would:
#   scripts/main-job.sh BUILD_FOLDER WORK_FOLDER
# Lays out a fresh trial folder, copies two jobs to the simulated controller (one of them replaces
# an older one), one job back, closes the program and compares every byte.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# Sourced by another script it plays the same steps with the trial that is prepared there.
[ "${BASH_SOURCE[0]}" != "$0" ] || source "$here/trial.sh"

trial_lay_out "$1" "$2"
newer=DOORFR.JBI # on both sides; the PC has a newer one
added=TRIAL1.JBI # on the PC only
fetched=CALIB.JBI # on the controller only

# What the job is about has to be so before it starts.
! cmp -s "$jobs/$newer" "$controller/$newer" || give_up "$newer is the same on both sides"
[ ! -e "$controller/$added" ] || give_up "$added is on the controller already"
[ ! -e "$jobs/$fetched" ] || give_up "$fetched is on the PC already"

say "Started; reading the controller's file list when asked."
trial_start

say "Sending $newer and $added: selected with the keyboard, copied with the mouse."
first=$(row_of "$newer")
second=$(row_of "$added")
# shellcheck disable=SC2046
keys Home $(repeat "$first" Down) $(repeat $((second - first)) ctrl+Down) ctrl+space
import -window "$main" "$work/selected.png"
click "$main" 16 42 # the first button of the main tool bar
activate_question 'File transfer'
import -window root "$work/question.png"
answer 'File transfer' alt+y
until_true "$newer on the controller" same_bytes "$jobs/$newer" "$controller/$newer"
until_true "$added on the controller" same_bytes "$jobs/$added" "$controller/$added"
progress_ends

say "Fetching $fetched: pane chosen with the mouse, copied with the menu."
activate "$main"
select_on_controller "$fetched"
keys alt+f
keys c
until_true "$fetched on the PC" same_bytes "$jobs/$fetched" "$controller/$fetched"
progress_ends
activate "$main"
import -window "$main" "$work/window.png"

say "Closing."
trial_close
grep -q '^Window=600,600,12600,8400,1650,800,2400' "$trial/Vantrel.ini" ||
    give_up "a window that nobody moved was saved at another place: $(grep '^Window=' "$trial/Vantrel.ini")"
grep -q 'TransMode=16' "$trial/Vantrel.ini" || give_up "the settings were not saved"

say "Done: every byte is the same on both sides."
say "  PC folder:   $jobs"
say "  controller:  $controller"
say "  screenshots: $work/window.png $work/question.png"
