#!/usr/bin/env bash
# A user builds a small pair of files from nothing with the Composer: a template, statements from the pictures and their
# menus, forms, slash modifiers, a delay, a remark, logic, and macros by double click and by dragging. What is saved is
# what the golden files hold, and tarvexctl finds in it what was built.
. "$(dirname "$0")/user.sh"
tarvexctl=${3:?the program that reads files without a window}
golden=$(cd "$(dirname "$0")/../data/composer_walk" && pwd)

# Where the window has its parts when it opens, as "X Y".
page_controllers="55 24"
page_rng="124 24"
page_set_up="377 24"
page_flags="436 24"
throttle_tab="130 59"
s1="275 181"
s2="310 151"
h1="345 140"
trigger="260 262"
rng_knob="303 157"
slash_p="429 577"
slash_r="492 577"
delay="169 605"
line_end="664 605"
remark="308 633"
use_tqs="113 85"
rate="181 266"
rng_steps="231 86"
term_btn="414 301"
term_and="62 301"
flag_x1="47 377"
insert_flag="82 510"
hat_h1="166 377"
hat_up="255 377"
insert_hat="239 510"
button_s2="380 391"
insert_button="390 510"
insert_current="154 632"
macros_tab="762 24"
templates_tab="838 24"
first_template="800 54"
into_macro_file="848 605"
hide="900 698"
# The macros of the template, in its order.
radar_mode="800 86"
radar_air="800 104"
radar_ground="800 122"
radar_off="800 140"

composer() { xdotool search --onlyvisible --name '^Composer - ' | head -n 1; }
# at X Y: a click in the Composer, whichever window has the keyboard.
at() { xdotool mousemove --window "$(composer)" "$1" "$2" click 1; }
double_click() { xdotool mousemove --window "$(composer)" "$1" "$2" click --repeat 2 --delay 40 1; }
# from_menu X Y KEY...: chooses from the menu that a control pops up.
from_menu() {
    local before
    before=$(menus_open)
    more() { [ "$(menus_open)" -gt "$before" ]; }
    at "$1" "$2"
    until_true 10 more || fail "no menu popped up at $1 $2"
    shift 2
    press "$@"
}
# save_as EXTENSION: the Editor asks for the name of its new file.
save_as() {
    expect_active "Tarvex - untitled.$1"
    press ctrl+s
    expect_active "Save As"
    type_text "$place/walk.$1"
    press Return
    expect_active "Tarvex - walk.$1"
    until_true 20 test -f "$place/walk.$1" || fail "walk.$1 isn't there"
}
# saved TEXT: the joystick file holds it once it is saved, which either window does. Clicks that follow each other at once
# leave the keyboard in one or the other.
saved() {
    press ctrl+s
    expect_in_file "$place/walk.b50" "$1"
}

settings "ThrottleName=1" "RudderName=1"
start
press F2
expect_active "Composer - "
# The left side of the text stays in sight; the size is the one that the places above are for.
wmctrl -r "Composer - " -e 0,300,0,980,720
sized() { [ "$(xdotool getwindowgeometry --shell "$(composer)" | grep -c 'WIDTH=980\|HEIGHT=720')" = 2 ]; }
until_true 20 sized || fail "the Composer doesn't take its size"

# The joystick file begins with a remark and what is set up.
at $remark
type_text "Walk"
press Return
expect_active "Tarvex - "
at $line_end
at $page_set_up
at $use_tqs
at $rate
type_text "60"
press Return
save_as b50
expect_in_file "$place/walk.b50" "RATE 60"

# The macros come from a template.
at $templates_tab
at $first_template
type_text "radar-m"
at $into_macro_file
save_as m50
expect_in_file "$place/walk.m50" "Radar_Sweep"
at $macros_tab

# A button with macros, which the list inserts behind it; the second click on it finds it.
at $page_controllers
at $s2
saved "BTN S2 "
at $slash_p
double_click $radar_air
at $line_end
at $slash_r
double_click $radar_off
at $line_end
saved "/R Radar_Off"
at $s2
at $delay
saved "BTN S2 DLY(60) /P Radar_Air"
wmctrl -a "Tarvex - walk.b50"
expect_active "Tarvex - walk.b50"
press ctrl+End

# Hat and trigger have menus.
from_menu $h1 Down Return
double_click $radar_mode
at $line_end
saved "BTN H1U Radar_Mode"
from_menu $trigger Down Down Return
at $line_end
saved "BTN TG2 "

# The knob isn't set up yet, so it leads to its form.
at $page_controllers
at $throttle_tab
at $rng_knob
at $rng_steps
type_text "5"
press Tab
type_text "Radar_Air"
press Tab
type_text "Radar_Ground"
press Return
saved "RNG 1 5 Radar_Air Radar_Ground"

# A logical statement from its terms.
at $page_flags
at $term_btn
at $flag_x1
at $insert_flag
at $hat_h1
at $hat_up
at $insert_hat
at $term_and
at $button_s2
at $insert_button
at $insert_current
saved "BTN X1 H1U AND S2"

# A macro is dragged behind the trigger's name, in line 7 of the text, which stands right of the line numbers.
drag() { # FROM X Y, TO X Y on the screen
    local step
    xdotool mousemove --window "$(composer)" "$1" "$2" mousedown 1
    for step in 60 30 10 0; do xdotool mousemove $(($3 + step)) $(($4 + step)); done
    xdotool mouseup 1
}
drag $radar_ground 280 207
until_true 20 has_title "walk.b50*" || fail "nothing was dropped"
xdotool mousemove --window "$(composer)" 500 400
at $hide
expect_no_title "Composer - "
wmctrl -a "Tarvex - walk.b50"
expect_active "Tarvex - walk.b50"
saved "BTN TG2 Radar_Ground"

cmp -s "$place/walk.b50" "$golden/expected.b50" ||
    fail "walk.b50 differs: $(diff "$golden/expected.b50" "$place/walk.b50")"
cmp -s "$place/walk.m50" "$golden/expected.m50" ||
    fail "walk.m50 differs: $(diff "$golden/expected.m50" "$place/walk.m50")"

# What was built is found again, with its macros, and can be coloured.
controls=$("$tarvexctl" controls "$place/walk.b50") || fail "tarvexctl controls ends with $?"
for control in S2 H1U TG2 RNG; do
    grep -q "^$control[^A-Z0-9].*Radar_" <<<"$controls" || fail "tarvexctl finds no $control in: $controls"
done
used=$("$tarvexctl" used "$place/walk.b50" "$place/walk.m50") || fail "tarvexctl used ends with $?"
for macro in Radar_Mode Radar_Air Radar_Ground Radar_Off; do
    grep -q "$macro" <<<"$used" || fail "tarvexctl finds no use of $macro in: $used"
done
# Its first colour run is the remark, and no pass is held by what was written.
colours=$("$tarvexctl" colour --json "$place/walk.b50") || fail "tarvexctl colour ends with $?"
[[ $colours == *'"runs": [[0, 9, '*'"held": []'* ]] || fail "tarvexctl colours walk.b50 as $colours"

# It comes back where it was, and leaves with the program.
press F2
expect_active "Composer - "
press alt+h
expect_no_title "Composer - "
expect_active "Tarvex - "
press alt+f x
expect_gone
