# shellcheck shell=bash
# Which Debian packages the build, the tests and the virtual display need, and how to get them.
# Sourced by ./run, ./test, ./test-windows and scripts/.
source "$(dirname "${BASH_SOURCE[0]}")/steps.sh"

# For scripts/pack.sh.
linux_packages=(dpkg-dev fakeroot file librsvg2-bin)
# The two headers-only libraries of console/.
header_packages=(libcli11-dev nlohmann-json3-dev)
build_packages=("${header_packages[@]}" g++ cmake ninja-build ccache libwxgtk3.2-dev libgtk-3-dev libgit2-dev pkg-config librsvg2-common fonts-vlgothic
    ruby-asciidoctor-pdf fonts-morisawa-bizud-gothic)
display_packages=(xvfb openbox xdotool imagemagick x11-utils adwaita-icon-theme)
test_packages=(git libgtest-dev libgmock-dev g++-multilib python3 poppler-utils "${linux_packages[@]}" desktop-file-utils appstream)
# For scripts/format.sh and scripts/tidy.sh, of one version everywhere.
style_packages=(git clang-14 clang-format-14 clang-tidy-14)
fuzz_packages=(clang cmake ninja-build ccache libgit2-dev pkg-config)
# For the Windows build and its tests under Wine; the source packages of the toolkit and of
# libgit2 are fetched by scripts/windows-toolkit.sh and scripts/windows-git.sh.
windows_packages=("${header_packages[@]}" g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix cmake ninja-build ccache make dpkg-dev libz-mingw-w64-dev
    libgtest-dev libgmock-dev python3 librsvg2-bin icoutils fakeroot nsis wine wine64 locales fonts-vlgothic
    ruby-asciidoctor-pdf fonts-morisawa-bizud-gothic poppler-utils)

is_debian_like() {
    command -v dpkg-query >/dev/null && command -v apt-get >/dev/null
}

missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            printf '%s\n' "$package"
    done
}

# Installs what is missing; on another kind of system says what is needed and goes on.
ensure_packages() {
    if ! is_debian_like; then
        printf 'Not a Debian-like system. What is needed, by its Debian names:\n  %s\n' "$*"
        return 0
    fi
    local -a missing
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    printf 'Missing: %s\n' "${missing[*]}"
    local -a as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Please install these as root; there is no sudo here." >&2
            return 1
        fi
        as_root=(sudo)
    fi
    logged build/packages.log "Reading the package lists" "${as_root[@]}" apt-get update -q
    logged build/packages.log "Installing them" "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}"
}
