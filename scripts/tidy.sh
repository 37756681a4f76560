#!/usr/bin/env bash
# Runs clang-tidy over what has changed since a commit: scripts/tidy.sh [BASE]
# Without BASE that is where this branch left origin/main, or the last commit (a merge counts whole)
# where the branch is origin/main itself. A changed header is looked at through the source of its
# name. Every finding is an error. VANTREL_TIDY_SECONDS (600) is the time after which no further file
# is begun; those that were left out are named.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

default_base() {
    local base
    base=$(git merge-base HEAD origin/main 2>/dev/null) || base=$(git rev-parse HEAD)
    [ "$base" != "$(git rev-parse HEAD)" ] || base=$(git rev-parse --verify --quiet HEAD~1) ||
        base=$(git hash-object -t tree /dev/null) # a clone of one commit knows no other: everything
    printf '%s\n' "$base"
}

# The sources among the changed files, and those beside changed headers, that this system builds.
changed_sources() { # BASE
    local file
    git diff --name-only --diff-filter=d "$1" -- '*.cpp' '*.h' |
        sed 's/\.h$/.cpp/' | sort -u | while read -r file; do
        ! grep -qF "\"$PWD/$file\"" build/tidy/compile_commands.json || printf '%s\n' "$file"
    done
}

look_at() { # FILE
    if [ "$(date +%s)" -ge "$tidy_end" ]; then
        echo "Not looked at, for want of time: $1"
        return 0
    fi
    clang-tidy-14 -p build/tidy --quiet --warnings-as-errors='*' "$1" 2>/dev/null
}

ensure_packages "${build_packages[@]}" "${style_packages[@]}" libgtest-dev libgmock-dev
base=${1:-$(default_base)}
log=build/tidy.log
new_log "$log"
logged "$log" "Configuring for clang-tidy" cmake --preset tidy

mapfile -t sources < <(changed_sources "$base")
echo "Looking at ${#sources[@]} sources that have changed since $(git rev-parse --short "$base") ..."
[ ${#sources[@]} -gt 0 ] || exit 0
tidy_end=$(($(date +%s) + ${VANTREL_TIDY_SECONDS:-600}))
export -f look_at
export tidy_end
# shellcheck disable=SC2016
printf '%s\0' "${sources[@]}" | xargs -0 -P "$(nproc)" -n 1 bash -c 'look_at "$1"' -
