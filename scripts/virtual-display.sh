#!/usr/bin/env bash
# Runs a command on a virtual display of its own with a window manager:
#   scripts/virtual-display.sh COMMAND [ARGUMENT]...
# VANTREL_SCREEN sets its size ("1280x1024"), VANTREL_DPI its resolution, and VANTREL_MANAGER=none
# leaves the window manager out.
set -euo pipefail

work=$(mktemp -d)
server='' manager=''
clean_up() {
    [ -z "$manager" ] || kill "$manager" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap clean_up EXIT

# The server picks a free display number itself and writes it once it accepts connections.
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 "${VANTREL_SCREEN:-1280x1024}x24" -dpi "${VANTREL_DPI:-96}" \
    -nolisten tcp 3>"$work/display" 2>"$work/server.log" &
server=$!
if ! read -r -t 30 number <"$work/display"; then
    echo "The virtual display did not start:" >&2
    cat "$work/server.log" >&2
    exit 1
fi
export DISPLAY=":$number"
unset WAYLAND_DISPLAY
export GDK_BACKEND=x11 NO_AT_BRIDGE=1 GTK_A11Y=none

if [ "${VANTREL_MANAGER:-openbox}" != none ]; then
    openbox --sm-disable >"$work/manager.log" 2>&1 &
    manager=$!
    for _ in $(seq 200); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
        read -r -t 0.05 <> <(:) || true
    done
fi

status=0
"$@" || status=$?
exit "$status"
