#include "desktop/composer/composer_menus.h"

#include "desktop/platform/qt_dialogues.h"

namespace tarvex {

void addComposerMenus(QtDialogues& dialogues, InsertOptions& window)
{
    const auto atControl = [&window] { return QPoint(window.PopUpPlace.Left, window.PopUpPlace.Top); };
    dialogues.addPopUp(window.mnuHat, window.hatMenu(), atControl);
    dialogues.addPopUp(window.mnuTrigger, window.triggerMenu(), atControl);
    dialogues.addPopUp(window.mnuPortAll, window.portMenu(), atControl);
    dialogues.addPopUp(window.mnuRHList, window.macroMenu());
    dialogues.addPopUp(window.mnuTemplates, window.templateMenu());
}

} // namespace tarvex
