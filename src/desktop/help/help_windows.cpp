#include "desktop/help/help_windows.h"

#include "desktop/help/about_view.h"
#include "desktop/help/handbook_view.h"
#include "desktop/help/info_view.h"
#include "desktop/help/tip_view.h"
#include "desktop/platform/qt_dialogues.h"
#include "help/help.h"

namespace tarvex {

void addHelpForms(QtDialogues& dialogues, Help& help, QWidget* parent)
{
    dialogues.addForm("frmTip", [&help, parent] { TipView(help.frmTip, parent).showModally(); });
    dialogues.addForm("frmAbout", [&help, parent] { AboutView(help.frmAbout, parent).showModally(); });
}

void makeHelpWhenShown(Help& help, Bindings& bindings, QWidget* parent)
{
    makeWhenShown(help.handbook.form, bindings, [&help, parent] { return new HandbookView(help.handbook, parent); });
    makeWhenShown(help.info.form, bindings, [&help, parent] { return new InfoView(help.info, parent); });
}

} // namespace tarvex
