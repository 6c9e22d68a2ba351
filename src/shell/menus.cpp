#include "shell/menus.h"

namespace tarvex {

Menus::Menus()
{
    mnuEditUndo.Enabled = false;
    mnuEditRedo.Enabled = false;
    mnuViewMacros.Checked = false;
    mnuInsertQuickTip.Enabled = false; // it only tells
    for (MenuArray* list : {&mnuJFArray, &mnuMFArray, &mnuGameArray, &mnuFavArray, &mnuCustomApp}) list->plain = true;
    for (MenuArray* list : {&mnuJFArray, &mnuMFArray, &mnuGameArray, &mnuFavArray}) {
        list->hidesBlanks = true;
        (*list)[0].Enabled = false;
    }
}

} // namespace tarvex
