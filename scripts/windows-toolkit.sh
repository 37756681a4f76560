#!/usr/bin/env bash
# Builds wxWidgets for Windows from the distribution's source package, static, and says where it is:
#   scripts/windows-toolkit.sh x86_64|i686
# The last line of the output is its folder. It lies in a cache outside the build tree, named after
# version, target and options, so it is built once (some 8 minutes) and found from then on.
# VANTREL_TOOLKITS names another cache; nothing of the system's package lists is changed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

machine=${1:-}
case $machine in
x86_64 | i686) ;;
*)
    echo "Usage: scripts/windows-toolkit.sh x86_64|i686" >&2
    exit 2
    ;;
esac

host=$machine-w64-mingw32
package=wxwidgets3.2
cache=${VANTREL_TOOLKITS:-${XDG_CACHE_HOME:-$HOME/.cache}/vantrel/toolkits}
mkdir -p "$cache"
cache=$(cd "$cache" && pwd)

# The source package lacks the bundled image and compression libraries, so all that needs them is
# off; SVG drawings need none. What the program has no use for is off as well.
options=(--disable-shared --with-msw --enable-unicode --disable-precomp-headers --without-libpng
    --without-libjpeg --without-libtiff --without-expat --without-zlib --without-liblzma
    --without-opengl --without-regex --disable-svg --disable-webview --disable-mediactrl --disable-stc
    --disable-ribbon --disable-propgrid --disable-richtext --disable-html --disable-aui
    --disable-xrc --disable-sockets --disable-protocols --disable-url --disable-fs_inet
    --disable-debugreport)
# With each function in a section of its own the linker leaves out what nobody calls.
flags="-O2 -ffunction-sections -fdata-sections"

# apt-get with source entries of the machine's own mirrors, in package lists of its own, so that
# neither root nor a change to the system's lists is needed.
apt="$cache/apt"
as_source_entries() {
    local file
    mkdir -p "$apt/parts" "$apt/lists/partial" "$apt/archives/partial"
    rm -f "$apt"/parts/* "$apt/list"
    touch "$apt/list"
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ ! -f "$file" ] || sed -n 's/^deb\(-src\)\{0,1\} /deb-src /p' "$file" >>"$apt/list"
    done
    for file in /etc/apt/sources.list.d/*.sources; do
        [ ! -f "$file" ] || sed 's/^Types:.*/Types: deb-src/' "$file" >"$apt/parts/${file##*/}"
    done
}
source_apt() {
    apt-get -q -o Dir::Etc::SourceList="$apt/list" -o Dir::Etc::SourceParts="$apt/parts" \
        -o Dir::State::Lists="$apt/lists" -o Dir::Cache::archives="$apt/archives" \
        -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache= "$@"
}

# The version that belongs to the Linux build's toolkit, so that both systems get the same.
wanted_version() {
    dpkg-query -W -f='${source:Version}' libwxgtk3.2-dev 2>/dev/null ||
        apt-cache show libwxgtk3.2-dev | sed -n 's/^Version: \([^+ ]*[^ ]*\).*/\1/p' | head -n 1
}

fetch_source() {
    local folder=$1
    as_source_entries
    source_apt update
    mkdir -p "$folder"
    (cd "$folder" && source_apt source "$package=$version")
}

build() {
    local work=$1 source
    fetch_source "$work/source"
    source=$(find "$work/source" -mindepth 1 -maxdepth 1 -type d)
    mkdir -p "$work/build"
    cd "$work/build"
    "$source/configure" --host="$host" --build="$(dpkg-architecture -qDEB_BUILD_GNU_TYPE)" --prefix="$prefix" \
        CC="$host-gcc-posix" CXX="$host-g++-posix" CFLAGS="$flags" CXXFLAGS="$flags" "${options[@]}"
    make -j "$(nproc)"
    make install
}

version=$(wanted_version)
key=$(printf '%s\n' "$version" "$host" "$flags" "${options[@]}" "$("$host-g++-posix" -dumpfullversion)" |
    sha256sum | cut -c 1-12)
prefix=$cache/wxwidgets-${version//[^a-zA-Z0-9.]/-}-$machine-$key

# One at a time: the second finds what the first has built.
exec 9>"$cache/lock-$machine"
flock 9
# The mark is written last, so a build that was cut off is started anew.
if [ ! -f "$prefix/complete" ]; then
    rm -rf "$prefix"
    work=$(mktemp -d "$cache/build-$machine-XXXXXX")
    trap 'rm -rf "$work"' EXIT
    log=$cache/wxwidgets-$machine.log
    echo "Building the toolkit for $host once (output in $log) ..." >&2
    # In the background, since a shell passes over failed steps inside a condition.
    build "$work" >"$log" 2>&1 &
    if ! wait $!; then
        tail -n 40 "$log" >&2
        echo "The toolkit could not be built; the whole output is in $log." >&2
        exit 1
    fi
    touch "$prefix/complete"
fi
printf '%s\n' "$prefix"
