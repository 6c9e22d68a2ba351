#include "preferences/file_locations_page.h"

#include "platform/windows1252.h"
#include "preferences/browse.h"
#include "preferences/previous_loaders.h"
#include "shell/hardware/hardware_profile.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr Browse loader{"Locate Thrustmaster file", executables};
constexpr Browse ctfj{"Locate Ned Marl's CTFJ", "Executables (*.exe)|*.exe"};
constexpr Browse controlCentre{"", "Batch files (*.bat)|*.bat|Executables (*.exe)|*.exe|All files (*.*)|*.*"};

template <typename Work> void handle(FileLocationsPage& page, std::string_view tag, Work work)
{
    const Steps step(page.editor.shared.errors, tag);
    step(work);
}

/// A list of controllers: what is chosen goes by its index to `choose`.
void fillCombo(FileLocationsPage& page, ComboBox& combo, std::vector<std::string> names, std::string_view tag,
               void (*choose)(Shared&, std::int16_t))
{
    combo.Items = std::move(names);
    combo.Click = [&page, &combo, tag, choose] {
        handle(page, tag, [&] {
            const auto& items = combo.Items.get();
            const auto chosen = std::find(items.begin(), items.end(), combo.Text.get());
            if (chosen != items.end()) choose(page.editor.shared, static_cast<std::int16_t>(chosen - items.begin()));
        });
    };
}

void showChoice(ComboBox& combo, std::int16_t index)
{
    const auto& items = combo.Items.get();
    combo.Text =
        index >= 0 && static_cast<std::size_t>(index) < items.size() ? items[static_cast<std::size_t>(index)] : "";
}

/// WinLoad wants no /CO, and has a page of options of its own.
void showKindOfLoader(FileLocationsPage& page)
{
    const bool winLoad = isWinLoad(page.Text1.Text);
    page.LoaderLabel.Caption = winLoad ? "Compiler (do not add the /CO)" : "Compiler";
    page.sticky.Enabled = winLoad;
}

void showPreviousLoaders(FileLocationsPage& page)
{
    std::vector<std::string> paths;
    for (const SettingText& path : page.editor.shared.settings.Loader) paths.push_back(path.whole());
    page.Text1.Items = paths;
}

void browseInto(FileLocationsPage& page, TextBox& box, const Browse& what, std::string_view tag)
{
    handle(page, tag, [&] {
        if (const auto path = browse(page.editor, what, box.Text)) box.Text = *path;
    });
}

} // namespace

FileLocationsPage::FileLocationsPage(Editor& theEditor, SSTab::Page& theSticky) : editor(theEditor), sticky(theSticky)
{
    for (Button* button : {&Command1, &Command2, &Text15Browse, &Text10Browse}) button->Caption = "Browse";
    Command1.handler = [this] { PREFS_Command1_Click(*this); };
    Command2.handler = [this] { PREFS_Command2_Click(*this); };
    Text15Browse.handler = [this] { browseInto(*this, Text15, ctfj, "PREFS Text15Browse_Click"); };
    Text10Browse.handler = [this] { browseInto(*this, Text10, controlCentre, "PREFS Text10Browse_Click"); };
    fillCombo(*this, ComboJoystick, {"F22 Pro", "F16 FLCS", "P FCS", "Top Gun", "FCS"}, "PREFS ComboJoystick_Click",
              ComboJoystick_Click);
    fillCombo(*this, ComboThrottle, {"None", "TQS", "WCS MkII", "WCS"}, "PREFS ComboThrottle_Click",
              ComboThrottle_Click);
    fillCombo(*this, ComboRudders, {"None", "Elite", "RCS"}, "PREFS ComboRudders_Click", ComboRudders_Click);
    m_loaderChanged = Text1.Text.changed.connect([this] { showKindOfLoader(*this); });
    m_controlCentreChanged =
        Text10.Text.changed.connect([this] { editor.shared.settings.CandCCPath = Text10.Text.get(); });
}

void loadFileLocations(FileLocationsPage& page)
{
    const Settings& settings = page.editor.shared.settings;
    GetPreviousLoaders(page.editor.shared);
    showPreviousLoaders(page);
    page.Text1.Text = settings.B50LoadPath.whole();
    showKindOfLoader(page); // an equal path is no change
    page.Text2.Text = settings.ProgramFilesPath.whole();
    page.Text15.Text = settings.CTFJPath.whole();
    page.Text10.Text = settings.CandCCPath.whole();
    showChoice(page.ComboJoystick, settings.JoyName);
    showChoice(page.ComboThrottle, settings.ThrottleName);
    showChoice(page.ComboRudders, settings.RudderName);
}

void takeFileLocations(FileLocationsPage& page)
{
    Settings& settings = page.editor.shared.settings;
    settings.B50LoadPath = lowerUtf8(page.Text1.Text.get());
    settings.ProgramFilesPath = lowerUtf8(page.Text2.Text.get());
    settings.CTFJPath = lowerUtf8(page.Text15.Text.get());
    settings.CandCCPath = lowerUtf8(page.Text10.Text.get());
}

void SaveFilesPath(Editor& editor)
{
    editor.shared.settings.FilesDirectory = editor.shared.settings.ProgramFilesPath;
    editor.shared.store.write(Access::SaveFilesPath, "PREFS SaveFilesPath");
}

void PREFS_Command1_Click(FileLocationsPage& page)
{
    handle(page, "PREFS Command1_Click", [&] {
        Editor& editor = page.editor;
        editor.status(std::string(loader.title));
        const auto path = browse(editor, loader, page.Text1.Text);
        if (!path) return;
        editor.shared.settings.B50LoadPath = *path;
        page.Text1.Text = *path;
        SavePreviousLoaders(editor.shared);
        GetPreviousLoaders(editor.shared);
        showPreviousLoaders(page);
    });
}

void PREFS_Command2_Click(FileLocationsPage& page)
{
    handle(page, "PREFS Command2_Click", [&] {
        const std::string folderNow = page.Text2.Text;
        if (!folderNow.empty()) changeToRootOf(page.editor.shared.currentDirectory, folderNow, Steps());
        const auto folder =
            page.editor.platform.dialogues.chooseFolder("Select your Thrustmaster programs directory", folderNow);
        if (folder) page.Text2.Text = *folder;
    });
}

} // namespace tarvex
