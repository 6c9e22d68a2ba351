#!/usr/bin/env bash
# A user finds as they type, pastes, zooms, filters the macro list and writes a statement that colours itself.
. "$(dirname "$0")/user.sh"

write_pair
printf 'BTN S3 second\r\n' >>"$place/walk.b50"
printf '[Extras]\r\nColourAsTyped=1\r\n' >"$place/Platform.ini"
start "$place/walk.b50"

press ctrl+shift+f
type_text "second"
press Return   # the second match
press Escape
type_text "found"
press ctrl+s
expect_in_file "$place/walk.b50" "BTN S3 found"
expect_in_file "$place/walk.b50" "BTN S2 second"

press ctrl+shift+f
type_text "BTN"
press F3 F3 F3 shift+Return  # past the last one, to the first, and back
press Escape
type_text "REL"
press ctrl+s
expect_in_file "$place/walk.b50" "BTN S1 first"
expect_in_file "$place/walk.b50" "BTN S2 second"
expect_in_file "$place/walk.b50" "REL S3 found"
press ctrl+z   # all that was typed: neither a blank nor a new line began another level
press ctrl+s
expect_in_file "$place/walk.b50" "BTN S3 second"

press ctrl+End
type_text "REM xyz"
is_coloured() {
    press ctrl+s
    grep -q 'cf[1-9][0-9]* *REM xyz' "$place/Rtf/walk.b50" 2>/dev/null
}
until_true 20 is_coloured || fail "what was typed got no colour: $(cat "$place/Rtf/walk.b50")"
press Return

press ctrl+alt+f
type_text "seco"
press Down
press Return   # inserts the macro
press ctrl+s
expect_in_file "$place/walk.b50" "second "
press ctrl+Tab ctrl+Tab

# The find window doesn't cover what it finds.
press ctrl+Home ctrl+f
expect_active "Find and replace"
form=$(xdotool getactivewindow)
frame=$(xdotool search --name "Tarvex - " | head -1)
eval "$(xdotool getwindowgeometry --shell "$frame" | sed 's/^/FRAME_/')"
xdotool windowmove --sync "$form" $((FRAME_X + 10)) $((FRAME_Y + 60))
eval "$(xdotool getwindowgeometry --shell "$form" | sed 's/^/FORM_/')"
type_text "S1"
press Return
aside() {
    eval "$(xdotool getwindowgeometry --shell "$form")"
    [ "$X $Y" != "$FORM_X $FORM_Y" ]
}
until_true 20 aside || fail "the find window stays before the match"
press Escape
expect_active "Tarvex - "

press ctrl+plus ctrl+shift+equal ctrl+minus
press alt+f x
expect_gone
expect_in_file "$place/Platform.ini" "Zoom=110"
