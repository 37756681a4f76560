#!/usr/bin/env bash
# Builds wxWidgets for Windows from the distribution's source package, static, and says where it is:
#   scripts/windows-toolkit.sh x86_64|i686
# The last line of the output is its folder. It lies in a cache outside the build tree, named after
# version, target and options, so it is built once (some 8 minutes) and found from then on.
# VANTREL_TOOLKITS names another cache; nothing of the system's package lists is changed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

source scripts/windows-sources.sh
choose_target "$@"
package=wxwidgets3.2

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

# The version that belongs to the Linux build's toolkit, so that both systems get the same.
wanted_version() {
    dpkg-query -W -f='${source:Version}' libwxgtk3.2-dev 2>/dev/null ||
        apt-cache show libwxgtk3.2-dev | sed -n 's/^Version: \([^+ ]*[^ ]*\).*/\1/p' | head -n 1
}

build() {
    local work=$1 source
    fetch_sources "$work/source" "$package=$version"
    source=$(find "$work/source" -mindepth 1 -maxdepth 1 -type d)
    mkdir -p "$work/build"
    cd "$work/build"
    "$source/configure" --host="$host" --build="$(dpkg-architecture -qDEB_BUILD_GNU_TYPE)" --prefix="$prefix" \
        CC="$host-gcc-posix" CXX="$host-g++-posix" CFLAGS="$flags" CXXFLAGS="$flags" "${options[@]}"
    make -j "$(nproc)"
    make install
}

version=$(wanted_version)
key=$(key_of "$version" "$host" "$flags" "${options[@]}")
prefix=$cache/wxwidgets-${version//[^a-zA-Z0-9.]/-}-$machine-$key
build_once "$prefix" wxwidgets "$cache/lock-$machine" build
printf '%s\n' "$prefix"
