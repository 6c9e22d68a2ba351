#include "preferences/extras_controls.h"

#include "preferences/extras_drives.h"
#include "preferences/extras_handling.h"
#include "preferences/extras_runners.h"
#include "shell/extras.h"

namespace tarvex {

namespace {

std::array<MenuItem*, 4> appearanceItems(Menus& menus)
{
    return {&menus.mnuAppearanceSystem, &menus.mnuAppearanceLight, &menus.mnuAppearanceDark,
            &menus.mnuAppearanceContrast};
}

void showAppearance(ExtrasPage& page)
{
    const auto items = appearanceItems(page.editor.menus);
    for (std::size_t i = 0; i < items.size(); ++i) page.Appearance[i].Value = items[i]->Checked.get();
}

void wireAppearance(ExtrasPage& page)
{
    constexpr const char* captions[] = {"As the deskto&p", "L&ight", "Dar&k", "Hi&gh contrast"};
    const auto items = appearanceItems(page.editor.menus);
    for (std::size_t i = 0; i < page.Appearance.size(); ++i) {
        page.Appearance[i].Caption = captions[i];
        page.Appearance[i].Click = [item = items[i]] { item->Click(); };
        page.connections.push_back(items[i]->Checked.changed.connect([&page] { showAppearance(page); }));
    }
}

void OpenFolder_Click(ExtrasPage& page)
{
    handle(page, "PREFS OpenFolder_Click", [&page] {
        if (!machineOf(page).showFolder(page.SettingsFolder.Text))
            say(page, "I couldn't open a window on " + page.SettingsFolder.Text.get() + ".");
    });
}

} // namespace

void wireExtras(ExtrasPage& page)
{
    wireDrives(page);
    wireRunners(page);
    wireAppearance(page);
    page.OpenFolder.Caption = "Ope&n folder";
    page.OpenFolder.handler = [&page] { OpenFolder_Click(page); };
    page.Import.Caption = "Impo&rt...";
    for (const ExtraTick& tick : extraTicks()) page.Ticks.emplace_back().Caption = tick.caption;
}

void loadExtras(ExtrasPage& page)
{
    Shared& shared = page.editor.shared;
    loadDrives(page);
    loadRunners(page);
    showAppearance(page);
    page.SettingsFolder.Text = machineOf(page).nativePath(page.editor.platform.programDirectory);
    if (page.unwritten) return;
    for (std::size_t i = 0; i < page.Ticks.size(); ++i) page.Ticks[i].Value = shared.extras.on(extraTicks()[i].key);
}

void takeExtras(ExtrasPage& page)
{
    Shared& shared = page.editor.shared;
    const Steps step(shared.errors, "PREFS takeExtras");
    takeRunners(page, step);
    for (std::size_t i = 0; i < page.Ticks.size(); ++i)
        step([&] { shared.extras.set(extraTicks()[i].key, page.Ticks[i].Value); });
    takeDrives(page, step);
}

} // namespace tarvex
