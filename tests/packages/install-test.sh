#!/usr/bin/env bash
# What an installation over an older one does with the files that an operator has:
#   tests/packages/install-test.sh BUILD_FOLDER WORK_FOLDER
set -euo pipefail
rm -rf "$2"
mkdir -p "$2"
work=$(cd "$2" && pwd)
folder=$work/Vantrel
give_up() {
    printf 'FAILED: %s\n' "$*"
    exit 1
}
install_again() { cmake --install "$1" --prefix "$folder" >"$work/install.log"; }
holds() { [ "$(cat "$folder/$1")" = "$2" ] || give_up "$1 does not hold \"$2\""; }

install_again "$1"
cp "$folder/English.lng" "$work/English.lng"
for file in English.lng FileTable.tbl Vantrel.ini robot.ini simulator.ini libZurolink.so jobs/MAIN.JBI; do
    printf 'mine' >"$folder/$file"
done
rm "$folder/controllers/line1-weld/CALIB.JBI"

install_again "$1"
cmp -s "$folder/English.lng" "$work/English.lng" || give_up "the texts were not renewed"
holds English.lng.old mine
holds FileTable.tbl.old mine
[ ! -e "$folder/Japanese.lng.old" ] || give_up "a text that nobody changed was kept"
for file in Vantrel.ini robot.ini simulator.ini libZurolink.so jobs/MAIN.JBI; do holds "$file" mine; done
[ ! -e "$folder/controllers/line1-weld/CALIB.JBI" ] || give_up "a deleted job came back"

install_again "$1"
holds English.lng.old mine

# As an older version leaves it: its own texts, and one that the operator has changed since.
printf 'older' | tee "$folder/System.lng" "$folder/.installed/System.lng" >"$folder/.installed/English.lng"
printf 'mine again' >"$folder/English.lng"
install_again "$1"
holds English.lng.old mine
holds English.lng.old2 'mine again'
[ ! -e "$folder/System.lng.old" ] || give_up "a text of an older version was kept"
cmp -s "$folder/System.lng" "$folder/.installed/System.lng" || give_up "a text was not renewed"
