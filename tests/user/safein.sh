#!/usr/bin/env bash
# A user looks keys up on the drawn keyboard, by clicks and by pressing them, puts a statement together and inserts it.
. "$(dirname "$0")/user.sh"

# Where the window has its parts when it opens, as "X Y".
key_a="105 205"
key_y="303 165"
shift_held="50 340"
ctrl_held="137 340"
capture="733 340"
slash_t="309 368"
delay="739 368"
remark="825 368"
name_to_statement="848 398"
codes_to_statement="848 488"
insert_name="908 398"
insert_statement="908 517"
codes_to_read="500 546"

# A sum of what is painted in WIDTHxHEIGHT pixels around X Y of Safein.
painted() { # X Y WIDTH HEIGHT
    local window
    window=$(xdotool search --onlyvisible --name '^Safein - ' | head -n 1)
    import -silent -window "$window" -crop "$3x$4+$(($1 - $3 / 2))+$(($2 - $4 / 2))" +repage "$place/part.png"
    identify -format '%#' "$place/part.png"
}
painted_differs() { # SUM X Y WIDTH HEIGHT
    local sum=$1
    shift
    [ "$(painted "$@")" != "$sum" ]
}

# click_key X Y: its name is shown before the next key is pressed.
click_key() {
    local before
    before=$(painted 290 398 300 18)
    click "$@"
    until_true 10 painted_differs "$before" 290 398 300 18 || fail "a click on a key shows no name"
}
open_safein() {
    press F4
    expect_active "Safein - "
}
saved_line() {
    expect_active "Tarvex - "
    press ctrl+s
    expect_in_file "$place/walk.b50" "$1"
}
# Captured keys are over when Ctrl+Esc has been pressed; what the last one gave is inserted.
insert_captured() {
    press ctrl+Escape
    click $insert_name
    saved_line "$1"
}

setxkbmap us
write_pair
start "$place/walk.b50"
press ctrl+End

# A click on a key, and Enter inserts its name, without and with what is held.
open_safein
click_key $key_a
press Return
saved_line $'a\r'
open_safein
click $shift_held
click $ctrl_held
click_key $key_a
press Return
saved_line "CTL SHF a"

# A statement from a name, a slash modifier, a delay of the pop-up menu, codes and a remark; it is one step for Undo.
open_safein
click_key $key_a
click $name_to_statement
click $slash_t
before=$(menus_open)
click $delay
more() { [ "$(menus_open)" -gt "$before" ]; }
until_true 10 more || fail "no delays popped up"
press Down Return
click $codes_to_statement
click $remark
expect_active "Insert a Rem statement"
type_text "fire"
press Return
expect_active "Safein - "
click $insert_statement
statement="CTL SHF a /T DLY(20) RAW (#14 #12 #1C #F0 #1C #F0 #12 #F0 #14) Rem  fire"
saved_line "$statement"
press ctrl+z ctrl+s
expect_not_in_file "$place/walk.b50" "$statement"

# The menu that Esc pops up in the text has it too.
before=$(menus_open)
press Escape
until_true 10 more || fail "Esc popped up no menu in the text"
press s
expect_active "Safein - "

# Esc hides it, and it comes back as it was: Shift and Ctrl are still held.
press Escape
expect_no_title "Safein - "
expect_active "Tarvex - "
open_safein
click $shift_held
click_key $key_a
press Return
saved_line $'CTL a\r'
open_safein
click $ctrl_held

# Real keys by their place, with what is really held, and none of them does anything else.
click $capture
press F2 Tab Return alt+f
insert_captured "ALT f"
open_safein
click $capture
press z
insert_captured $'z\r'

# Under a German layout the same keys are at the same places, and their own signs stand beside the drawn ones.
open_safein
plain=$(painted $key_y 30 30)
letter_a=$(painted $key_a 30 30)
press Escape
expect_no_title "Safein - "
setxkbmap de
open_safein
until_true 10 painted_differs "$plain" $key_y 30 30 || fail "the German sign of the drawn y isn't shown"
painted_differs "$letter_a" $key_a 30 30 && fail "the a has another sign, which is the same"
click $capture
press ctrl+shift+y # where the drawn keyboard has its z
insert_captured "CTL SHF z"
open_safein
click $capture
press udiaeresis
insert_captured $'[\r'
setxkbmap us

# Codes are read backwards as they are typed.
open_safein
empty=$(painted 500 570 700 20)
click $codes_to_read
type_text "RAW (#1C #F0 #1C)"
until_true 10 painted_differs "$empty" 500 570 700 20 || fail "the codes aren't read"

# F4 in its window makes room for the text, and brings it back from there.
press F4
expect_active "Tarvex - "
open_safein
press ctrl+s # goes to the program
wmctrl -c "Safein - "
expect_no_title "Safein - "
expect_active "Tarvex - "

press alt+f x
expect_gone
expect_in_file "$place/Tarvex.ini" "SafeinOnTop= 1"
