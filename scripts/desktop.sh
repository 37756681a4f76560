# shellcheck shell=bash
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

pause() { read -r -t "$1" <> <(:) || true; } # for so many seconds

# until_true WHAT COMMAND...: repeats the command until it succeeds.
until_true() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || give_up "waited in vain for: $what"
        [ -z "${program:-}" ] || kill -0 "$program" 2>/dev/null || give_up "the program ended while waiting for: $what"
        pause 0.05
    done
}

# visible_windows ARGUMENT...: those that xdotool's search finds. It ends with an error when a window
# goes away while it looks, and has then found nothing out.
visible_windows() {
    local found i
    for ((i = 0; i < 20; i++)); do
        if found=$(xdotool search --onlyvisible "$@" 2>&1) || [ -z "$found" ]; then
            printf '%s\n' "$found"
            return
        fi
    done
}
# The last visible window with exactly this title; fails when there is none.
window_titled() {
    local found
    found=$(visible_windows --name "^$1\$" | tail -n 1)
    [ -n "$found" ] && printf '%s\n' "$found"
}
# Whether there is one; it is then in `window`.
is_shown() { window=$(window_titled "$1"); }
is_gone() { ! is_shown "$1"; }

# A window that waits for an answer, as opposed to the progress window of the same title.
question_titled() {
    local window
    for window in $(visible_windows --name "^$1\$"); do
        xprop -id "$window" _NET_WM_STATE 2>/dev/null | grep -q MODAL && {
            printf '%s\n' "$window"
            return 0
        }
    done
    return 1
}
# Whether there is one; it is then in `window`.
asks() { window=$(question_titled "$1"); }

# Whether a window is active and has the keyboard, which some programs take a moment later.
is_active() {
    [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ] && [ "$(xdotool getwindowfocus 2>/dev/null)" = "$1" ]
}
# Asked for again each time: a window that opens in between takes the activation for itself.
becomes_active() {
    is_active "$1" || { xdotool windowactivate "$1" 2>/dev/null || true; is_active "$1"; }
}
activate() {
    until_true "window $1 to become active" becomes_active "$1"
}
# Waits for a question and activates it. Its window may be made anew once it is there, so it is looked
# for again each time.
activate_question() { until_true "the question of $1" becomes_active_question "$1"; }
becomes_active_question() { asks "$1" && becomes_active "$window"; }
# closes KEY LOOK TITLE: presses the key once in the window of that title that LOOK, is_shown or asks,
# finds. Whether there is none then, and stays none: a window can be made anew, and a key that
# comes before that is lost. It is to be repeated until it succeeds, with a key that the window
# behind does nothing with.
closes() {
    stays_gone "$2" "$3" && return
    "$2" "$3" && becomes_active "$window" || return 1
    keys "$1"
    local i
    for ((i = 0; i < 20; i++)); do
        stays_gone "$2" "$3" && return
        pause 0.05
    done
    return 1
}
stays_gone() { ! "$1" "$2" && pause 0.2 && ! "$1" "$2"; }
# answer TITLE KEY: waits for the question and answers it with the key.
answer() {
    activate_question "$1"
    until_true "the question of $1 to close" closes "$2" asks "$1"
}
keys() { xdotool key --clearmodifiers --delay 20 "$@"; }
# click WINDOW X Y: pixels from the window's upper left corner.
click() { xdotool mousemove --window "$1" "$2" "$3" click 1; }

# Whether nothing in a window changes for a while.
is_still() {
    local before
    before=$(import -window "$1" rgba:- | md5sum)
    pause 0.2
    [ "$(import -window "$1" rgba:- | md5sum)" = "$before" ]
}

# The same for longer: a busy machine paints in parts.
is_settled() { is_still "$1" && is_still "$1" && is_still "$1"; }

has_ended() { ! kill -0 "$program" 2>/dev/null; }
same_bytes() { cmp -s "$1" "$2"; }
