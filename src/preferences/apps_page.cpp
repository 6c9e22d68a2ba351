#include "preferences/apps_page.h"

#include "platform/windows1252.h"
#include "preferences/browse.h"

namespace tarvex {

namespace {

constexpr Browse image{"Locate image file", "Picture files|*.bmp;*.jpg;*.gif;*.wmf|All files (*.*)|*.*"};
constexpr Browse text{"Locate text file", "Text files|*.txt;*.rtf;*.ini;*.bat|All files (*.*)|*.*"};
constexpr Browse program{"Locate Thrustmaster file", executables};

void browseInto(Editor& editor, TextBox& box, const Browse& what, std::string_view tag)
{
    const Steps step(editor.shared.errors, tag);
    step([&] {
        if (const auto path = browse(editor, what, box.Text)) box.Text = *path;
    });
}

/// The entry of a list that a damaged file may have made too short.
template <typename Value> Value entryOf(const std::vector<Value>& list, std::size_t index)
{
    return index < list.size() ? list[index] : Value{};
}

} // namespace

AppsPage::AppsPage(Editor& theEditor) : editor(theEditor)
{
    Text5Browse.Caption = "Browse";
    Text5Browse.handler = [this] { browseInto(editor, Text5, image, "PREFS Text5Browse_Click"); };
    Text6Browse.Caption = "Browse";
    Text6Browse.handler = [this] { browseInto(editor, Text6, text, "PREFS Text6Browse_Click"); };
    for (std::size_t i = 0; i < programs; ++i) {
        CustomAppPathUse[i].Caption = "Use";
        CustomAppPathBrowse[i].Caption = "Browse";
        CustomAppPathBrowse[i].handler = [this, i] {
            browseInto(editor, CustomAppPathText[i], program, "PREFS CustomAppPathBrowse_Click");
        };
    }
}

void loadApps(AppsPage& page)
{
    const Settings& settings = page.editor.shared.settings;
    page.Text5.Text = settings.ImageFilePath.whole();
    page.Text6.Text = settings.TextFilePath.whole();
    for (std::size_t i = 0; i < AppsPage::programs; ++i) {
        page.CustomAppNameText[i].Text = entryOf(settings.CustomAppName, i).whole();
        page.CustomAppPathText[i].Text = entryOf(settings.CustomAppPath, i).whole();
        page.CustomAppPathUse[i].Value = entryOf(settings.CustomAppUse, i) == 1;
    }
}

void takeApps(AppsPage& page)
{
    Settings& settings = page.editor.shared.settings;
    settings.ImageFilePath = lowerUtf8(page.Text5.Text.get());
    settings.TextFilePath = lowerUtf8(page.Text6.Text.get());
    settings.CustomAppName.resize(AppsPage::programs);
    settings.CustomAppPath.resize(AppsPage::programs);
    settings.CustomAppUse.resize(AppsPage::programs);
    for (std::size_t i = 0; i < AppsPage::programs; ++i) {
        settings.CustomAppName[i] = page.CustomAppNameText[i].Text.get();
        settings.CustomAppPath[i] = lowerUtf8(page.CustomAppPathText[i].Text.get());
        settings.CustomAppUse[i] = page.CustomAppPathUse[i].Value ? 1 : 0;
    }
}

} // namespace tarvex
