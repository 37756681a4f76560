#!/usr/bin/env bash
# Brings every C++ file into the style of .clang-format: scripts/format.sh [--check]
# With --check nothing is changed, and a file that is not in it is an error. The tool's version is
# named, since another one lays out some things otherwise.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

ensure_packages "${style_packages[@]}"
how=(-i)
[ "${1:-}" != --check ] || how=(--dry-run -Werror)
git ls-files -z '*.cpp' '*.h' | xargs -0 -P "$(nproc)" -n 20 clang-format-14 "${how[@]}"
