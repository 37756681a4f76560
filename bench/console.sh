#!/usr/bin/env bash
# How fast is vantrelctl beside the bare calls of the library and beside cp?
#   bench/console.sh BUILD_FOLDER [JOBS [ROUNDS]]
# BUILD_FOLDER is a release build with -DVANTREL_BENCH=ON. Sends and fetches so many small jobs (2000) with
# the simulator, each way in turn, and prints the best wall-clock time of the rounds (3) and its ratio to
# that of the bare calls.
set -euo pipefail
build=$(cd "$1" && pwd)
count=${2:-2000}
rounds=${3:-3}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/trial" >/dev/null
program=$work/trial
bare=$build/bench/vantrel_bare_calls
controller=$program/controllers/bench
mkdir -p "$work/jobs" "$work/fetched" "$controller"
printf '[Controller1]\nName=Bench\nModel=Eridan\nFolder=controllers/bench\nAddress=10.0.0.1\n' >"$program/simulator.ini"
for ((i = 0; i < count; i++)); do
    name=$(printf 'J%05d' "$i")
    printf '/JOB\r\n//NAME %s\r\n//POS\r\n///NPOS 0,0,0,0,0,0\r\nNOP\r\nEND\r\n' "$name" >"$work/jobs/$name.JBI"
done

empty() { find "$1" -type f -delete; }
prepare() { # WAY
    empty "$work/fetched"
    [ "$1" = get ] || empty "$controller"
}
console() { "$program/vantrelctl" "$1" --mode hispeed --address 10.0.0.1 --folder "$2" '*.JBI' >/dev/null; }
way_put() {
    case $1 in
    vantrelctl) console put "$work/jobs" ;;
    bare) "$bare" "$program" 10.0.0.1 put "$work/jobs" ;;
    cp) cp "$work/jobs"/* "$controller" ;;
    esac
}
way_get() {
    case $1 in
    vantrelctl) console get "$work/fetched" ;;
    bare) "$bare" "$program" 10.0.0.1 get "$work/fetched" ;;
    cp) cp "$controller"/* "$work/fetched" ;;
    esac
}
now() { date +%s%N; }

for way in put get; do
    declare -A best=()
    for ((round = 0; round < rounds; round++)); do
        for who in bare vantrelctl cp; do
            prepare "$way"
            begin=$(now)
            "way_$way" "$who"
            took=$((($(now) - begin) / 1000))
            [ -n "${best[$who]:-}" ] && [ "${best[$who]}" -le "$took" ] || best[$who]=$took
        done
    done
    for who in bare vantrelctl cp; do
        awk -v way="$way" -v who="$who" -v took="${best[$who]}" -v bare="${best[bare]}" -v count="$count" \
            'BEGIN { printf "%s %-10s %8.0f ms  %6.3f ms a job  %5.2f times the bare calls\n", way, who, took/1000, took/1000/count, took/bare }'
    done
done
