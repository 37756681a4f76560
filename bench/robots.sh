#!/usr/bin/env bash
# How much faster are many robots at a time than one after the other?
#   bench/robots.sh BUILD_FOLDER [ROBOTS [PARALLEL [MILLISECONDS]]]
# BUILD_FOLDER is a release build. Lists the files of so many simulated robots (60), whose library takes so
# long for each call (50 ms), one after the other and PARALLEL (8) at a time, and prints both times.
set -euo pipefail
build=$(cd "$1" && pwd)
robots=${2:-60}
parallel=${3:-8}
delay=${4:-50}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/trial" >/dev/null
trial=$work/trial
{
    printf '[Boot]\r\nName=R1\r\n\r\n'
    for ((i = 1; i <= robots; i++)); do
        printf '[Robot]\r\nName=R%d\r\nIPaddr=10.0.0.%d\r\nPath=jobs\r\n\r\n' "$i" "$i"
    done
} >"$trial/robot.ini"
{
    for ((i = 1; i <= robots; i++)); do
        printf '[Controller%d]\nModel=Eridan\nFolder=controllers/r%d\nAddress=10.0.0.%d\n' "$i" "$i" "$i"
        mkdir "$trial/controllers/r$i"
        printf '/JOB\r\n//NAME A\r\nNOP\r\nEND\r\n' >"$trial/controllers/r$i/A.JBI"
    done
    printf '[Script]\n'
    line=1
    for function in BscOpen BscSetEther BscConnect BscFindFirst BscFindNext BscDisConnect BscClose; do
        printf '%d=%s 1+ slow %d\n' "$((line++))" "$function" "$delay"
    done
} >"$trial/simulator.ini"

timed() { # SECONDS_VARIABLE COMMAND...
    local begin
    begin=$(date +%s%N)
    "${@:2}" >"$work/output"
    printf -v "$1" '%d' $((($(date +%s%N) - begin) / 1000000))
    [ "$(grep -c 'A.JBI$' "$work/output")" -eq "$robots" ] || { echo "not every robot answered" >&2; exit 1; }
}
timed one "$trial/vantrelctl" list --mode hispeed --all-robots
timed many "$trial/vantrelctl" list --mode hispeed --all-robots --parallel "$parallel"
awk -v robots="$robots" -v one="$one" -v many="$many" -v parallel="$parallel" \
    'BEGIN { printf "%d robots: %d ms one after the other, %d ms with --parallel %d, %.1f times faster\n", robots, one, many, parallel, one/many }'
