#pragma once

#include <QtGlobal>

namespace tarvex {

/// The drawn key at the place of a real one: its index in the key table by the native scan code of a key event; -1 for
/// a key that a 101-key keyboard doesn't have. Knows the codes of X11 and Wayland.
int keyOfNativeCode(quint32 scanCode);
/// Whether the right Alt key is held in a layout that makes third signs with it, by the native modifiers of a key
/// event. Qt knows no modifier for it.
bool isThirdSignHeld(quint32 nativeModifiers);
/// The native scan code of a drawn key; 0 for an index without a key.
quint32 nativeCodeOf(int index);

} // namespace tarvex
