# Driving the real program on a display, as an operator does: sourced by the scripts that do so.
# Nothing here waits for a fixed time; each wait is for something to be seen, with an end.

patience=${VANTREL_PATIENCE:-40} # seconds until a wait gives up

say() { printf '%s\n' "$*"; }
give_up() {
    say "FAILED: $*"
    [ -z "${screenshots:-}" ] || import -window root "$screenshots/failed.png" || true
    exit 1
}

# Nothing ends a scenario without a word.
set -o errtrace
trap '[ "$BASH_SUBSHELL" -gt 0 ] || give_up "line $LINENO: $BASH_COMMAND"' ERR

# until_true WHAT COMMAND...: repeats the command until it succeeds.
until_true() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || give_up "waited in vain for: $what"
        [ -z "${program:-}" ] || kill -0 "$program" 2>/dev/null || give_up "the program ended while waiting for: $what"
        read -r -t 0.05 <> <(:) || true
    done
}

# The last visible window with exactly this title; fails when there is none.
window_titled() {
    local found
    # The search fails when a window goes away while it looks.
    found=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1) || true
    [ -n "$found" ] && printf '%s\n' "$found"
}
# Whether there is one; it is then in `window`.
is_shown() { window=$(window_titled "$1"); }
is_gone() { ! is_shown "$1"; }

# A window that waits for an answer, as opposed to the progress window of the same title.
question_titled() {
    local window
    for window in $(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null); do
        xprop -id "$window" _NET_WM_STATE 2>/dev/null | grep -q MODAL && {
            printf '%s\n' "$window"
            return 0
        }
    done
    return 1
}
# Whether there is one; it is then in `window`.
asks() { window=$(question_titled "$1"); }

is_active() { [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ]; }
# Asked for again each time: a window that opens in between takes the activation for itself.
becomes_active() {
    is_active "$1" || { xdotool windowactivate "$1" 2>/dev/null || true; is_active "$1"; }
}
activate() {
    until_true "window $1 to become active" becomes_active "$1"
}
keys() { xdotool key --clearmodifiers --delay 20 "$@"; }
# click WINDOW X Y: pixels from the window's upper left corner.
click() { xdotool mousemove --window "$1" "$2" "$3" click 1; }

# Whether nothing in a window changes for a while.
is_still() {
    local before
    before=$(import -window "$1" rgba:- | md5sum)
    read -r -t 0.2 <> <(:) || true
    [ "$(import -window "$1" rgba:- | md5sum)" = "$before" ]
}

has_ended() { ! kill -0 "$program" 2>/dev/null; }
same_bytes() { cmp -s "$1" "$2"; }
