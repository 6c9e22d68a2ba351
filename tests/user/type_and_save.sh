#!/usr/bin/env bash
# A user types, undoes, saves and leaves by the menu.
. "$(dirname "$0")/user.sh"

write_pair
start "$place/walk.b50"
expect_title "Tarvex - walk.b50"

press ctrl+End
type_text "BTN S3 third"
expect_title "walk.b50*"
press ctrl+s
expect_in_file "$place/walk.b50" "BTN S3 third"
expect_no_title "walk.b50*"

press Return
type_text "BTN S4 fourth"
expect_title "walk.b50*"
press ctrl+z ctrl+z ctrl+z # a level for each word
press ctrl+s
expect_not_in_file "$place/walk.b50" "fourth"
expect_in_file "$place/walk.b50" "BTN S3 third"

press ctrl+Tab
expect_title "Tarvex - walk.m50"
press ctrl+End
type_text "third = c"
expect_title "walk.m50*"
press alt+f x
expect_title " Save walk.m50 now?"
press alt+y
expect_gone
expect_in_file "$place/walk.m50" "third = c"
expect_in_file "$place/Tarvex.ini" "MumWindowstate"
