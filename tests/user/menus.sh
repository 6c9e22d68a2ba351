#!/usr/bin/env bash
# A user opens every menu by its key, and runs commands of some without the mouse.
. "$(dirname "$0")/user.sh"

write_pair
start "$place/walk.b50"

for key in f e v i w a g o p h; do
    open_menu $key
    close_menu
done

choose e a # select all
choose e d # delete
press ctrl+s
emptied() { [ ! -s "$place/walk.b50" ]; }
until_true 20 emptied || fail "the file still holds its text"

choose e u # undo
choose f s # save
expect_in_file "$place/walk.b50" "BTN S2 second"

choose p p # protect the macro file
press ctrl+Tab
expect_title "Tarvex - walk.m50"
press ctrl+End
type_text "third"
press ctrl+s
choose p p
press ctrl+Home
type_text "rem "
press ctrl+s
expect_in_file "$place/walk.m50" "rem first = a"
expect_not_in_file "$place/walk.m50" "third"

choose f x
expect_gone
