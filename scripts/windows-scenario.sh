#!/usr/bin/env bash
# Plays a scenario with the program for Windows, under Wine:
#   scripts/windows-scenario.sh NAME BUILD_FOLDER WORK_FOLDER
# NAME is main-job or transfer-jobs; the steps are those of the script of that name.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scenario=$1
shift
source "$here/trial.sh"
source "$here/windows-trial.sh"
source "$here/$scenario.sh"
