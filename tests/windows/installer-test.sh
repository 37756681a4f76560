#!/usr/bin/env bash
# Installs the program for Windows under Wine without a question, twice with an operator's changes
# in between, starts it, and uninstalls it:
#   tests/windows/installer-test.sh BUILD_FOLDER WORK_FOLDER
set -euo pipefail
source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
rm -rf "$2"
mkdir -p "$2"
work=$(cd "$2" && pwd)
give_up() {
    printf 'FAILED: %s\n' "$*"
    exit 1
}
there() { for file in "$@"; do [ -e "$folder/$file" ] || give_up "missing: $file"; done; }
gone() { for file in "$@"; do [ ! -e "$folder/$file" ] || give_up "still there: $file"; done; }
holds() { [ "$(cat "$folder/$1")" = "$2" ] || give_up "$1 does not hold \"$2\""; }

"$source_folder/scripts/windows-packages.sh" "$1" Vantrel-win64 "$work/packages"
wine() { "$source_folder/scripts/wine.sh" "$@"; }
here() { wine winepath -u "$(wine cmd /c "echo $1" | tr -d '\r\n')" | tr -d '\r\n'; }
folder=$(here %LOCALAPPDATA%)/Programs/Vantrel
menu=$(here %APPDATA%)/Microsoft/Windows/Start\ Menu/Programs
entry='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantrel'
is_registered() { wine reg query "$entry" /v DisplayVersion >/dev/null 2>&1; }
install() { wine "$work/packages/Vantrel-win64-setup.exe" /S || give_up "the installer ended with $?"; }
shortcuts() { find "$menu" -name 'Vantrel*.lnk' | wc -l; }

# What a run that was cut off has left behind.
wine reg delete "$entry" /f >/dev/null 2>&1 || true
rm -rf "$folder" "$menu"/Vantrel*.lnk
trap 'rm -rf "$folder"' EXIT

install
there Vantrel/Vantrel.exe Vantrel/Japanese.lng Vantrel/FileTable.tbl Vantrel/Japanese.ico \
    Trial/Zurolink.dll Trial/jobs/MAIN.JBI Trial/controllers/line1-weld/CALIB.JBI Uninstall.exe \
    ZUROLINKDLL/Help/Zurolink_us.pdf ZUROLINKDLL/Help/Zurolink_jp.pdf
gone Vantrel/Zurolink.dll
is_registered || give_up "not in the list of installed programs"
[ "$(shortcuts)" -eq 2 ] || give_up "$(shortcuts) entries in the start menu"
(cd "$folder/Vantrel" && wine Vantrel.exe /EXIT) || give_up "the program does not start"

mine=(Vantrel/Vantrel.ini Vantrel/robot.ini Vantrel/Zurolink.dll Trial/Vantrel.ini Trial/jobs/MAIN.JBI)
for file in "${mine[@]}" Vantrel/English.lng; do printf mine >"$folder/$file"; done
rm "$folder/Trial/controllers/line1-weld/CALIB.JBI"
install
for file in "${mine[@]}" Vantrel/English.lng.old; do holds "$file" mine; done
cmp -s "$folder/Vantrel/English.lng" "$source_folder/data/English.lng" || give_up "a text was not renewed"
gone Vantrel/Japanese.lng.old Trial/English.lng.old Trial/controllers/line1-weld/CALIB.JBI

# The simulator is renewed, and removed, unless the maker's library stands in its place.
printf mine >"$folder/Trial/Zurolink.dll"
install
holds Trial/Zurolink.dll mine
rm "$folder/Trial/Zurolink.dll"
install
cp "$folder/Trial/Zurolink.dll" "$work/simulator.dll"
printf 'as of another version' | dd of="$folder/Trial/Zurolink.dll" conv=notrunc status=none
install
cmp -s "$folder/Trial/Zurolink.dll" "$work/simulator.dll" || give_up "the simulator was not renewed"

# From a copy: where it was installed it would start one itself and end before that one has.
installed=$(cd "$folder" && wine winepath -w . 2>/dev/null | tr -d '\r\n')
cp "$folder/Uninstall.exe" "$work/Uninstall.exe"
wine "$work/Uninstall.exe" /S "_?=$installed" || give_up "the uninstaller ended with $?"
gone Vantrel/Vantrel.exe Vantrel/English.lng Vantrel/English.ico Vantrel/LICENSE.txt \
    Trial/Vantrel.exe Trial/Zurolink.dll ZUROLINKDLL Uninstall.exe
for file in "${mine[@]}" Vantrel/English.lng.old; do holds "$file" mine; done
! is_registered || give_up "still in the list of installed programs"
[ "$(shortcuts)" -eq 0 ] || give_up "still in the start menu"
echo "Installed, brought up to date and uninstalled; what the operator had is still there."
