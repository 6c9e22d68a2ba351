#include "shell/tool_form.h"

#include "platform/platform.h"

#include <utility>

namespace tarvex {

ToolForm::ToolForm(std::string name, std::int16_t* openFlag) : Name(std::move(name)), m_openFlag(openFlag)
{
    Close = [this] { unload(); };
}

void ToolForm::markLoaded()
{
    if (m_openFlag != nullptr) *m_openFlag = 1;
}

void ToolForm::markUnloaded()
{
    if (m_openFlag != nullptr) *m_openFlag = 0;
    Visible = false;
}

void ToolForm::open()
{
    if (!isLoaded() && Load) Load();
    Show();
}

void ToolForm::unload()
{
    const bool holdsSomething = m_openFlag == nullptr || isLoaded();
    Unload&& holdsSomething ? Unload() : markUnloaded();
}

void ToolForm::join(ToolWindows& windows, bool openedByName)
{
    ToolWindow row{.name = Name, .form = this, .openFlag = m_openFlag, .unload = [this] { unload(); }};
    if (openedByName) row.show = [this] { open(); };
    windows.add(std::move(row));
}

float onScreen(float at, float screen) { return at < 0 || at > screen ? placeOffScreen : at; }

void positionForm(Form& form, const PlaceSettings& place, float top, float left, Settings& settings,
                  SettingsStore& store, const Desktop& desktop)
{
    settings.*place.top = top; // the values that are present are the defaults
    settings.*place.left = left;
    store.read(place.read, place.readTag);
    form.Top = settings.*place.top = onScreen(settings.*place.top, desktop.screenHeight());
    form.Left = settings.*place.left = onScreen(settings.*place.left, desktop.screenWidth());
}

void savePosition(const Form& form, const PlaceSettings& place, Settings& settings, SettingsStore& store,
                  const Desktop& desktop)
{
    if (form.State == WindowState::Minimised) return;
    settings.*place.top = onScreen(form.Top, desktop.screenHeight());
    settings.*place.left = onScreen(form.Left, desktop.screenWidth());
    store.write(place.write, place.writeTag);
}

} // namespace tarvex
