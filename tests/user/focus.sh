#!/usr/bin/env bash
# The keyboard goes where a user expects it: menus open each time, typing reaches the text, results stay to be read.
. "$(dirname "$0")/user.sh"

# A sum of what the left half of the status bar shows.
status_sum() {
    local window X Y WIDTH HEIGHT WINDOW SCREEN
    window=$(xdotool search --onlyvisible --name '^Tarvex - ' | head -n 1)
    eval "$(xdotool getwindowgeometry --shell "$window")"
    import -silent -window "$window" -crop "$((WIDTH / 3))x20+0+$((HEIGHT - 22))" +repage "$place/status.png"
    identify -format '%#' "$place/status.png"
}
status_is() { [ "$(status_sum)" = "$1" ]; }
status_differs() { ! status_is "$1"; }

write_pair
start "$place/walk.b50"

# The same menu again and again, with a click into the text between.
for key in f f f e e h h h f; do
    click 600 300
    open_menu $key
    close_menu
done

# Typing reaches the text after menus were opened and left.
press ctrl+Home
type_text "rem one "
press ctrl+s
expect_in_file "$place/walk.b50" "rem one BTN S1"

# What the save said stays while a menu and a box come and go, and goes with a click into the text.
saved=$(status_sum)
open_menu e
close_menu
status_is "$saved" || fail "the menu took the status text"
choose o a
expect_title "Enter a name to add to favourites"
press Escape
expect_no_title "Enter a name to add to favourites"
expect_active "Tarvex - "
status_is "$saved" || fail "the box took the status text"
click 600 300
until_true 10 status_differs "$saved" || fail "a click into the text shows no editing text"

# From the tabs typing goes to the text.
press ctrl+Home shift+Tab
type_text "rem two "
press ctrl+s
expect_in_file "$place/walk.b50" "rem two rem one BTN S1"

# The frame's X asks as the menu does, and the user may stay.
type_text "unsaved "
expect_title "walk.b50*"
wmctrl -c "Tarvex - "
expect_title " Save walk.b50 now?"
press Escape
expect_no_title " Save walk.b50 now?"
expect_active "Tarvex - "
type_text "still here "
press ctrl+s
expect_in_file "$place/walk.b50" "unsaved still here"

choose f x
expect_gone
