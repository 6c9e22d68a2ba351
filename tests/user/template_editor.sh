#!/usr/bin/env bash
# A user writes a template, searches it, and has it again after the program was killed.
. "$(dirname "$0")/user.sh"

open_template_editor() {
    choose a t
    expect_active "Template Editor"
}
is_kept() { grep -qs -- "$1" "$place"/Recover/*.journal; } # each key has its own entry


setxkbmap us
start
open_template_editor
type_text "BTN H1U Look_Up"
press Return
type_text "BTN H1D Look_Down"

# Found, and written over.
press ctrl+f
type_text "look_down"
press Return Escape
type_text "Feet~"
until_true 20 is_kept "~" || fail "no notes are taken of what is typed"

kill -KILL "$pid"
wait "$pid" 2>/dev/null

start_again_after_kill() {
    "$place/tarvex" >"$place/output" 2>&1 &
    pid=$!
    expect_active "Phew"
    press Return
    expect_title "Template Editor"
}
start_again_after_kill
wmctrl -a "Template Editor"
expect_active "Template Editor"
press ctrl+s
expect_dialogue "Template Editor"
type_text "$place/views.txt"
press Return
expect_active "Template Editor"
printf 'BTN H1U Look_Up\r\nBTN H1D Feet~' >"$place/expected.txt"
until_true 20 cmp -s "$place/expected.txt" "$place/views.txt" || fail "another text: $(cat "$place/views.txt")"
press Escape
expect_no_title "Template Editor"

expect_active "Tarvex - "
press alt+f x
expect_gone
[ -z "$(ls "$place/Recover")" ] || fail "notes were left: $(ls "$place/Recover")"
