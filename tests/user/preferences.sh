#!/usr/bin/env bash
# A user sets a machine up from nothing: the first start leads to the preferences, where the joystick and the loader are
# set; a question asks for the folder of the files; the tip of the day is sent away for good; then a pair is opened and
# downloaded. The next start asks nothing.
. "$(dirname "$0")/user.sh"

loader=${2:?the stand-in for the loader}
export HOME=$place
unset WINEPREFIX
mkdir "$place/loader"
cp "$loader" "$place/loader/winld.exe"
cp "$program" "$place/tarvex"
"$place/tarvex" >"$place/output" 2>&1 &
pid=$!

expect_active "Tarvex initialising"
press Return
expect_active "Preferences"
type_text "z:${place//\//\\}\\loader\\winld.exe"
press alt+k Down # the next joystick of the list
press alt+o Return # it is OK on every page
expect_active "Where are your files to live?"
press Return
expect_active "Tip of the day"
press alt+s Return # no tips at the next start
expect_no_title "Tip of the day"
expect_active "Tarvex - "
expect_in_file "$place/Tarvex.ini" "ShowTips=0"
expect_in_file "$place/Tarvex.ini" 'ProgramFilesPath=c:\tm\'
expect_in_file "$place/Tarvex.ini" "JoyName=1"
expect_in_file "$place/Tarvex.ini" "winld.exe"
expect_in_file "$place/Platform.ini" "AskForFiles=0"
[ -d "$place/drive_c/tm" ] || fail "there is no folder for the files"

write_pair
mv "$place/walk.b50" "$place/walk.m50" "$place/drive_c/tm"
press ctrl+o
expect_active "Open"
type_text "$place/drive_c/tm/walk.b50"
press Return
expect_active "Tarvex - walk.b50"
press F12
expect_in_file "$place/loader/winld.dat" "OK"
expect_active "Tarvex - walk.b50"

press F9
expect_active "Preferences"
press alt+x # the page "Extras"
press alt+k # dark
expect_in_file "$place/Platform.ini" "Theme=dark"
press Escape
expect_active "Tarvex - walk.b50"
press alt+f x
expect_gone

# A drive that the user chose: nothing is asked any more, and its files open.
mkdir "$place/disk"
cp "$place/drive_c/tm/walk.b50" "$place/drive_c/tm/walk.m50" "$place/disk"
printf '[Drives]\r\nd=%s\r\n' "$place/disk" >>"$place/Platform.ini"
start_again 'd:\walk.b50'
expect_active "Tarvex - walk.b50"
press alt+f x
expect_gone
expect_in_file "$place/Tarvex.ini" 'JFPath1=d:\walk.b50'
