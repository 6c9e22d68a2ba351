#include "wizards/wizards.h"

namespace tarvex {

namespace {

/// Beside the text that the windows work on, at the right edge of the screen; a view moves them into it.
void standAside(Form& form, const Desktop& desktop)
{
    form.Left = desktop.screenWidth() - twipsPerPixel;
    form.Top = desktop.screenHeight() / 4;
}

} // namespace

void wireWizards(Wizards& wizards)
{
    Menus& menus = wizards.editor.menus;
    menus.mnuhelpWizCreateMacroFile.handler = [&wizards] { wizards.macro.form.open(); };
    menus.mnuWizSpeedy.handler = [&wizards] { wizards.speedy.form.open(); };
    menus.mnuhelpWizCreateJoyFile.handler = [&wizards] { wizards.joystick.form.open(); };
    menus.mnuWixUnderstandSlash.handler = [&wizards] { wizards.slash.form.open(); };
    for (ToolForm* form : {&wizards.macro.form, &wizards.speedy.form, &wizards.joystick.form, &wizards.slash.form}) {
        standAside(*form, wizards.editor.platform.desktop);
        form->join(wizards.editor.mum.toolWindows);
    }
}

void takeKeys(Wizards& wizards, const std::string& keys)
{
    if (wizards.speedy.form.isLoaded()) wizards.speedy.maker.Text1[1].Text = keys;
    if (wizards.macro.form.isLoaded()) wizards.macro.maker.Text1[1].Text = keys;
}

} // namespace tarvex
