#!/usr/bin/env bash
# A user who hears the screen opens a file, reads its lines, writes, finds, and looks around: by the keyboard, and by what
# the program reports to assistive tools.
. "$(dirname "$0")/user.sh"

export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1

reads() { /usr/bin/python3 "$(dirname "$0")/screen_reader.py" "$@" 2>&1; }
# expect_read WANTED COMMAND...: what the screen reader gets becomes WANTED.
is_read() { [ "$(reads "${@:2}")" = "$1" ]; }
expect_read() { until_true 30 is_read "$@" || fail "${*:2} is \"$(reads "${@:2}")\" and not \"$1\""; }
names_have() { reads names "$1" | grep -qxF -- "$2"; }
expect_name() { until_true 30 names_have "$@" || fail "no $1 is named \"$2\" but: $(reads names "$1")"; }

write_pair
printf 'BTN S4 other\r\nBTN S3 third\r\n' >"$place/other.b50"
printf 'other = o\r\nthird = t\r\n' >"$place/other.m50"
start "$place/walk.b50"

expect_read "text Joystick file" focused
expect_read $'BTN S1 first\nBTN S2 second' text "Joystick file"
expect_read "BTN S1 first" line "Joystick file"
press Down
expect_read "BTN S2 second" line "Joystick file"
expect_read 13 caret "Joystick file"

type_text "Rem heard "
expect_read "Rem heard BTN S2 second" line "Joystick file"
press shift+End
expect_read "BTN S2 second" selection "Joystick file"

press ctrl+Home ctrl+shift+f
expect_read "text Text to find" focused
type_text "heard"
expect_read "heard" selection "Joystick file"
press Escape
expect_read "text Joystick file" focused

expect_name "page tab" "walk.b50 •"
expect_name "list item" "second"
expect_name "push button" "Save"
expect_name "menu item" "File"

press ctrl+s
expect_in_file "$place/walk.b50" "Rem heard BTN S2 second"
press ctrl+o
expect_dialogue
type_text "$place/other.b50"
press Return
expect_read $'BTN S4 other\nBTN S3 third' text "Joystick file"
press Down
expect_read "BTN S3 third" line "Joystick file"
