#!/usr/bin/python3
"""Reads the program's windows as a screen reader does, over AT-SPI:  screen_reader.py COMMAND [ARGUMENT...]

  text NAME                 the whole text of the field called NAME
  line NAME                 the line of its caret
  caret NAME                the position of its caret
  selection NAME            what is selected in it
  focused                   role and name of what has the keyboard
  names ROLE                the names of everything visible with that role, a line each

Ends with 1 when there is no such field, or the program isn't announced.
"""

import sys

import pyatspi

PROGRAM = "Tarvex"
DEEPEST = 40


def program():
    desktop = pyatspi.Registry.getDesktop(0)
    return next((app for app in desktop if app is not None and app.name == PROGRAM), None)


def visible(top, depth=0):
    """Everything that is shown, from the top down."""
    if depth > DEEPEST:
        return
    for child in top:
        if child is None:
            continue
        if depth == 0 or child.getState().contains(pyatspi.STATE_SHOWING):
            yield child
            yield from visible(child, depth + 1)


def field(name):
    for found in visible(program() or []):
        if found.name == name and "Text" in pyatspi.listInterfaces(found):
            return found.queryText()
    sys.exit(f"no text called {name}")


def line_at_caret(text):
    return text.getTextAtOffset(text.caretOffset, pyatspi.TEXT_BOUNDARY_LINE_START)[0].rstrip("\n")


def selection(text):
    return text.getText(*text.getSelection(0)) if text.getNSelections() else ""


def focused():
    """The innermost one that isn't only a ground: grounds hand the keyboard on and count as focused, too."""
    found = [each for each in visible(program() or [])
             if each.getState().contains(pyatspi.STATE_FOCUSED) and each.getRoleName() != "filler"]
    if not found:
        sys.exit("nothing has the keyboard")
    return f"{found[-1].getRoleName()} {found[-1].name}"


def names(role):
    return "\n".join(found.name for found in visible(program() or []) if found.getRoleName() == role)


READERS = {"text": lambda name: field(name).getText(0, -1), "line": lambda name: line_at_caret(field(name)),
           "caret": lambda name: field(name).caretOffset, "selection": lambda name: selection(field(name)),
           "focused": focused, "names": names}

if __name__ == "__main__":
    if program() is None:
        sys.exit(f"{PROGRAM} isn't announced")
    print(READERS[sys.argv[1]](*sys.argv[2:]))
