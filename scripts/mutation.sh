#!/usr/bin/env bash
# Proves the tests: changes the code in one place at a time and looks whether a test goes red.
#   scripts/mutation.sh [--count 150] [--seed 1] [--room link] [--file link/JobSend.cpp] [--resume]
# See scripts/mutation.py for what is changed, and CONTRIBUTING.md for what to do with survivors.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

ensure_packages "${build_packages[@]}" libgtest-dev libgmock-dev python3
exec nice -n 10 python3 scripts/mutation.py "$@"
