#!/usr/bin/env bash
# Makes the pictures of the operator's manual from the real windows, in each language:
#   scripts/virtual-display.sh scripts/manual-pictures.sh BUILD_FOLDER WORK_FOLDER
# Lays out a fresh trial folder, brings up one window after the other and writes its picture to
# docs/manual/pictures/. Run it after the windows or their texts have changed, look at the
# pictures and keep them with the sources.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/trial.sh"

build=$(cd "$1" && pwd)
mkdir -p "$2"
all_work=$(cd "$2" && pwd)
manual=$here/../docs/manual

# The search by title, which these take the place of, knows no Japanese titles.
windows_titled() {
    local found
    for found in $(visible_windows --class Vantrel); do
        [ "$(xdotool getwindowname "$found" 2>/dev/null)" != "$1" ] || printf '%s\n' "$found"
    done
}
is_modal() { [[ $(xprop -id "$1" _NET_WM_STATE 2>/dev/null) == *MODAL* ]]; }
window_titled() {
    local found
    found=$(windows_titled "$1" | tail -n 1)
    [ -n "$found" ] && printf '%s\n' "$found"
}
question_titled() {
    local found
    for found in $(windows_titled "$1"); do
        is_modal "$found" && printf '%s\n' "$found" && return 0
    done
    return 1
}

# text NUMBER: a text of the current language, as a window shows it.
text() {
    awk -F'"' -v number="$1" '$1 ~ /^[0-9]+ *$/ && $1 + 0 == number { print $4; exit }' \
        "$trial/$language.lng" | sed -e 's/(&.)//' -e 's/&//' -e 's/\.\.\.$//'
}

# keep NAME WINDOW [CROP]: a picture with the window's frame, in few colours.
keep() {
    import -frame -window "$2" "$work/$1.png"
    convert "$work/$1.png" ${3:+-crop "$3" +repage} +dither -colors 96 -strip \
        -define png:compression-level=9 "PNG8:$pictures/$1.png"
    say "  $1.png: $(stat -c %s "$pictures/$1.png") bytes"
}

# A window is painted when there is more in it than its ground.
is_painted() {
    [ "$(import -window "$1" -format '%k' info: 2>/dev/null || echo 0)" -gt 12 ]
}
painted() { until_true "window $1 to be painted" is_painted "$1"; }

# opened TITLE: waits for the window, which is then the active one in `window`.
opened() {
    until_true "the window $1" is_shown "$1"
    activate "$window"
    painted "$window"
}
closed() { until_true "the window $1 to close" is_gone "$1"; }
# dismiss TITLE KEY: closes the window with the key.
dismiss() { until_true "the window $1 to close" closes "$2" is_shown "$1"; }

start_with_language_dialog() {
    local settings=$trial/Vantrel.ini
    sed -i -e "s/^Language=.*/Language=$language\r/" -e 's/^LangSelect=.*/LangSelect=1\r/' "$settings"
    # The language of the first dialog and the font of all windows come from the locale's name; it
    # need not be installed for that.
    local locale=C.UTF-8
    [ "$language" = English ] || locale=ja_JP.UTF-8
    env LC_ALL=$locale "$trial/Vantrel" >"$work/program.log" 2>&1 &
    program=$!
    trap 'kill "$program" 2>/dev/null || true' EXIT
    opened "$(text 340)"
    keep language "$window"
    keys Return
}

main_window() {
    answer "$(text 0)" alt+y
    opened "$(text 129)"
    dismiss "$(text 129)" Escape
    opened "$title"
    main=$window
    # shellcheck disable=SC2046
    keys Home $(repeat "$(row_of DOORFR.JBI)" Down) shift+Down
    keep main "$main"
}

overwrite_question() {
    keys alt+f c
    activate_question "$(text 7)"
    painted "$window"
    keep overwrite "$window"
    dismiss "$(text 7)" alt+c
}

# Each transfer takes long enough for a picture.
progress() {
    sed -i 's/^\[Script\].*/&\n1=BscDownLoad 1+ slow 2500/' "$trial/simulator.ini"
    activate "$main"
    select_on_pc TRIAL1.JBI
    keys shift+Down alt+f c
    until_true "the progress window" is_in_progress "$(text 7)"
    painted "$window"
    # First it shows the command only, then the file that is on its way.
    import -frame -window "$window" "$work/command.png"
    until_true "the file's name" differs "$window" "$work/command.png"
    keep progress "$window"
    closed "$(text 7)"
}
# The progress window has the question's title but is not modal.
is_in_progress() {
    for window in $(windows_titled "$1"); do
        is_modal "$window" || return 0
    done
    return 1
}

viewer() {
    activate "$main"
    select_on_pc TRIAL1.JBI
    keys alt+f i
    until_true "the viewer" differs "$main" "$work/main.png"
    keep viewer "$main"
    keys alt+f i
}
differs() { # WINDOW FILE
    import -frame -window "$1" "$work/now.png"
    ! compare -metric AE "$2" "$work/now.png" null: 2>/dev/null
}

folder_tree() {
    activate "$main"
    select_on_pc TRIAL1.JBI
    import -frame -window "$main" "$work/before.png"
    # The window is as large as its captions need it, and everything in it is placed in proportion.
    local WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$main" | grep -E '^(WIDTH|HEIGHT)=')"
    click "$main" $((WIDTH * 370 / 1000)) $((HEIGHT * 175 / 1000))
    until_true "the folder tree" differs "$main" "$work/before.png"
    keep tree "$main" $((WIDTH * 48 / 100))x$((HEIGHT * 70 / 100))+0+$((HEIGHT * 13 / 100))
    keys Escape
}

settings() {
    activate "$main"
    keys alt+o s
    opened "$(text 300)"
    keep settings-robots "$window"
    keys ctrl+Next
    until_true "the next page" differs "$window" "$work/settings-robots.png"
    keep settings-communication "$window"
    keys ctrl+Next
    until_true "the next page" differs "$window" "$work/settings-communication.png"
    keep settings-options "$window"
    dismiss "$(text 300)" Escape
}

list_file() {
    activate "$main"
    keys alt+o j
    opened "$(text 19)"
    keys j o b s
    keep list-file "$window"
    dismiss "$(text 19)" Escape
}

end_program() {
    activate "$main"
    keys alt+F4
    activate_question "$(text 0)"
    keys Return
    until_true "the program to end" has_ended
    trap - EXIT
}

for language in English Japanese; do
    [ "$language" = English ] && pictures=$manual/pictures/en || pictures=$manual/pictures/ja
    mkdir -p "$pictures"
    say "$language:"
    trial_lay_out "$build" "$all_work/$language"
    start_with_language_dialog
    main_window
    overwrite_question
    progress
    viewer
    folder_tree
    settings
    list_file
    end_program
done
