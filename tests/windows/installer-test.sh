#!/usr/bin/env bash
# Installs the program for Windows under Wine without a question, again and again with an operator's
# changes in between, starts it, and uninstalls it; on a display:
#   tests/windows/installer-test.sh BUILD_FOLDER WORK_FOLDER
set -euo pipefail
source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
rm -rf "$2"
mkdir -p "$2"
work=$(cd "$2" && pwd)
source "$source_folder/scripts/desktop.sh"
# A Windows of its own, in which nobody else installs or removes the program meanwhile.
export VANTREL_WINE=$work/wine VANTREL_LOCALE=ja_JP.UTF-8
windows=$VANTREL_WINE/$VANTREL_LOCALE
wine() { "$source_folder/scripts/wine.sh" "$@"; }
# What is of the program there, for whoever reads why the test failed.
found() {
    find "$windows/drive_c" -ipath '*Vantrel*' -not -path '*/controllers/*'
    wine reg query "$entry" || true
}
there() { for file in "$@"; do [ -e "$folder/$file" ] || { found; give_up "missing: $file"; }; done; }
gone() { for file in "$@"; do [ ! -e "$folder/$file" ] || give_up "still there: $file"; done; }
holds() { [ "$(cat "$folder/$1")" = "$2" ] || give_up "$1 does not hold \"$2\""; }

"$source_folder/scripts/pack.sh" "$1" "$work/packages"
program=
trap '[ -z "$program" ] || kill "$program" 2>/dev/null || true
    WINEPREFIX=$windows wineserver --kill --wait || true
    rm -rf "$VANTREL_WINE"' EXIT
wine cmd /c exit # makes the folders of the user, the only one
folder=$(echo "$windows"/drive_c/users/*/AppData/Local)/Programs/Vantrel
menu=$(echo "$windows"/drive_c/users/*/AppData/Roaming/Microsoft/Windows/Start\ Menu/Programs)
entry='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantrel'
is_registered() { wine reg query "$entry" /v DisplayVersion >/dev/null 2>&1; }
setup=$work/packages/Vantrel-win64-setup.exe
install() { wine "$setup" /S || give_up "the installer ended with $?"; }
shortcuts() { find "$menu" -name 'Vantrel*.lnk' | wc -l; }

# From a copy: where it was installed it would start one itself and end before that one has.
uninstall() {
    local installed=C:${folder#"$windows/drive_c"}
    cp "$folder/Uninstall.exe" "$work/Uninstall.exe"
    wine "$work/Uninstall.exe" /S "_?=${installed//\//\\}"
}

# Everything that is installed, but for the settings, which the running program may write.
installed_state() {
    (cd "$folder" && find . -type f ! -name '*.ini' -exec md5sum {} +) | sort
    (cd "$menu" && ls)
    wine reg query "$entry"
}
shows_a_window() { xdotool search --all --onlyvisible --pid "$program" --name '' >/dev/null 2>&1; }

# refused_while_running FOLDER COMMAND...: with the program of that folder in its first question.
refused_while_running() {
    local before status=0
    (cd "$folder/$1" && exec "$source_folder/scripts/wine.sh" Vantrel.exe) >"$work/program.log" 2>&1 &
    program=$!
    until_true "a window of the program" shows_a_window
    before=$(installed_state)
    "${@:2}" || status=$?
    [ "$status" -eq 2 ] || give_up "$2 over the running program of $1 ended with $status"
    [ "$(installed_state)" = "$before" ] || give_up "$2 changed what the running program of $1 needs"
    kill "$program"
    wait "$program" || true
    program=
}


# What is delivered takes its place at a start; one with this switch shows no window.
start() { (cd "$folder/$1" && wine Vantrel.exe /automation) || give_up "the program of $1 ended with $?"; }
install_and_start() {
    install
    start Vantrel
    start Trial
    [ -z "$(find "$folder" -name '*.new')" ] || give_up "something is still waiting"
}

install_and_start
there Vantrel/Vantrel.exe Vantrel/vantrelctl.exe Vantrel/Japanese.lng Vantrel/FileTable.tbl Vantrel/Japanese.ico \
    Trial/Zurolink.dll Trial/jobs/MAIN.JBI Trial/controllers/line1-weld/CALIB.JBI Uninstall.exe \
    ZUROLINKDLL/Help/Zurolink_us.pdf ZUROLINKDLL/Help/Zurolink_jp.pdf
gone Vantrel/Zurolink.dll
is_registered || give_up "not in the list of installed programs"
[ "$(shortcuts)" -eq 2 ] || give_up "$(shortcuts) entries in the start menu"

mine=(Vantrel/Vantrel.ini Vantrel/robot.ini Vantrel/Zurolink.dll Trial/Vantrel.ini Trial/jobs/MAIN.JBI)
for file in "${mine[@]}" Vantrel/English.lng; do printf mine >"$folder/$file"; done
rm "$folder/Trial/controllers/line1-weld/CALIB.JBI"
install_and_start
for file in "${mine[@]}" Vantrel/English.lng.old; do holds "$file" mine; done
cmp -s "$folder/Vantrel/English.lng" "$source_folder/data/English.lng" || give_up "a text was not renewed"
gone Vantrel/English.lng.old2 Vantrel/Japanese.lng.old Trial/English.lng.old Trial/controllers/line1-weld/CALIB.JBI

# What an operator has changed is found by what was installed before, and never lost again.
as_of_another_version() { printf another | tee "$folder/$1" >"$folder/${1%/*}/.installed/${1##*/}"; }
is_renewed() { cmp -s "$folder/$1" "$source_folder/data/${1##*/}" || give_up "$1 was not renewed"; }
as_of_another_version Vantrel/English.lng # the operator's own has been kept as ".old"
as_of_another_version Vantrel/Japanese.lng
as_of_another_version Trial/FileTable.tbl
printf changed >"$folder/Vantrel/Japanese.lng"
printf changed >"$folder/Vantrel/System.lng" # and nobody knows what was installed
rm "$folder/Vantrel/.installed/System.lng"
for number in '' 2 3 4 5 6 7 8 9; do printf kept >"$folder/Vantrel/FileTable.dat.old$number"; done
printf changed >"$folder/Vantrel/FileTable.dat"
install_and_start
holds Vantrel/English.lng.old mine
gone Vantrel/English.lng.old2 Trial/FileTable.tbl.old Vantrel/FileTable.dat.old11
for file in Japanese.lng.old System.lng.old FileTable.dat.old10; do holds "Vantrel/$file" changed; done
for number in '' 2 3 4 5 6 7 8 9; do holds "Vantrel/FileTable.dat.old$number" kept; done
for file in English.lng Japanese.lng System.lng FileTable.dat; do is_renewed "Vantrel/$file"; done
is_renewed Trial/FileTable.tbl
as_of_another_version Vantrel/Japanese.lng
printf 'changed again' >"$folder/Vantrel/Japanese.lng"
printf 'in the other language' >"$menu/Vantrel (trial).lnk"
install_and_start
holds Vantrel/Japanese.lng.old changed
holds Vantrel/Japanese.lng.old2 'changed again'
gone Vantrel/Japanese.lng.old3 Vantrel/System.lng.old2
[ "$(shortcuts)" -eq 2 ] || give_up "the trial is in the start menu in two languages"

# The simulator is renewed unless the maker's library stands in its place.
printf mine >"$folder/Trial/Zurolink.dll"
install_and_start
holds Trial/Zurolink.dll mine
rm "$folder/Trial/Zurolink.dll"
install_and_start
cp "$folder/Trial/Zurolink.dll" "$work/simulator.dll"
printf 'ZurolinkSimulator of another version' >"$folder/Trial/Zurolink.dll"
install_and_start
cmp -s "$folder/Trial/Zurolink.dll" "$work/simulator.dll" || give_up "the simulator was not renewed"

as_of_another_version Vantrel/English.lng # what a refused installation must not renew
for part in Vantrel Trial; do
    refused_while_running "$part" wine "$setup" /S
    refused_while_running "$part" uninstall
done

printf 'in the other language' >"$menu/Vantrel (trial).lnk"
uninstall || give_up "the uninstaller ended with $?"
gone Vantrel/Vantrel.exe Vantrel/vantrelctl.exe Trial/vantrelctl.exe Vantrel/LICENSE.txt Trial/Vantrel.exe ZUROLINKDLL Uninstall.exe
there Vantrel/English.lng Vantrel/.installed/English.lng Trial/Zurolink.dll
for file in "${mine[@]}" Vantrel/English.lng.old; do holds "$file" mine; done
! is_registered || give_up "still in the list of installed programs"
[ "$(shortcuts)" -eq 0 ] || give_up "still in the start menu"
echo "Installed, brought up to date and uninstalled; what the operator had is still there."
