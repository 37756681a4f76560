#!/usr/bin/env bash
# What the launcher of an installation for all users does with each user's folder:
#   tests/packages/launcher-test.sh WORK_FOLDER
# A stand-in for the program tells which folder it is given.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
rm -rf "$1"
mkdir -p "$1"
work=$(cd "$1" && pwd)
failures=0

fail() {
    printf 'FAILED: %s: %s\n' "$case" "$*"
    failures=$((failures + 1))
}
expect_text() { # FILE TEXT
    [ "$(cat "$1" 2>&1)" = "$2" ] || fail "$1 holds $(cat "$1" 2>&1), not $2"
}
expect_no_file() { [ ! -e "$1" ] || fail "$1 is there"; }

# install VERSION: what a package puts down, every file with the version for its text.
install_version() {
    rm -rf "$installed"
    mkdir -p "$installed/Vantrel/jobs" "$installed/Vantrel/.installed" "$installed/ZUROLINKDLL/Help"
    cp "$here/../../packaging/linux/vantrel" "$installed/vantrel"
    local name
    for name in English.lng Japanese.lng System.lng FileTable.tbl FileTable.dat English.ico Japanese.ico System.ico; do
        printf '%s\n' "$1" | tee "$installed/Vantrel/$name" >"$installed/Vantrel/.installed/$name"
    done
    for name in simulator.ini robot.ini; do
        printf '%s\n' "$1" >"$installed/Vantrel/$name"
    done
    printf 'ZurolinkSimulator %s\n' "$1" >"$installed/Vantrel/libZurolink.so"
    printf '[Vantrel]\r\nPath=jobs\r\n' >"$installed/Vantrel/Vantrel.ini"
    printf '%s\n' "$1" >"$installed/Vantrel/jobs/A.JBI"
    printf '%s\n' "$1" >"$installed/version"
    printf '#!/bin/sh\nprintf "%%s|%%s" "$VANTREL_FOLDER" "$*"\n' >"$installed/Vantrel/Vantrel"
    printf '#!/bin/sh\nprintf "without a window|%%s|%%s" "$VANTREL_FOLDER" "$*"\n' >"$installed/Vantrel/vantrelctl"
    chmod +x "$installed/Vantrel/Vantrel" "$installed/Vantrel/vantrelctl"
    chmod -R a-w "$installed/Vantrel"
}
upgrade() {
    chmod -R u+w "$installed"
    install_version "$1"
}
start() { XDG_DATA_HOME=$home "$installed/vantrel" "$@" >"$work/started"; }

begin() { # CASE [NAME_OF_THE_USERS_FOLDER]
    case=$1
    chmod -R u+w "$work" 2>/dev/null || true
    home=$work/$case/${2:-home}
    installed=$work/$case/opt/vantrel
    own=$home/vantrel/Vantrel
    install_version 1.0.0
}

begin FirstStartGivesTheUserAFolderOfHisOwn
start one 'two three'
expect_text "$work/started" "$own|one two three"
expect_text "$own/English.lng" 1.0.0
expect_text "$own/jobs/A.JBI" 1.0.0
[ -w "$own/jobs/A.JBI" ] && [ -w "$own/Vantrel.ini" ] || fail "the copies cannot be written"
expect_no_file "$own/Vantrel"
expect_text "$own/Vantrel.ini" "$(printf '[Vantrel]\r\nPath=jobs\r')"
[ "$(readlink "$home/vantrel/ZUROLINKDLL")" = "$installed/ZUROLINKDLL" ] || fail "no manual"
[ -z "$(find "$home/vantrel" -name '.new*')" ] || fail "half a folder is left"

begin FolderOfAnyName 'a & b|c 操作員'
start
expect_text "$work/started" "$own|"
expect_text "$own/English.lng" 1.0.0

begin SecondStartChangesNothing
start
printf 'mine\n' | tee "$own/English.lng" "$own/robot.ini" "$own/Vantrel.ini" >/dev/null
rm "$own/jobs/A.JBI"
start
expect_text "$own/English.lng" mine
expect_text "$own/robot.ini" mine
expect_text "$own/Vantrel.ini" mine
expect_no_file "$own/jobs/A.JBI"

begin UpgradeDeliversTextsAndSimulatorAndTouchesNothingElse
start
expect_no_file "$own/.installed/English.lng.new"
printf 'mine\n' | tee "$own/English.lng" "$own/libZurolink.so" "$own/robot.ini" "$own/Vantrel.ini" "$own/simulator.ini" >/dev/null
rm "$own/jobs/A.JBI"
upgrade 1.1.0
start
for name in English.lng Japanese.lng System.lng FileTable.tbl FileTable.dat English.ico Japanese.ico System.ico; do
    expect_text "$own/.installed/$name.new" 1.1.0
    expect_text "$own/.installed/$name" 1.0.0
    [ -w "$own/.installed/$name.new" ] || fail "$name.new cannot be replaced"
done
expect_text "$own/.installed/libZurolink.so.new" 'ZurolinkSimulator 1.1.0'
for kept in English.lng libZurolink.so robot.ini Vantrel.ini simulator.ini; do expect_text "$own/$kept" mine; done
expect_text "$own/Japanese.lng" 1.0.0
expect_no_file "$own/jobs/A.JBI"
rm "$own"/.installed/*.new # the program has put them in their places
start
expect_no_file "$own/.installed/English.lng.new"

begin StartsThroughALinkFindWhatIsInstalled
ln -s "$installed/vantrel" "$work/$case/link"
XDG_DATA_HOME=$home "$work/$case/link" >"$work/started"
expect_text "$work/started" "$own|"

begin CalledByTheOtherNameItStartsTheProgramWithoutAWindow
ln -s "$installed/vantrel" "$work/$case/vantrelctl"
XDG_DATA_HOME=$home "$work/$case/vantrelctl" list >"$work/started"
expect_text "$work/started" "without a window|$own|list"
expect_no_file "$own/vantrelctl"

begin WithoutADataFolderTheHomeFolderHasIt
env -u XDG_DATA_HOME HOME="$home" "$installed/vantrel" >"$work/started"
expect_text "$work/started" "$home/.local/share/vantrel/Vantrel|"

begin WhereNoFolderCanBeMadeTheProgramStartsAllTheSame
printf 'no folder' >"$home"
start one 2>"$work/reason"
expect_text "$work/started" "|one"
[ -s "$work/reason" ] || fail "no reason is given"

begin UpgradeThatFailsStartsTheProgramAndIsTriedAgain
start
printf 'mine\n' >"$own/English.lng"
mkdir "$own/.installed/English.lng.new" # what a full disk would do
upgrade 1.1.0
start 2>"$work/reason"
expect_text "$work/started" "$own|"
expect_text "$own/.version" 1.0.0
[ -s "$work/reason" ] || fail "no reason is given"
[ -z "$(find "$own/.installed" -name '*.part')" ] || fail "a part is left"
rmdir "$own/.installed/English.lng.new"
start
expect_text "$own/.installed/English.lng.new" 1.1.0
expect_text "$own/.version" 1.1.0

begin UpgradeLeavesThePartsOfAnotherOneAlone
start
printf 'half' >"$own/.installed/English.lng.part"
upgrade 1.1.0
start
expect_text "$own/.installed/English.lng.part" half
expect_text "$own/.installed/English.lng.new" 1.1.0
[ "$(find "$own/.installed" -name '*.part' | wc -l)" -eq 1 ] || fail "a part is left"

begin TwoFirstStartsAtOnceShareOneFolder
start &
start
wait
expect_text "$own/English.lng" 1.0.0
[ "$(find "$home/vantrel" -mindepth 1 -maxdepth 1 | wc -l)" -eq 2 ] || fail "more than the folder and the manual's link"

chmod -R u+w "$work"
[ "$failures" -eq 0 ]
