#include "documents/window/preferences_page.h"

namespace tarvex {

void showPreferencesPage(Editor& editor, std::int16_t page)
{
    editor.shared.PreferencesPage = page;
    editor.menus.mnuPreferencesEdit.Click();
}

void mnuViewEditColours_Click(Editor& editor) { showPreferencesPage(editor, preferencesPage::colours); }

} // namespace tarvex
