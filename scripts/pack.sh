#!/usr/bin/env bash
# Packs what is delivered from a build, and says what it made: scripts/pack.sh BUILD OUTPUT
# From a build for Linux there are then in OUTPUT Vantrel-linux-ARCHITECTURE.tar.gz, to be unpacked
# anywhere by one user, and vantrel_VERSION_ARCHITECTURE.deb, for all users of a machine; from one for
# Windows NAME.zip, its content in the folder NAME, and the installer NAME-setup.exe, with Vantrel-win32
# or Vantrel-win64 for NAME.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$(cd "$1" && pwd)
mkdir -p "$2"
output=$(cd "$2" && pwd)
log=$output/pack.log

# Everybody may read what is packed, and root owns it.
umask 022
fakeroot cpack --config "$build/CPackConfig.cmake" -B "$output" >"$log" 2>&1 || { cat "$log"; exit 1; }
rm -rf "$output/_CPack_Packages"
mapfile -t packages < <(sed -n 's/^CPack: - package: \(.*\) generated\.$/\1/p' "$log")

make_installer() { # ARCHIVE
    local content=${1%.zip} version
    rm -rf "$content"
    (cd "$output" && cmake -E tar xf "$1")
    version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
    makensis -V2 -DNAME="${content##*/}" -DVERSION="$version" -DCONTENT="$content" \
        -DOUTPUT="$content-setup.exe" -DICON="$build/ui/Vantrel.ico" packaging/windows/Vantrel.nsi
    packages+=("$content-setup.exe")
}

case ${packages[0]} in *.zip) make_installer "${packages[0]}" ;; esac
printf '%s\n' "${packages[@]}"
