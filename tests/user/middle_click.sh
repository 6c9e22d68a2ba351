#!/usr/bin/env bash
# A user selects with the mouse and pastes with its middle button: what was selected goes where the button is pressed, and
# stays where it was, too.
. "$(dirname "$0")/user.sh"

write_pair
printf '[Appearance]\r\nTheme=light\r\n' >"$place/Platform.ini"
start "$place/walk.b50"

# From the left edge of the first line to far behind its end, in pixels of the window.
select_first_line() {
    local window x
    window=$(xdotool getactivewindow)
    xdotool mousemove --window "$window" 222 88 mousedown 1
    for x in 260 300 400 500; do xdotool mousemove --window "$window" $x 88; done
    xdotool mouseup 1
}
saved() {
    press ctrl+s
    expect_no_title "walk.b50*"
}
expect_file() { until_true 20 cmp -s "$place/expected" "$place/walk.b50" || fail "$1: $(cat "$place/walk.b50")"; }

cp "$place/walk.b50" "$place/original"
press ctrl+End
select_first_line
xdotool mousemove --window "$(xdotool getactivewindow)" 500 300 click 2 # below the last line
expect_title "walk.b50*"
saved
printf 'BTN S1 first\r\nBTN S2 second\r\nBTN S1 first' >"$place/expected"
expect_file "the line isn't pasted at the end"

press ctrl+z # it is one level
saved
cp "$place/original" "$place/expected"
expect_file "undone"

press alt+f x
expect_gone
