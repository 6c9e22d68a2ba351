# What the walks of a user share: the real program on a display of its own, driven by real keys and clicks. Sourced by
# bash. What the program did is read where a user would find it: in the titles of its windows, in files, in settings.

set -uo pipefail

program=${1:?the program to walk through}
place=$(mktemp -d)
pid=
runner=() # a command that becomes the program

finish() {
    [ -n "$pid" ] && kill -KILL "$pid" 2>/dev/null
    rm -rf "$place"
}
trap finish EXIT

fail() {
    printf 'FAILED: %s\n' "$*" >&2
    printf 'Windows: %s\nActive: %s\n' "$(titles | paste -sd '|')" "$(xdotool getactivewindow getwindowname 2>&1)" >&2
    [ -n "${TARVEX_WALK_PICTURE:-}" ] && import -silent -window root "$TARVEX_WALK_PICTURE" 2>/dev/null
    exit 1
}

# until_true SECONDS COMMAND...: tries again and again, for at most that long.
until_true() {
    local limit=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $limit ] || return 1
        sleep 0.05
    done
}

titles() { wmctrl -l 2>/dev/null | cut -d ' ' -f 5-; }
has_title() { titles | grep -qF -- "$1"; }
lacks_title() { ! has_title "$1"; }
expect_title() { until_true 20 has_title "$1" || fail "no window \"$1\""; }
expect_no_title() { until_true 20 lacks_title "$1" || fail "there is still a window \"$1\""; }

# expect_active TITLE: keys go to the window of that title from now on.
active_is() { [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == *"$1"* ]]; }
expect_active() { until_true 20 active_is "$1" || fail "\"$1\" is not the active window"; }

# expect_dialogue [TITLE]: keys go to a window that is neither the program's nor the one called TITLE, if that is given.
dialogue_active() {
    local active
    active=$(xdotool getactivewindow getwindowname 2>/dev/null)
    [[ -n $active && $active != "Tarvex - "* && (-z ${1:-} || $active != *"$1"*) ]]
}
expect_dialogue() { until_true 20 dialogue_active "${1:-}" || fail "no dialogue came up"; }

menus_open() { xdotool search --onlyvisible --pid "$pid" 2>/dev/null | wc -l; }

# The menu that ALT+key opens is a window of its own.
open_menu() {
    local before
    before=$(menus_open)
    more() { [ "$(menus_open)" -gt "$before" ]; }
    press "alt+$1"
    until_true 10 more || fail "Alt+$1 opened no menu"
}
# choose MENU ITEM...: a command by the keys of its menu, which is open before the next key comes.
choose() {
    open_menu "$1"
    shift
    press "$@"
}
close_menu() {
    local before
    before=$(menus_open)
    fewer() { [ "$(menus_open)" -lt "$before" ]; }
    press Escape
    until_true 10 fewer || fail "Esc closed no menu"
    press Escape # the menu bar lets go of the keyboard
}

press() { xdotool key --delay 20 "$@"; }
type_text() { xdotool type --delay 5 -- "$1"; }
# click X Y: in pixels of the active window.
click() { xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" click 1; }

file_holds() { grep -qF -- "$2" "$1" 2>/dev/null; }
file_lacks() { [ -f "$1" ] && ! grep -qF -- "$2" "$1"; }
expect_in_file() { until_true 20 file_holds "$1" "$2" || fail "$(basename "$1") doesn't hold \"$2\" but: $(cat "$1")"; }
expect_not_in_file() { until_true 20 file_lacks "$1" "$2" || fail "$(basename "$1") holds \"$2\""; }

# settings [LINE...]: first use is over, and files are kept beside the program; LINEs are further places.
settings() {
    [ -f "$place/Tarvex.ini" ] && return
    {
        printf '[FileLocations]\r\nFirstTimeUsed=0\r\nShowTips=0\r\nJoystickExtension=b50\r\nMacroExtension=m50\r\n'
        printf 'JoyName=1\r\nProgramFilesPath=z:%s\\\r\n' "${place//\//\\}"
        [ $# -eq 0 ] || printf '%s\r\n' "$@"
        printf '[Miscellaneous]\r\nOpenSingleFileOnly=0\r\nMumWindowstate=0\r\n'
    } >"$place/Tarvex.ini"
}

# start [FILE...]: the program in a folder of its own, in front.
start() {
    cp "$program" "$place/tarvex"
    settings
    start_again "$@"
}
start_again() {
    "${runner[@]}" "$place/tarvex" "$@" >"$place/output" 2>&1 &
    pid=$!
    expect_title "Tarvex - "
    expect_active "Tarvex - "
}

# A joystick file and its macro file, walk.b50 and walk.m50.
write_pair() {
    printf 'BTN S1 first\r\nBTN S2 second\r\n' >"$place/walk.b50"
    printf 'first = a\r\nsecond = b\r\n' >"$place/walk.m50"
}

gone() { ! kill -0 "$pid" 2>/dev/null; }
expect_gone() {
    until_true 20 gone || fail "the program still runs"
    wait "$pid" || fail "the program ended with $?: $(cat "$place/output")"
    pid=
}
