#include "shell/menus.h"

namespace tarvex {

Menus::Menus()
{
    mnuEditUndo.Enabled = false;
    mnuEditRedo.Enabled = false;
    for (MenuArray* list : {&mnuJFArray, &mnuMFArray, &mnuGameArray, &mnuFavArray}) {
        list->plain = true;
        list->hidesBlanks = true;
        (*list)[0].Enabled = false;
    }
}

} // namespace tarvex
