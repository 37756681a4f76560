#!/usr/bin/env bash
# Builds the fuzz targets and runs each for a while, one after the other:
#   scripts/fuzz.sh SECONDS [FORMAT]...
# FORMAT is a target's name, such as ProfileText; all of them without one. An input that crashes,
# hangs or breaks a promise is kept in build/fuzz/found/; run the target with it to see it again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

if ! [[ "${1:-}" =~ ^[1-9][0-9]*$ ]]; then
    echo "Usage: scripts/fuzz.sh SECONDS [FORMAT]..." >&2
    exit 2
fi
seconds=$1
shift

ensure_packages "${fuzz_packages[@]}"
cmake --preset fuzz
cmake --build --preset fuzz

build=build/fuzz/tests/fuzz found=build/fuzz/found
mkdir -p "$found"
# Some targets write a file for each input.
[ ! -w /dev/shm ] || export TMPDIR=/dev/shm
formats=("$@")
[ ${#formats[@]} -gt 0 ] || mapfile -t formats < <(ls "$build/corpus")

failed=()
for format in "${formats[@]}"; do
    log="$found/$format.log"
    # Slow inputs count as found: every reader takes linear time.
    if timeout $((seconds + 60)) "$build/${format}Fuzz" \
        -max_total_time="$seconds" -max_len=20000 -timeout=5 -rss_limit_mb=2048 \
        -artifact_prefix="$found/$format-" "$build/corpus/$format" >"$log" 2>&1; then
        echo "$format: $(tail -n 1 "$log")"
    else
        failed+=("$format")
        grep -E 'Broken promise|runtime error|SUMMARY|Test unit' "$log" || tail -n 20 "$log"
    fi
done

if [ ${#failed[@]} -gt 0 ]; then
    echo "Something was found in: ${failed[*]} (see $found)" >&2
    exit 1
fi
