#!/usr/bin/env bash
# A user finds a word, writes over it, replaces it everywhere and goes to a line, with the keyboard alone.
. "$(dirname "$0")/user.sh"

write_pair
printf 'BTN S3 second\r\n' >>"$place/walk.b50"
start "$place/walk.b50"

press ctrl+f
expect_active "Find and replace"
type_text "second"
press Return
press Escape
expect_no_title "Find and replace"
expect_active "Tarvex - "
type_text "found"
press ctrl+s
expect_in_file "$place/walk.b50" "BTN S2 found"
expect_in_file "$place/walk.b50" "BTN S3 second"

press ctrl+r
expect_active "Find and replace"
type_text "BTN"
press Tab
type_text "REL"
press Return  # find first
press alt+a   # replace all
expect_title "Replaced 'em all for you. Now buy me a drink"
press Return
expect_active "Find and replace"
press Escape
expect_active "Tarvex - "
press ctrl+s
expect_in_file "$place/walk.b50" "REL S3 second"
expect_not_in_file "$place/walk.b50" "BTN"
press ctrl+z  # all of it at once
press ctrl+s
expect_in_file "$place/walk.b50" "BTN S3 second"
expect_not_in_file "$place/walk.b50" "REL"

press ctrl+g
expect_active "Find and replace"
type_text "2"
press Return
press Escape
expect_active "Tarvex - "
press Delete
press ctrl+s
expect_not_in_file "$place/walk.b50" "found"
expect_in_file "$place/walk.b50" "BTN S3 second"

press alt+f x
expect_gone
