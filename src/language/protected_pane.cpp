#include "language/protected_pane.h"

namespace tarvex {

bool refuseProtected(Editor& editor)
{
    const Side& side = editor.selected();
    if (!side.pane.Locked) return false;
    editor.status(editor.tabCaption(side) + " is protected and can't be edited.");
    return true;
}

} // namespace tarvex
