#!/usr/bin/env bash
# On a small screen every tool window can be seen whole, with its buttons: letters are so large here that there is room for
# 825 by 660 pixels of the usual size.
. "$(dirname "$0")/user.sh"

export QT_SCALE_FACTOR=1.55

# expect_within TITLE: the window of that title lies within the screen, with its frame.
within() {
    local X Y WIDTH HEIGHT WINDOW SCREEN screen_width screen_height
    read -r screen_width screen_height < <(xdotool getdisplaygeometry)
    eval "$(xdotool getwindowgeometry --shell "$(xdotool search --onlyvisible --name "$1" | head -n 1)")"
    place_found="$X,$Y ${WIDTH}x$HEIGHT"
    [ "$X" -ge 0 ] && [ "$Y" -gt 0 ] && [ $((X + WIDTH)) -le "$screen_width" ] && [ $((Y + HEIGHT)) -le "$screen_height" ]
}
expect_within() { until_true 10 within "$1" || fail "\"$1\" leaves the screen: $place_found"; }

write_pair
settings "ThrottleName=3" "RudderName=2"
start "$place/walk.b50"

press F2
expect_active "Composer - "
expect_within "^Composer - "
# What is below the pages is in sight, and so is what has the keyboard.
press alt+h
expect_no_title "Composer - "

expect_active "Tarvex - "
press F4
expect_active "Safein - "
expect_within "^Safein - "
press Escape
expect_no_title "Safein - "

expect_active "Tarvex - "
press alt+f x
expect_gone
