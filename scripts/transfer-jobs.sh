#!/usr/bin/env bash
# Plays every transfer command through the real window, as an operator would:
#   scripts/transfer-jobs.sh BUILD_FOLDER WORK_FOLDER
# Moves, deletes and drags jobs both ways with the simulated controller and compares every byte on
# both sides after each step.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# Sourced by another script it plays the same steps with the trial that is prepared there.
[ "${BASH_SOURCE[0]}" != "$0" ] || source "$here/trial.sh"

trial_lay_out "$1" "$2"
original=$work/original
cp -r "$jobs" "$original"
cp -r "$controller" "$work/controller"

is_gone_file() { [ ! -e "$1" ]; }
expect_gone() { until_true "$1 to go" is_gone_file "$1"; }
expect_same() { until_true "$2 to equal $1" same_bytes "$1" "$2"; }

trial_start

say "Displaying BRKT02.JBI beside the PC pane, not over it."
look_at() { import -window "$main" -crop 370x330+12+120 +repage "$work/$1.png"; }
looks_as_before() { look_at pane-now && [ "$(compare -metric AE "$work/pane.png" "$work/pane-now.png" null: 2>&1)" = 0 ]; }
covered() { import -window "$main" -crop 370x330+440+120 +repage "$1"; }
looks_covered() { covered "$work/covered-now.png" && [ "$(compare -metric AE "$work/covered.png" "$work/covered-now.png" null: 2>&1)" != 0 ]; }
select_on_pc BRKT02.JBI
look_at pane
covered "$work/covered.png"
keys alt+f i
until_true "the controller pane to be covered" looks_covered
until_true "the PC pane to be free" looks_as_before
import -window "$main" "$work/viewer.png"
keys alt+f i

say "Moving BRKT02.JBI to the controller."
select_on_pc BRKT02.JBI
keys alt+f m
expect_same "$original/BRKT02.JBI" "$controller/BRKT02.JBI"
expect_gone "$jobs/BRKT02.JBI"
progress_ends

say "Moving HOME.JBI, which is there and protected: it stays on the PC."
select_on_pc HOME.JBI
keys alt+f m
answer 'File transfer' alt+y
until_true "the report" asks Vantrel
import -window root "$work/refused.png"
answer Vantrel Return
progress_ends
expect_same "$original/HOME.JBI" "$jobs/HOME.JBI"
expect_same "$work/controller/HOME.JBI" "$controller/HOME.JBI"

say "Moving CALIB.JBI to the PC."
select_on_controller CALIB.JBI
keys alt+f m
expect_same "$work/controller/CALIB.JBI" "$jobs/CALIB.JBI"
expect_gone "$controller/CALIB.JBI"
progress_ends

say "Deleting DASH.JBI on the controller, after a No."
select_on_controller DASH.JBI
keys Delete
answer Vantrel alt+n
select_on_controller DASH.JBI
[ -e "$controller/DASH.JBI" ] || give_up "No deleted the job"
keys Delete
answer Vantrel alt+y
expect_gone "$controller/DASH.JBI"
progress_ends

say "Deleting MEMO.JBI on the PC."
select_on_pc MEMO.JBI
keys Delete
answer Vantrel alt+y
expect_gone "$jobs/MEMO.JBI"
progress_ends

say "Dragging CAMERA.JBI to the controller and DOORFL.JBI to the PC."
activate "$main"
# shellcheck disable=SC2046
drag $(pc_item "$(row_of CAMERA.JBI)") "${controller_pane[@]}"
expect_same "$original/CAMERA.JBI" "$controller/CAMERA.JBI"
expect_same "$original/CAMERA.JBI" "$jobs/CAMERA.JBI"
progress_ends
activate "$main"
# shellcheck disable=SC2046
drag $(controller_item "$(controller_row_of DOORFL.JBI)") "${pc_pane[@]}"
expect_same "$work/controller/DOORFL.JBI" "$jobs/DOORFL.JBI"
expect_same "$work/controller/DOORFL.JBI" "$controller/DOORFL.JBI"
progress_ends

say "Dropping the PC's list onto itself."
activate "$main"
before=$(cd "$trial" && find jobs controllers -type f | sort | xargs md5sum)
# shellcheck disable=SC2046
drag $(pc_item "$(row_of CAMERA.JBI)") "${pc_pane[@]}"
import -window "$main" "$work/window.png"

trial_close
after=$(cd "$trial" && find jobs controllers -type f | sort | xargs md5sum)
[ "$before" = "$after" ] || give_up "a drop of a list onto itself changed files"
say "Done: every byte is where it should be."
