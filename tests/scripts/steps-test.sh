#!/usr/bin/env bash
# What a step of ./run, ./test and ./test-windows says, keeps, and does when it fails:
#   tests/scripts/steps-test.sh WORK_FOLDER
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
rm -rf "$1"
mkdir -p "$1"
cd "$1"
give_up() {
    printf 'FAILED: %s\n' "$*"
    exit 1
}
# steps BODY: a script that runs it, with its end in `status` and its words in the file "said".
steps() {
    status=0
    bash -c "set -euo pipefail; source '$here/../../scripts/steps.sh'; $1" >said 2>&1 || status=$?
}
says() { grep -q "$1" said || give_up "not said: $1"; }

steps 'new_log logs/log; logged logs/log Good echo detail; echo after'
[ "$status" -eq 0 ] || give_up "a good step ended with $status"
says '^Good (output in logs/log) ...$'
says '^after$'
! grep -q detail said || give_up "the output of a good step was shown"
grep -q detail logs/log || give_up "the output was not kept"

steps 'logged logs/log Bad sh -c "echo detail; exit 7"; echo after'
[ "$status" -eq 7 ] || give_up "a step that failed with 7 ended with $status"
says '^detail$'
says '^Bad: failed. The whole output is in logs/log.$'
! grep -q after said || give_up "the script went on after a step that failed"

steps 'first_fails() { false; true; }; logged logs/log Bad first_fails'
[ "$status" -ne 0 ] || give_up "the first of two commands failed and nobody noticed"
