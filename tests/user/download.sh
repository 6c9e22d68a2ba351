#!/usr/bin/env bash
# A user downloads a file with an error, is led to its line, takes it out and downloads again, with a loader that only
# behaves like one.
. "$(dirname "$0")/user.sh"

loader=${2:?the stand-in for the loader}
write_pair
printf 'Rem @error Unknown key\r\nBTN S3 first\r\n' >>"$place/walk.b50"
mkdir "$place/loader"
cp "$loader" "$place/loader/winld.exe"
settings "B50LoadPath=z:${place//\//\\}\\loader\\winld.exe"
start "$place/walk.b50"

press F12
expect_in_file "$place/loader/winld.dat" "Unknown key"
expect_active "Tarvex - "
# While the line flashes the keys reach something else: they are taken back, and the loader leads to the line again.
patience=0
line_is_out() {
    sleep $patience
    patience=$((patience + 1))
    press shift+End Delete ctrl+s
    until_true 2 file_lacks "$place/walk.b50" "Unknown key" && return
    press ctrl+z ctrl+s F12
    return 1
}
until_true 30 line_is_out || fail "the line of the error is not where the caret is"
type_text " "
expect_title "walk.b50*"
press F12
expect_in_file "$place/loader/winld.dat" "OK"
expect_not_in_file "$place/loader/winld.dat" "ERROR"
expect_not_in_file "$place/walk.b50" "Unknown key"
expect_in_file "$place/walk.b50" "BTN S3 first"
expect_active "Tarvex - "
press alt+f x
expect_gone
