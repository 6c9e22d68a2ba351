#!/usr/bin/env bash
# A user keeps a pair as a favourite, opens it from the menu at the next start, and saves it by a click on the toolbar.
. "$(dirname "$0")/user.sh"

write_pair
start "$place/walk.b50"
press alt+o a
expect_active "Enter a name to add to favourites"
press ctrl+a
type_text "Sunday flight"
press Return
expect_in_file "$place/Tarvex.ini" "FavName1=Sunday flight"
press alt+f x
expect_gone

start_again
expect_title "Tarvex - untitled."
press alt+o Return
expect_title "Tarvex - walk.b50"
press ctrl+Home
type_text "rem "
expect_title "walk.b50*"
click 81 38 # the third button of the toolbar
expect_in_file "$place/walk.b50" "rem BTN S1 first"
expect_no_title "walk.b50*"
press alt+f x
expect_gone
expect_in_file "$place/Tarvex.ini" "JFPath1="
