#!/usr/bin/env bash
# Starts the built program with the switches that show no window, under its own name and another:
#   scripts/start-switches.sh BUILD_FOLDER WORK_FOLDER
# It has to end by itself, without an error, and leave every file as it was.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/trial.sh"

trial_lay_out "$1" "$2"
cp "$trial/Vantrel" "$trial/tool"
rm -f "$trial/robot.ini"
sums() { (cd "$trial" && find . -type f -print0 | sort -z | xargs -0 sha256sum); }
sums >"$work/before"

for name in Vantrel tool; do
    for switch in /EXIT first/EXITNOW -Embedding /automation; do
        say "$name $switch"
        (cd / && timeout "$patience" "$trial/$name" "$switch") ||
            give_up "$name $switch ended with $?"
        sums >"$work/after"
        cmp -s "$work/before" "$work/after" || give_up "$name $switch changed a file: $(diff "$work/before" "$work/after")"
    done
done
say "Done: nothing was shown and nothing was written."
