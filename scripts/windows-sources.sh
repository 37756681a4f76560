# shellcheck shell=bash
# What the scripts have in common that build a library for Windows from the distribution's source
# package: sourced by scripts/windows-toolkit.sh and scripts/windows-git.sh.
#
# Each library lies in a cache outside the build tree, in a folder named after version, target and
# options, so it is built once and found from then on. VANTREL_TOOLKITS names another cache.

# Sets `machine`, `host` and `cache`.
choose_target() {
    machine=${1:-}
    case $machine in
    x86_64 | i686) ;;
    *)
        echo "Usage: scripts/${0##*/} x86_64|i686" >&2
        exit 2
        ;;
    esac
    host=$machine-w64-mingw32
    cache=${VANTREL_TOOLKITS:-${XDG_CACHE_HOME:-$HOME/.cache}/vantrel/toolkits}
    mkdir -p "$cache"
    cache=$(cd "$cache" && pwd)
}

# apt-get with source entries of the machine's own mirrors, in package lists of its own, so that
# neither root nor a change to the system's lists is needed.
as_source_entries() {
    local file apt=$cache/apt
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
    local apt=$cache/apt
    apt-get -q -o Dir::Etc::SourceList="$apt/list" -o Dir::Etc::SourceParts="$apt/parts" \
        -o Dir::State::Lists="$apt/lists" -o Dir::Cache::archives="$apt/archives" \
        -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache= "$@"
}
# fetch_sources FOLDER PACKAGE=VERSION...: unpacked, each in a folder of its own below.
fetch_sources() {
    local folder=$1
    shift
    exec 8>"$cache/lock-apt" # two builds share the lists
    flock 8
    as_source_entries
    source_apt update
    mkdir -p "$folder"
    (cd "$folder" && source_apt source "$@")
    exec 8>&-
}

# key_of TEXT...: short, and another one for other texts or another compiler.
key_of() {
    printf '%s\n' "$@" "$("$host-g++-posix" -dumpfullversion)" | sha256sum | cut -c 1-12
}

# build_once PREFIX NAME LOCK BUILD: calls BUILD with a new folder to work in unless PREFIX is whole.
# One at a time: the second finds what the first has built.
build_once() {
    local prefix=$1 name=$2 lock=$3 build=$4 work log
    exec 9>"$lock"
    flock 9
    # The mark is written last, so a build that was cut off is started anew.
    [ ! -f "$prefix/complete" ] || return 0
    rm -rf "$prefix"
    work=$(mktemp -d "$cache/build-$machine-XXXXXX")
    # shellcheck disable=SC2064 # the folder of now
    trap "rm -rf '$work'" EXIT
    log=$cache/$name-$machine.log
    echo "Building $name for $host once (output in $log) ..." >&2
    # In the background, since a shell passes over failed steps inside a condition.
    "$build" "$work" >"$log" 2>&1 &
    if ! wait $!; then
        tail -n 40 "$log" >&2
        echo "$name could not be built; the whole output is in $log." >&2
        exit 1
    fi
    touch "$prefix/complete"
}
