#include "documents/window/preferences_page.h"

namespace tarvex {

void showPreferencesPage(Editor& editor, std::int16_t page)
{
    editor.shared.PreferencesPage = page;
    editor.menus.mnuPreferencesEdit.Click();
}

void mnuViewEditColours_Click(Editor& editor) { showPreferencesPage(editor, preferencesPage::colours); }

void wirePreferencesPages(Editor& editor)
{
    Menus& menus = editor.menus;
    menus.mnuViewEditColours.handler = [&editor] { mnuViewEditColours_Click(editor); };
    const bool canBeShown = menus.mnuPreferencesEdit.handler != nullptr;
    for (MenuItem* item : {&menus.mnuViewEditColours, &menus.mnuAppsEdit, &menus.mnuFavsEdit, &menus.mnuGamesEdit})
        item->Enabled = canBeShown;
}

} // namespace tarvex
