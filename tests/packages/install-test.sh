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
# With the switch that shows no window.
start() { "$folder/Vantrel" /automation || give_up "the program ended with $?"; }
holds() { [ "$(cat "$folder/$1")" = "$2" ] || give_up "$1 does not hold \"$2\""; }
delivered=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../data" && pwd)
is_renewed() { cmp -s "$folder/$1" "$delivered/$1" || give_up "$1 was not renewed"; }

install_again "$1"
for file in English.lng Japanese.ico FileTable.dat; do is_renewed "$file"; done
[ -z "$(find "$folder" -name '*.new')" ] || give_up "a new folder is not whole"
cp "$folder/libZurolink.so" "$work/simulator"
kept=(Vantrel.ini robot.ini simulator.ini jobs/MAIN.JBI)
for file in English.lng FileTable.tbl libZurolink.so "${kept[@]}"; do printf 'mine' >"$folder/$file"; done
rm "$folder/controllers/line1-weld/CALIB.JBI"

install_again "$1"
for file in English.lng FileTable.tbl; do holds "$file" mine; done
start
for file in English.lng FileTable.tbl; do
    is_renewed "$file"
    holds "$file.old" mine
done
[ ! -e "$folder/Japanese.lng.old" ] || give_up "a text that nobody changed was kept"
for file in libZurolink.so "${kept[@]}"; do holds "$file" mine; done
[ ! -e "$folder/controllers/line1-weld/CALIB.JBI" ] || give_up "a deleted job came back"

# As an older version leaves it: its own texts, one that the operator has changed since, and its
# simulator.
printf 'older' | tee "$folder/System.lng" "$folder/.installed/System.lng" >"$folder/.installed/English.lng"
printf 'mine again' >"$folder/English.lng"
printf 'older ZurolinkSimulator' >"$folder/libZurolink.so"
install_again "$1"
start
holds English.lng.old mine
holds English.lng.old2 'mine again'
[ ! -e "$folder/System.lng.old" ] || give_up "a text of an older version was kept"
is_renewed System.lng
cmp -s "$folder/libZurolink.so" "$work/simulator" || give_up "the simulator was not renewed"
[ -z "$(find "$folder" -name '*.new')" ] || give_up "something is still waiting"
