#!/usr/bin/env bash
# Makes what is delivered for Windows from a build: scripts/windows-packages.sh BUILD NAME OUTPUT
# NAME is Vantrel-win32 or Vantrel-win64. In OUTPUT there are then the folder NAME, NAME.zip and the
# installer NAME-setup.exe.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$1 name=$2 output=$3
case $name in
Vantrel-win32 | Vantrel-win64) ;;
*)
    echo "Usage: scripts/windows-packages.sh BUILD Vantrel-win32|Vantrel-win64 OUTPUT" >&2
    exit 2
    ;;
esac

build=$(cd "$build" && pwd)
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
mkdir -p "$output"
output=$(cd "$output" && pwd)
rm -rf "${output:?}/$name" "$output/$name.zip" "$output/$name-setup.exe"

# The program alone, and beside it a folder to try it in with the simulator. The manuals lie where
# both look for them.
cmake --install "$build" --prefix "$output/$name/Vantrel" --component program >/dev/null
cmake --install "$build" --prefix "$output/$name/Trial" >/dev/null
cp LICENSE "$output/$name/Vantrel/LICENSE.txt"

(cd "$output" && zip -q -r -X "$name.zip" "$name")
makensis -V2 -DNAME="$name" -DVERSION="$version" -DCONTENT="$output/$name" \
    -DOUTPUT="$output/$name-setup.exe" -DICON="$build/ui/Vantrel.ico" packaging/windows/Vantrel.nsi
printf '%s\n' "$output/$name.zip" "$output/$name-setup.exe"
