#!/usr/bin/env bash
# Builds libgit2 and what it needs for Windows from the distribution's source packages, static, and
# says where it is:
#   scripts/windows-git.sh x86_64|i686
# The last line of the output is its folder, in the cache of scripts/windows-sources.sh; building
# takes some 3 minutes once.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/windows-sources.sh
choose_target "$@"

# The history reaches other computers through folders only, so nothing that speaks to a network is in.
options=(-DBUILD_SHARED_LIBS=OFF -DBUILD_TESTS=OFF -DBUILD_CLI=OFF -DUSE_HTTPS=OFF -DUSE_SSH=OFF
    -DUSE_WINHTTP=OFF -DUSE_NTLMCLIENT=OFF -DUSE_HTTP_PARSER=system -DREGEX_BACKEND=pcre2)
pcre_options=(-DBUILD_SHARED_LIBS=OFF -DPCRE2_BUILD_TESTS=OFF -DPCRE2_BUILD_PCRE2GREP=OFF)
flags="-O2 -ffunction-sections -fdata-sections -DPCRE2_STATIC"

# The archive's own version: the sources of security updates are not served everywhere. Nothing where the
# machine has no package lists.
version_of() {
    apt-cache madison "$1" | awk -F' *[|] *' '$3 !~ /security/ && !found { print $2; found = 1 }'
}

# build_with_cmake SOURCE BUILD OPTION...
build_with_cmake() {
    local source=$1 build=$2
    shift 2
    cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_SYSTEM_NAME=Windows \
        -DCMAKE_SYSTEM_PROCESSOR="$machine" -DCMAKE_C_COMPILER="$host-gcc-posix" \
        -DCMAKE_RC_COMPILER="$host-windres" "-DCMAKE_C_FLAGS=$flags" -DCMAKE_INSTALL_PREFIX="$prefix" \
        "-DCMAKE_FIND_ROOT_PATH=$prefix;/usr/$host" -DCMAKE_FIND_ROOT_PATH_MODE_PROGRAM=NEVER \
        -DCMAKE_FIND_ROOT_PATH_MODE_LIBRARY=ONLY -DCMAKE_FIND_ROOT_PATH_MODE_INCLUDE=ONLY \
        -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=ONLY "$@"
    cmake --build "$build"
    cmake --install "$build"
}

build_parser() {
    local source=$1
    mkdir -p "$prefix/include" "$prefix/lib"
    # shellcheck disable=SC2086 # several flags
    "$host-gcc-posix" $flags -c "$source/http_parser.c" -o "$source/http_parser.o"
    "$host-ar" rcs "$prefix/lib/libhttp_parser.a" "$source/http_parser.o"
    cp "$source/http_parser.h" "$prefix/include/"
}

build() {
    local work=$1
    fetch_sources "$work/source" "libgit2=$git_version" "http-parser=$parser_version" "pcre2=$pcre_version"
    build_parser "$(echo "$work"/source/http-parser-*/)"
    build_with_cmake "$(echo "$work"/source/pcre2-*/)" "$work/pcre2" "${pcre_options[@]}"
    build_with_cmake "$(echo "$work"/source/libgit2-*/)" "$work/libgit2" "${options[@]}"
}

git_version=$(version_of libgit2-dev)
parser_version=$(version_of libhttp-parser-dev)
pcre_version=$(version_of libpcre2-dev)
if [ -z "$git_version" ] || [ -z "$parser_version" ] || [ -z "$pcre_version" ]; then
    built=$(find "$cache" -mindepth 2 -maxdepth 2 -path "*/libgit2-*-$machine-*/complete" | sort | tail -n 1)
    if [ -z "$built" ]; then
        echo "The package lists do not have libgit2, http-parser and pcre2; apt-get update reads them." >&2
        exit 1
    fi
    printf '%s\n' "${built%/complete}"
    exit 0
fi
key=$(key_of "$git_version" "$parser_version" "$pcre_version" "$host" "$flags" "${options[@]}" "${pcre_options[@]}")
prefix=$cache/libgit2-${git_version//[^a-zA-Z0-9.]/-}-$machine-$key
build_once "$prefix" libgit2 "$cache/lock-libgit2-$machine" build
printf '%s\n' "$prefix"
