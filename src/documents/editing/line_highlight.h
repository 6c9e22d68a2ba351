#pragma once

#include "documents/pair/editor.h"

#include <optional>

namespace tarvex {

/// Selects the line of the caret in the pane of the selected tab; an empty pane does nothing.
void HighlightLineAtIP(Editor& editor);
/// The same, and the line flashes: off, on, off in 300 ms, ending with a caret at its beginning.
void blinkLineAtIP(Editor& editor);
/// The line of the caret, or a piece of the selected tab's text, flashes likewise, and the caret stays where it is.
void flashLine(Editor& editor);
void flashText(Editor& editor, std::int64_t start, std::int64_t length);
void mnuViewHighlightLine_Click(Editor& editor);
void TimerBlinkLine_Timer(Editor& editor);
/// The user is about to write: a line that flashes at the moment must not be what he writes over. Ends the flashing
/// with a caret at the line's beginning.
void endBlinking(Editor& editor);
/// Whether a piece of the side's text flashes for a caret that stands elsewhere: the user didn't select it, and the
/// caret on record is to stay.
bool flashesForCaret(const Editor& editor, const Side& side);
/// The pane's caret goes on record, unless it only stands where a piece of the text flashes.
void recordCaret(const Editor& editor, Side& side);
/// An edit of the pane ends the flashing in it, so that no step of it moves the caret away under the user's hands.
void stopBlinking(Editor& editor, const Side& side);

/// First position of a line, numbered from 1; nothing when the pane has no such line.
std::optional<std::int64_t> startOfLine(const Pane& pane, std::int64_t lineNumber);
/// Shows a line of the joystick file, numbered from 1, as a compiler or the user names it; says so when there is none.
void HighlightErrorLine(Editor& editor, std::int64_t lineNumber);

} // namespace tarvex
