#!/usr/bin/env bash
# All arguments are one path: blanks in it need no quotes. A path that leads nowhere, and what looks like a switch, leave
# two empty documents without a message.
. "$(dirname "$0")/user.sh"

write_pair
mv "$place/walk.b50" "$place/my fine walk.b50"
mv "$place/walk.m50" "$place/my fine walk.m50"
start "$place/my" fine walk.b50
expect_title "Tarvex - my fine walk.b50"
press ctrl+End
type_text "BTN S3 third"
press ctrl+s
expect_in_file "$place/my fine walk.b50" "BTN S3 third"
press alt+f x
expect_gone

for arguments in "$place/nowhere.b50" "-style fusion" "--version now" "-- $place/my fine walk.b50"; do
    # shellcheck disable=SC2086 # as separate arguments
    start_again $arguments
    expect_title "Tarvex - untitled."
    press alt+f x
    expect_gone
done
