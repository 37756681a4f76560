#!/usr/bin/env bash
# Plays the main job with the program for Windows, under Wine:
#   scripts/windows-main-job.sh BUILD_FOLDER WORK_FOLDER
# The steps are those of scripts/main-job.sh.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/trial.sh"
source "$here/windows-trial.sh"
source "$here/main-job.sh"
