#!/usr/bin/env bash
# A user asks for help by keys: on a word, in windows, before a dialogue, and from the Help menu.
. "$(dirname "$0")/user.sh"

# As installed: the handbook lies beside the folder of the program.
root=$place
place=$root/program
mkdir "$place"
trap 'finish; rm -rf "$root"' EXIT
build=$(dirname "$(dirname "$program")")
ln -s "$build/share" "$root/share"
for libraries in "$build"/lib*; do ln -s "$libraries" "$root/"; done

write_pair
start "$place/walk.b50"
expect_in_file "$place/Tips.txt" "Esc"
[ -f "$place/info/Syntax.rtf" ] || fail "the help texts aren't in the program directory"

press ctrl+Home ctrl+shift+Right F1 # on BTN
expect_active "Tarvex handbook"
expect_title "BTN"
press alt+Home
expect_title "Welcome"
press alt+Left
expect_title "BTN"
press ctrl+f
type_text "button"
press Return Escape Escape
expect_no_title "Tarvex handbook"

expect_active "Tarvex - "
press ctrl+Home F1 # no word is marked: where it was left
expect_active "Tarvex handbook"
press Escape
expect_no_title "Tarvex handbook"

expect_active "Tarvex - "
press F4
expect_active "Safein - the Thrustmaster"
press F1
expect_active "Tarvex handbook"
expect_title "Safein - Tarvex handbook"
press Escape
expect_no_title "Tarvex handbook"
expect_active "Safein - the Thrustmaster"
press Escape

expect_active "Tarvex - "
press F9
expect_active "Preferences"
press F1
expect_active "Tarvex handbook"
press alt+Home # it takes keys although the dialogue waits
expect_title "Welcome"
press Escape
expect_no_title "Tarvex handbook"
expect_active "Preferences"
press Escape

expect_active "Tarvex - "
choose h d
expect_active "Tip of the day"
press Escape
expect_no_title "Tip of the day"
choose h a
expect_active "About Tarvex"
press Return
expect_no_title "About Tarvex"
choose h m s
expect_active "Information"
press Return # OK
expect_no_title "Information"

expect_active "Tarvex - "
choose f x
expect_gone
