#!/usr/bin/env bash
# A beginner writes a first macro file and a first joystick file with the wizards, by keys alone, and gets the pair in
# tests/data/wizards.
. "$(dirname "$0")/user.sh"

expected=$(dirname "$0")/../data/wizards

# wizard KEY TITLE: a window of the Wizards menu.
wizard() {
    choose w "$1"
    expect_active "$2"
    here=$2
}
turn() { press alt+n; }
# on_page N: from the button that turns the page to the Nth thing that can be used on it; the one that closes is between.
on_page() {
    local i
    press Tab
    for ((i = 0; i < $1; ++i)); do press Tab; done
}
# The wizard, or the program, after another window had the keyboard.
go_to() {
    wmctrl -a "$1"
    expect_active "$1"
}
# file_dialogue NAME: names a file in the dialogue that comes up, which goes away.
file_dialogue() {
    expect_dialogue "$here"
    type_text "$place/$1"
    press Return
    expect_active "$here"
}
save_as() {
    file_dialogue "$1"
    until_true 20 test -f "$place/$1" || fail "there is no $1"
}
# heading WORDS: the one in the list that begins with them.
heading() {
    on_page 1
    type_text "$1"
    press Return
}
# macro NAME KEYS: on a page with the boxes.
macro() {
    press alt+m
    type_text "$1"
    press Tab
    type_text "$2"
    press Return
}
expect_same() {
    until_true 20 cmp -s "$expected/$1" "$2" || fail "another file: $(diff "$expected/$1" "$2")"
}

setxkbmap us
start

wizard m "The Macro file wizard"
turn && turn
on_page 1 && press space # a new macro file, and its name
save_as walk.m50
turn && turn
heading "Cockpit"
turn && turn && turn
macro "Front View" "F1"
macro "Eject" "CTL e"
turn && turn
heading "Weapons"
turn
macro "Fire" "SPC"
turn && turn
press Tab space # Finish, on to the last page
on_page 0 && press space # save
until_true 20 file_holds "$place/walk.m50" "Fire = SPC" || fail "not saved: $(cat "$place/walk.m50")"
press Tab space # transfer
expect_same first.m50 "$place/walk.m50"
press Escape
expect_no_title "$here"

go_to "Tarvex - "
wizard j "The Joystick file wizard"
turn
on_page 1 && press space # the macro file
file_dialogue walk.m50
turn
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
go_to "$here"
turn
on_page 1 && press space # the caret to the start
go_to "Tarvex - "
press ctrl+End
type_text "MDEF walk"
press Return
go_to "$here"
turn
on_page 1 && press space # the Composer's USE statements
expect_active "Composer - "
press space
expect_active "Tarvex - "
go_to "$here"
turn
on_page 1 && press space # its RATE section
expect_active "Composer - "
press Return
go_to "$here"
turn
on_page 1 && press space # a first statement; the Composer goes
expect_no_title "Composer - "
go_to "Tarvex - "
press ctrl+End
type_text "BTN S1 Front_View"
press Return
go_to "$here"
turn
on_page 1 && press space # the Composer, and its main tab
expect_active "Composer - "
go_to "$here"
press Tab space
expect_active "Composer - "
press Escape
expect_no_title "Composer - "
go_to "$here"
turn
on_page 0 && press space # save
until_true 20 file_holds "$place/walk.b50" "BTN S1 Front_View" || fail "not saved: $(cat "$place/walk.b50")"
grep -v 'last modified: ' "$place/walk.b50" >"$place/without_date.b50"
expect_same first.b50 "$place/without_date.b50"
press Escape
expect_no_title "$here"

go_to "Tarvex - "
wizard u "Understanding slash modifiers"
press Return Return Return Return Return Return # five pages on, and closed
expect_no_title "$here"

# Speedy goes on with the macro file, on his tabs.
go_to "Tarvex - "
wizard s "Speedy - "
press ctrl+Tab ctrl+Tab
macro "Look Back" "KP2"
press Escape
expect_no_title "$here"
go_to "Tarvex - "
press ctrl+s
until_true 20 file_holds "$place/walk.m50" "Look_Back = KP2" || fail "Speedy wrote nothing: $(cat "$place/walk.m50")"
