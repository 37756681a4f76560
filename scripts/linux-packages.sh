#!/usr/bin/env bash
# Makes what is delivered for Linux from a build: scripts/linux-packages.sh BUILD OUTPUT
# In OUTPUT there are then Vantrel-linux-ARCHITECTURE.tar.gz, to be unpacked anywhere by one user,
# and vantrel_VERSION_ARCHITECTURE.deb, for all users of a machine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$1
mkdir -p "$2"
output=$(cd "$2" && pwd)

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
architecture=$(dpkg --print-architecture)
date=$(date --utc --date="@${SOURCE_DATE_EPOCH:-$(date +%s)}" +%F)
stage=$output/stage
rm -rf "$stage"
umask 022

# Staged, so that nothing of this machine's paths gets into the files.
install_to() { # ROOT PREFIX [COMPONENT]
    DESTDIR=$1 cmake --install "$build" --prefix "$2" --strip ${3:+--component "$3"} >>"$output/install.log"
}

# The program alone, and beside it a folder to try it in with the simulator. The manuals lie where
# both look for them.
make_archive() {
    local name=Vantrel-linux-$architecture
    local root=$stage/archive
    install_to "$root" "/$name/Vantrel" program
    install_to "$root" "/$name/Trial"
    cp LICENSE "$root/$name/Vantrel/LICENSE.txt"
    tar --create --gzip --owner=0 --group=0 --sort=name --directory "$root" \
        --file "$output/$name.tar.gz" "$name"
    printf '%s\n' "$output/$name.tar.gz"
}

icons() { # SHARE
    local size folder
    for size in 16 24 32 48 64 128 256; do
        folder=$1/icons/hicolor/${size}x$size/apps
        mkdir -p "$folder"
        rsvg-convert --width "$size" --height "$size" --output "$folder/vantrel.png" data/icons/vantrel.svg
    done
    install -D -m 644 data/icons/vantrel.svg "$1/icons/hicolor/scalable/apps/vantrel.svg"
}

# What the programs link, by Debian's packages and versions.
dependencies() { # FILE...
    local work=$stage/dependencies
    mkdir -p "$work/debian"
    printf 'Source: vantrel\nPackage: vantrel\nArchitecture: any\n' >"$work/debian/control"
    (cd "$work" && dpkg-shlibdeps -O "$@" 2>>"$output/install.log") | sed -n 's/^shlibs:Depends=//p'
}

control() { # ROOT
    local program=$1/opt/vantrel/Vantrel
    cat <<EOF
Package: vantrel
Version: $version
Architecture: $architecture
Maintainer: The Vantrel maintainers <vantrel@localhost>
Installed-Size: $(du --summarize --apparent-size --block-size=1024 "$1" | cut -f1)
Depends: $(dependencies "$program/Vantrel" "$program/libZurolink.so")
Recommends: xdg-utils, librsvg2-common, fonts-vlgothic
Section: utils
Priority: optional
Description: moves job and data files between a PC and a robot controller
 Vantrel shows the folders of the PC on the left and the files of an
 industrial-robot controller on the right. It copies, moves and deletes files
 in both directions and asks before it replaces anything. A simulator with
 sample controllers is included. Japanese and English.
EOF
}

make_deb() {
    local root=$stage/deb
    local share=$root/usr/share
    install_to "$root" /opt/vantrel/Vantrel
    install -m 755 packaging/linux/vantrel "$root/opt/vantrel/vantrel"
    # A start after an upgrade knows by it that there is something new; a build of its own counts.
    printf '%s %s\n' "$version" "$(sha256sum <"$root/opt/vantrel/Vantrel/Vantrel" | cut -c 1-16)" \
        >"$root/opt/vantrel/version"
    mkdir -p "$root/usr/bin"
    ln -s /opt/vantrel/vantrel "$root/usr/bin/vantrel"
    install -D -m 644 packaging/linux/vantrel.desktop "$share/applications/vantrel.desktop"
    mkdir -p "$share/metainfo"
    sed -e "s/@VERSION@/$version/" -e "s/@DATE@/$date/" packaging/linux/org.vantrel.Vantrel.metainfo.xml.in \
        >"$share/metainfo/org.vantrel.Vantrel.metainfo.xml"
    install -D -m 644 LICENSE "$share/doc/vantrel/copyright"
    icons "$share"
    mkdir "$root/DEBIAN"
    control "$root" >"$stage/control"
    mv "$stage/control" "$root/DEBIAN/control"
    (cd "$root" && find opt usr -type f -print0 | sort -z | xargs -0 md5sum >DEBIAN/md5sums)
    dpkg-deb --build --root-owner-group "$root" "$output/vantrel_${version}_$architecture.deb" >>"$output/install.log"
    printf '%s\n' "$output/vantrel_${version}_$architecture.deb"
}

: >"$output/install.log"
make_archive
make_deb
rm -rf "$stage"
