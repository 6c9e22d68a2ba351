#!/usr/bin/env bash
# A user without a joystick opens the testers, sees what keys send, and gets back to the text.
. "$(dirname "$0")/user.sh"

# Inside the list with the names of the keys; empty, it has one colour.
inside_list="130x120+345+60"
colours_of_list() {
    import -silent -window "$(xdotool search --onlyvisible --name '^KeyTester$' | head -n 1)" \
        -crop "$inside_list" +repage "$place/part.png"
    identify -format '%k' "$place/part.png"
}
writes() { [ "$(colours_of_list)" -gt 1 ]; }
is_empty() { [ "$(colours_of_list)" -eq 1 ]; }

close_missing_joystick() {
    expect_active "No joystick detected"
    press Return
    expect_no_title "No joystick detected"
}

red=255
settings '[Colours]' BackgroundColour=16777215 MacroBackgroundColour=16777215 BTNColour=$red SlashColour=$red \
    RAWColour=$red MiscellaneousColour=$red RemStatements=$red
write_pair
start "$place/walk.b50"

# The key tester shows keys that windows use themselves, and none of them does anything.
press ctrl+k
close_missing_joystick
expect_active "KeyTester"
press Tab F10 Escape alt+F1 ctrl+s Menu
until_true 10 writes || fail "no key is shown"
active_is "KeyTester" || fail "a key led away from the key tester"

# All keys are its own, so it is cleared and left with the mouse.
click 50 18
press Down
active_is "KeyTester" || fail "its menu led away"
press Escape
wmctrl -c KeyTester
expect_no_title "KeyTester"

# Caps Lock has no effect while it looks.
press ctrl+k
close_missing_joystick
expect_active "KeyTester"
until_true 10 is_empty || fail "the second opening shows the keys of the first"
press Caps_Lock
until_true 10 writes || fail "Caps Lock isn't shown"
wmctrl -c KeyTester
expect_no_title "KeyTester"
click 400 300
press ctrl+End
type_text "rem small"
press ctrl+s
expect_in_file "$place/walk.b50" "rem small"

# The analysers open without a joystick, too; which one is a setting.
press F11
close_missing_joystick
expect_active "Joystick motion analayser"
press alt+v n # the numbers unfold
expect_in_file "$place/Platform.ini" "Numbers=1"
press alt+f x
expect_no_title "Joystick motion analayser"
expect_active "Tarvex - "

press alt+f x
expect_gone
sed -i 's/^UseTCA=.*/UseTCA= 1\r/' "$place/Tarvex.ini"
start_again "$place/walk.b50"
press F11
close_missing_joystick
expect_active "TCA - Tarvy's Controller Analyser"
press alt+v d h # another density
expect_in_file "$place/TCA.ini" "TCAGridCellSize=20"
press alt+f x
expect_no_title "TCA - "
press alt+f x
expect_gone
