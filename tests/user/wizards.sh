#!/usr/bin/env bash
# A beginner writes a first macro file and a first joystick file with the wizards, by keys alone.
. "$(dirname "$0")/user.sh"

# wizard KEY TITLE: a window of the Wizards menu.
wizard() {
    choose w "$1"
    expect_active "$2"
    here=$2
}
turn() { press alt+n; }
# on_page N: to the Nth widget of the page, from its last one back. The keyboard is on the button that turns pages, and
# the one before it is Back.
on_page() {
    local i
    press shift+Tab
    for ((i = 0; i < $1; ++i)); do press shift+Tab; done
}
# The wizard, after another window had the keyboard.
go_on() {
    wmctrl -a "$here"
    expect_active "$here"
}
# save_as NAME: in the dialogue that asks for it.
asks() { ! active_is "$here"; }
save_as() {
    until_true 20 asks || fail "nobody asks for a name"
    type_text "$place/$1"
    press Return
    until_true 20 test -f "$place/$1" || fail "there is no $1"
    go_on
}
# macro NAME KEYS: on a page with the boxes; the last one's name stands in the preview.
macro() {
    press alt+m
    type_text "$1"
    press Tab
    type_text "$2"
    press Return
}

start

wizard m "The Macro file wizard"
turn && turn
on_page 1 && press space # a new macro file, and its name
save_as walk.m50
turn && turn
on_page 2 # the list of headings
type_text "Cockpit"
press Return
turn && turn && turn
macro "Front View" "F1"
macro "Eject" "CTL e"
turn && turn
on_page 2
type_text "Weapons"
press Return
turn
macro "Fire" "SPC"
turn
press alt+n
on_page 2 && press space # save
expect_in_file "$place/walk.m50" "Fire = SPC"
press Tab space # transfer
expect_in_file "$place/walk.m50" "Fire = SPC"
press Escape
expect_no_title "The Macro file wizard"

rule_of() { printf 'Rem %s\r\n' "$(printf -- '-%.0s' $(seq "$1"))"; }
{
    printf '\r\n' && rule_of 33 && printf 'Rem           Cockpit Views\r\n' && rule_of 33
    printf '\r\nFront_View = F1\r\nEject = CTL e\r\n'
    printf '\r\n' && rule_of 27 && printf 'Rem           Weapons\r\n' && rule_of 27
    printf '\r\nFire = SPC\r\n'
} >"$place/expected.m50"
cmp "$place/expected.m50" "$place/walk.m50" || fail "another macro file: $(cat "$place/walk.m50")"

wmctrl -a "Tarvex - "
expect_active "Tarvex - "
wizard j "The Joystick file wizard"
turn && turn
on_page 1 && press space # a new joystick file
turn
on_page 1 && press space
save_as walk.b50
turn
on_page 1 && press space # clear, and a title
expect_active "Insert a title"
type_text "Walking"
press Return
expect_no_title "Insert a title"
go_on
turn
on_page 1 && press space # the caret to the start
wmctrl -a "Tarvex - "
expect_active "Tarvex - "
press ctrl+End
type_text "MDEF walk"
press Return
type_text "BTN S1 Front_View"
press Return
go_on
turn && turn && turn && turn && turn
on_page 1 && press space # save
expect_in_file "$place/walk.b50" "BTN S1 Front_View"
press Escape
expect_no_title "The Joystick file wizard"

border='Rem ################################################'
{
    printf '%s\r\nRem\r\nRem                 walk.b50 for Walking\r\n' "$border"
    printf 'Rem\r\nRem                   by User unknown\r\nRem\r\n'
    printf 'Rem\r\nRem For: F-16 FLCS, no throttle, no rudders. combination\r\nRem\r\n%s\r\n\r\n' "$border"
    printf 'MDEF walk\r\nBTN S1 Front_View\r\n'
} >"$place/expected.b50"
grep -v 'last modified: ' "$place/walk.b50" | cmp - "$place/expected.b50" ||
    fail "another joystick file: $(cat "$place/walk.b50")"

wmctrl -a "Tarvex - "
expect_active "Tarvex - "
wizard u "Understanding slash modifiers"
press Return Return Return Return Return Return # five pages on, and closed
expect_no_title "Understanding slash modifiers"
