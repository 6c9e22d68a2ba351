#include "lists/custom_apps.h"

#include <algorithm>

namespace tarvex {

void GetCustomApps(Editor& editor)
{
    editor.shared.store.read(Access::GetCustomApps, "MODULE GetCustomApps");
    UpdateMnuCustomApps(editor);
}

void UpdateMnuCustomApps(Editor& editor)
{
    const Steps step(editor.shared.errors, "MODULE UpdateMnuCustomApps");
    const Settings& settings = editor.shared.settings;
    MenuArray& items = editor.menus.mnuCustomApp;
    for (int i = 0; i <= items.UBound(); ++i) {
        const auto entry = static_cast<std::size_t>(i);
        step([&] { items[i].Caption = settings.CustomAppName.at(entry); });
        step([&] { items[i].Visible = settings.CustomAppUse.at(entry) == 1; });
    }
    const std::vector<std::int16_t>& used = settings.CustomAppUse;
    editor.menus.mnuAppDivider2.Visible = std::find(used.begin(), used.end(), 1) != used.end();
}

void SaveApps(Editor& editor) { editor.shared.store.write(Access::SaveApps, "MODULE SaveApps"); }

} // namespace tarvex
