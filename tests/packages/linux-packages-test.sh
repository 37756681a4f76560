#!/usr/bin/env bash
# Makes the packages for Linux and uses what they put down:
#   tests/packages/linux-packages-test.sh BUILD_FOLDER WORK_FOLDER
# The .deb is unpacked, not installed, and its program is started through its launcher, for a user
# whose home is in the work folder.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/../../scripts/trial.sh"

rm -rf "$2"
mkdir -p "$2"
work=$(cd "$2" && pwd)
screenshots=$work
(umask 077 && "$here/../../scripts/pack.sh" "$1" "$work")

say "Everybody may read what is packed, and root owns it, whoever packs it."
odd=$({ tar --list --verbose --file "$work"/Vantrel-linux-*.tar.gz && dpkg-deb --contents "$work"/vantrel_*.deb; } |
    awk '$2 != "root/root" || $1 !~ /^.r..r..r../')
[ -z "$odd" ] || give_up "$odd"

say "The archive has the program, the trial and the manuals."
archive=$(echo "$work"/Vantrel-linux-*.tar.gz)
unpacked=${archive%.tar.gz}
unpack() { tar --extract --file "$archive" --directory "$work"; }
unpack
for file in Vantrel/Vantrel Vantrel/vantrelctl Trial/vantrelctl Vantrel/.installed/English.lng.new Vantrel/LICENSE.txt Trial/Vantrel \
    Trial/.installed/libZurolink.so.new Trial/jobs/TRIAL1.JBI ZUROLINKDLL/Help/Zurolink_us.pdf \
    ZUROLINKDLL/Help/Zurolink_jp.pdf; do
    [ -s "$unpacked/$file" ] || give_up "not in the archive: $file"
done
[ ! -e "$unpacked/Vantrel/.installed/libZurolink.so.new" ] || give_up "the simulator is beside the real program"
! grep -rlF "$work" "$unpacked" || give_up "a path of this machine is in the archive"

say "Unpacked over an older one it keeps what the operator has changed."
start() { "$unpacked/Trial/Vantrel" /automation || give_up "the program of the archive ended with $?"; }
holds() { [ "$(cat "$unpacked/Trial/$1")" = "$2" ] || give_up "$1 does not hold \"$2\""; }
start
cmp "$unpacked/Trial/libZurolink.so" "$1/simulator/libZurolink.so" || give_up "the simulator is not in its place"
for file in English.lng libZurolink.so; do printf mine >"$unpacked/Trial/$file"; done
unpack
start
cmp "$unpacked/Trial/English.lng" "$here/../../data/English.lng" || give_up "a text was not renewed"
holds English.lng.old mine
holds libZurolink.so mine
[ ! -e "$unpacked/Trial/Japanese.lng.old" ] || give_up "a text that nobody changed was kept"

say "The .deb has what a desktop looks for."
root=$work/root
dpkg-deb --extract "$work"/vantrel_*.deb "$root"
desktop-file-validate "$root/usr/share/applications/vantrel.desktop"
appstreamcli validate --no-net "$root/usr/share/metainfo/org.vantrel.Vantrel.metainfo.xml"
for size in 16 24 32 48 64 128 256; do
    icon=$root/usr/share/icons/hicolor/${size}x$size/apps/vantrel.png
    [ "$(identify -format '%wx%h' "$icon")" = "${size}x$size" ] || give_up "no icon of $size pixels"
done
[ "$(readlink "$root/usr/bin/vantrel")" = /opt/vantrel/vantrel ] || give_up "no launcher among the programs"
[ "$(readlink "$root/usr/bin/vantrelctl")" = /opt/vantrel/vantrel ] || give_up "no vantrelctl among the programs"
for file in man/man1/vantrelctl.1 bash-completion/completions/vantrelctl; do
    [ -s "$root/usr/share/$file" ] || give_up "not in the .deb: $file"
done
bash -n "$root/usr/share/bash-completion/completions/vantrelctl"
dpkg-deb --field "$work"/vantrel_*.deb Depends | grep -q libwxgtk3.2 || give_up "the toolkit is not asked for"
! grep -rlF "$work" "$root" || give_up "a path of this machine is in the package"

say "Its program works in the user's folder and leaves what is installed alone."
as_installed() { (cd "$root" && find . -type f -newer "$work/installed" -printf 'changed: %p\n'); }
touch "$work/installed"
export XDG_DATA_HOME=$work/home
launcher=$root/opt/vantrel/vantrel
trial=$XDG_DATA_HOME/vantrel/Vantrel
trial_start
jobs=$trial/jobs
controller=$trial/controllers/line1-weld
select_on_controller CALIB.JBI
import -window root "$work/window.png"
keys alt+f c
until_true "CALIB.JBI in the user's folder" same_bytes "$jobs/CALIB.JBI" "$controller/CALIB.JBI"
until_true "the progress window to close" is_gone 'File transfer'
trial_close
[ -z "$(as_installed)" ] || give_up "$(as_installed)"
ln -s "$launcher" "$work/vantrelctl"
"$work/vantrelctl" list --mode hispeed >"$work/listed" || give_up "vantrelctl ended with $?"
grep -qx CALIB.JBI "$work/listed" || give_up "vantrelctl does not list the controller"
grep -q "^Path=$jobs" "$trial/Vantrel.ini" || give_up "the settings are not in the user's folder"
say "Packages passed."
