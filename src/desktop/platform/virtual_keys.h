#pragma once

class QKeyEvent;

namespace tarvex {

/// Windows' number of the key of a key event; 0 for one that Windows has no number for. The signs of a keyboard have
/// the numbers that they have on a UK keyboard.
int virtualKeyOf(const QKeyEvent& event);
/// What is held while the event happens, as a sum of shiftKey: a modifier that goes down counts, one that comes up
/// doesn't.
int heldWith(const QKeyEvent& event);
/// The character that a key press writes, in Windows-1252; 0 for none. One that the code page lacks is "?".
int characterOf(const QKeyEvent& event);

} // namespace tarvex
