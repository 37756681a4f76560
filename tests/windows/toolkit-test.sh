#!/usr/bin/env bash
# Configures a Windows build whose folder remembers a toolkit that is no longer there, and one that
# is no longer the wanted one:
#   tests/windows/toolkit-test.sh WORK_FOLDER
set -euo pipefail
source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
rm -rf "$1"
mkdir -p "$1"
work=$(cd "$1" && pwd)
give_up() {
    printf 'FAILED: %s\n' "$*"
    exit 1
}

configure() {
    cmake --preset windows-x64 -S "$source_folder" -B "$work/build" -DVANTREL_TESTS=OFF "$@" \
        >"$work/configure.log" 2>&1 || give_up "configuring; $(tail -n 20 "$work/configure.log")"
}
remembers() {
    grep -qx "wxWidgets_CONFIG_EXECUTABLE:FILEPATH=$1/bin/wx-config" "$work/build/CMakeCache.txt" ||
        give_up "the build folder remembers another toolkit than $1"
}

toolkit=$("$source_folder/scripts/windows-toolkit.sh" x86_64)
configure -DwxWidgets_CONFIG_EXECUTABLE="$work/emptied/bin/wx-config"
remembers "$toolkit"

# The same in another cache; only what names its own folder has to be a copy.
other=$work/other/${toolkit##*/}
mkdir "$work/other"
cp -rs "$toolkit" "$work/other"
rm "$other/bin/wx-config"
sed "s|$toolkit|$other|g" "$toolkit/bin/wx-config" >"$other/bin/wx-config"
chmod +x "$other/bin/wx-config"
VANTREL_TOOLKITS=$work/other configure
remembers "$other"
echo "A build folder takes the toolkit that is wanted, whatever it remembers."
