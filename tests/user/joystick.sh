#!/usr/bin/env bash
# A user looks at a joystick, which comes and goes as plugs do.
. "$(dirname "$0")/user.sh"

analyser='Joystick motion analayser'
mkfifo "$place/stick"
runner=(umockdev-wrapper "${4:?the program that shows a joystick}" "$place/stick")
order() { printf '%s\n' "$*" >"$place/stick"; }

close_box() {
    expect_active "$1"
    press Return
    expect_no_title "$1"
}
# The box about a joystick that is gone has the program's name alone.
close_failure() {
    box_is_there() { titles | grep -qx 'Tarvex'; }
    until_true 20 box_is_there || fail "no box says that the joystick is gone"
    press Return
    no_box_is_there() { ! box_is_there; }
    until_true 20 no_box_is_there || fail "there is more than one box"
}

write_pair
start "$place/walk.b50"

# Every report of a fast stick is among the samples that are saved.
press F11
expect_active "$analyser"
order tour 1000 2
order count "$place/sent"
until_true 20 test -s "$place/sent" || fail "the stick didn't move"
press alt+v n
expect_in_file "$place/Platform.ini" "Numbers=1"
press alt+s
expect_active "Save samples"
type_text "$place/samples.csv"
press Return
expect_active "$analyser"
expect_in_file "$place/samples.csv" "microseconds,x,y,throttle,rudder,buttons"
saved=$(($(wc -l <"$place/samples.csv") - 1))
[ "$saved" = "$(cat "$place/sent")" ] || fail "$(cat "$place/sent") reports were sent, and $saved are saved"

# It is unplugged in the middle of its reports. It lives again when the analyser is reopened.
order break 1000 1
close_failure
expect_active "$analyser"
order plug
press alt+f x
expect_no_title "$analyser"
press F11
expect_active "$analyser"

# Its end is reported while another box is up, too.
press alt+h r
expect_active "Be kind on your CPU"
order unplug
close_failure
close_box "Be kind on your CPU"
expect_active "$analyser"
press alt+f x
expect_no_title "$analyser"

# It is plugged in while the box says that there is none.
press F11
expect_active "No joystick detected"
order plug
close_box "No joystick detected"
expect_active "$analyser"
press alt+f x
expect_no_title "$analyser"

# The key tester takes no notice of a box: it goes on when the stick comes back.
press ctrl+k
expect_active "KeyTester"
order break 1000 1
order plug
order button 1 1
wmctrl -c KeyTester
expect_no_title "KeyTester"
expect_active "Tarvex - "
press alt+f x
expect_gone
