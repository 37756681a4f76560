#!/usr/bin/env bash
# Runs a Windows program under Wine: scripts/wine.sh PROGRAM.exe [ARGUMENT]...
# Wine gets a folder of its own and starts in a Japanese locale, which gives it code page 932. Both
# are made once and kept in the cache; VANTREL_WINE names another place for them, VANTREL_LOCALE
# another locale. On a display without a window manager (VANTREL_MANAGER=none) Wine puts up the
# program's windows by itself: they are shown, moved and activated at once then, as on Windows.
set -euo pipefail

cache=${VANTREL_WINE:-${XDG_CACHE_HOME:-$HOME/.cache}/vantrel/wine}
locale=${VANTREL_LOCALE:-ja_JP.UTF-8}
mkdir -p "$cache/locales"

prepare_locale() {
    [ -d "$cache/locales/$locale" ] && return
    # Under a name of its own until it is whole.
    local work
    work=$(mktemp -d "$cache/locales/new-XXXXXX")
    localedef -i "${locale%.*}" -f UTF-8 "$work/made" >&2 || true # also for mere warnings
    mv -T "$work/made" "$cache/locales/$locale" 2>/dev/null || [ -d "$cache/locales/$locale" ]
    rm -rf "$work"
}

# By `env`, since this shell itself could not take a locale from that folder.
in_locale() { env LOCPATH="$cache/locales" LC_ALL="$locale" "$@"; }

# Without its own questions about add-ons, and without a link to this user's documents.
prepare_wine() {
    [ -f "$WINEPREFIX/complete" ] && return
    in_locale wineboot --init >/dev/null 2>&1
    wineserver --wait
    touch "$WINEPREFIX/complete"
}

# The first program starts services that outlive it. They would keep its output open, and whoever
# reads that waiting. They stay for the next program, which might else begin while they end.
start_services() {
    wineserver -k0 2>/dev/null && return
    local seconds=20
    in_locale wineserver "--persistent=$seconds" </dev/null >/dev/null 2>&1 9>&-
    in_locale wine cmd /c exit </dev/null >/dev/null 2>&1 9>&-
}

put_up_windows() {
    in_locale wine reg add "HKCU\\Software\\Wine\\AppDefaults\\$(basename "$1")\\X11 Driver" \
        /v Managed /d N /f </dev/null >/dev/null 2>&1 9>&-
}

export WINEPREFIX=$cache/$locale WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d"
exec 9>"$cache/lock"
flock 9
prepare_locale
prepare_wine
start_services
[ "${VANTREL_MANAGER:-}" != none ] || put_up_windows "$1"
exec 9>&-
exec env LOCPATH="$cache/locales" LC_ALL="$locale" wine "$@"
