#!/usr/bin/env bash
# Another program appends to the user's file, replaces it and removes it, while the text in the window is modified or not:
# the strip above the text, its buttons, and the question of a save. Then a second program opens a file in the window.
. "$(dirname "$0")/user.sh"

write_pair
printf '[Appearance]\r\nTheme=light\r\n' >"$place/Platform.ini"
cp "$(dirname "$program")/tarvex-open" "$place/"
file=$place/walk.b50
start "$file"
expect_title "Tarvex - walk.b50"

# The strip is the only thing of this colour.
strip_shows() {
    import -silent -window root png:- 2>/dev/null | convert png:- -format %c histogram:info:- | grep -qi '#F3E0B3'
}
no_strip_shows() { ! strip_shows; }
expect_strip() { until_true 20 strip_shows || fail "no strip after: $1"; }
expect_no_strip() { until_true 20 no_strip_shows || fail "there is still a strip after: $1"; }

round=0
# change WAY: what the other program does.
change() {
    theirs="REM theirs $((++round))"
    case $1 in
    append) printf '%s\r\n' "$theirs" >>"$file" ;;
    replace)
        printf 'BTN S1 first\r\n%s\r\n' "$theirs" >"$place/new"
        mv "$place/new" "$file"
        ;;
    remove) rm "$file" ;;
    esac
}
modify() {
    mine="REM mine $round"
    press ctrl+End
    type_text "$mine"
    expect_title "walk.b50*"
}
save() {
    press ctrl+s
    expect_no_title "walk.b50*"
}
# The save asks, because the file isn't the one that the program knows.
save_anyway() {
    press ctrl+s
    expect_active "Whoa ... not so fast!"
    press alt+s
    expect_no_title "Whoa ... not so fast!"
    expect_no_title "walk.b50*"
}
backup_holds() { grep -qF -- "$1" "$place"/Backup/walk-outside*.b50 2>/dev/null; }

for way in append replace; do
    change $way
    expect_strip "$way"
    press ctrl+shift+o space # Reload
    expect_no_strip "the reload after $way"
    modify
    save
    expect_in_file "$file" "$theirs"
    expect_in_file "$file" "$mine"

    change $way
    expect_strip "$way"
    press ctrl+shift+o Tab space # Keep mine
    expect_no_strip "keeping after $way"
    expect_title "walk.b50*"
    save_anyway
    expect_not_in_file "$file" "$theirs"
    until_true 20 backup_holds "$theirs" || fail "no backup holds $theirs"

    modify
    change $way
    expect_strip "$way beside an unsaved text"
    press ctrl+shift+o space
    expect_no_title "walk.b50*"
    press ctrl+z # brings the unsaved text back
    expect_title "walk.b50*"
    save
    expect_in_file "$file" "$mine"

    modify
    change $way
    expect_strip "$way beside an unsaved text"
    press ctrl+shift+o Tab space
    expect_no_strip "keeping the unsaved text"
    save_anyway
    expect_in_file "$file" "$mine"
    expect_not_in_file "$file" "$theirs"
done

change remove
expect_strip "remove"
press ctrl+shift+o space # Keep mine is the only button
expect_title "walk.b50*"
save
expect_in_file "$file" "$mine"
modify
change remove
expect_strip "remove beside an unsaved text"
save
expect_in_file "$file" "$mine"
expect_no_strip "a save of the removed file"

# The box of a save shows the differences, and asks again.
modify
change append
expect_strip "append"
press ctrl+s
expect_active "Whoa ... not so fast!"
press alt+d
expect_active "What's the difference?"
press F8 F7 Escape
expect_no_title "What's the difference?"
expect_active "Whoa ... not so fast!"
press Escape
expect_no_title "Whoa ... not so fast!"
press ctrl+shift+o space
expect_no_title "walk.b50*"

# A second program brings the window forward and opens a file in it.
cp "$file" "$place/other.b50"
(cd "$place" && ./tarvex-open other.b50) || fail "tarvex-open ended with $?"
expect_title "Tarvex - other.b50"
expect_active "Couldn't find associated macro file"
press Return
expect_no_title "Couldn't find associated macro file"
expect_active "Tarvex - other.b50"
type_text "unsaved"
expect_title "other.b50*"
"$place/tarvex-open" "$file" || fail "tarvex-open ended with $?"
expect_active " Save other.b50 now?"
press alt+n
expect_title "Tarvex - walk.b50"

# A second start says what it always said, and leaves the window where the user sees it.
"$place/tarvex" &
second=$!
expect_title "Exiting now ..."
# The window manager may leave the keyboard with the window where the user has just typed.
wmctrl -a "Exiting now ..."
expect_active "Exiting now ..."
press Return
wait $second || fail "the second start ended with $?"
expect_active "Tarvex - walk.b50"
press alt+f x
expect_gone

# Without a window tarvex-open becomes the program, also beside a socket that a killed one has left.
start_again "$file"
kill -KILL "$pid"
wait "$pid" 2>/dev/null
"$place/tarvex-open" "$file" >"$place/output" 2>&1 &
pid=$!
expect_title "Tarvex - walk.b50"
expect_active "Tarvex - walk.b50"
press alt+f x
expect_gone
