#include "documents/pair/protected_pane.h"

namespace tarvex {

bool refuseProtected(Editor& editor, const Side& side)
{
    if (!side.pane.Locked) return false;
    editor.status(editor.tabCaption(side) + " is protected and can't be edited.");
    return true;
}

bool refuseProtected(Editor& editor) { return refuseProtected(editor, editor.selected()); }

} // namespace tarvex
