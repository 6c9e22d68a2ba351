#!/usr/bin/env bash
# A file with a very long name leaves the tabs readable and every menu on the screen.
. "$(dirname "$0")/user.sh"

# expect_on_screen: the menu that is open lies within the screen.
expect_on_screen() {
    local X Y WIDTH HEIGHT WINDOW SCREEN screen_width screen_height
    read -r screen_width screen_height < <(xdotool getdisplaygeometry)
    for menu in $(xdotool search --onlyvisible --pid "$pid"); do
        eval "$(xdotool getwindowgeometry --shell "$menu")"
        [ "$X" -ge 0 ] && [ $((X + WIDTH)) -le "$screen_width" ] || fail "$1 reaches from $X to $((X + WIDTH))"
    done
}

name=$(printf 'a_very_long_name_%.0s' {1..14})
printf 'BTN S1 one\r\n' >"$place/$name.b50"
printf 'one = a\r\n' >"$place/$name.m50"
start "$place/$name.b50"
expect_title "$name.b50"

open_menu a
expect_on_screen "the Apps menu"
close_menu
open_menu f
press r # previous joystick files
submenu() { [ "$(menus_open)" -ge 3 ]; }
until_true 10 submenu || fail "no menu of previous files"
expect_on_screen "the menu of previous files"
close_menu   # the inner one, then the outer one
press Escape # the menu bar lets go of the keyboard
click 600 300

press ctrl+Tab
expect_title "Tarvex - $name.m50"
type_text "rem "
press ctrl+s
expect_in_file "$place/$name.m50" "rem one"

choose f x
expect_gone
