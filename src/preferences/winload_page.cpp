#include "preferences/winload_page.h"

#include "platform/errors.h"

#include <string_view>

namespace tarvex {

namespace {

constexpr std::array<std::string_view, 3> throttleCaptions{"USE TQS", "USE WCS", "No throttle"};
constexpr std::array<std::string_view, 3> throttlePieces{" /TQS", " /WCS", ""};
constexpr std::array<std::string_view, 4> mouseCaptions{"2 button", "3 button", "Logitech", "No mouse"};

/// The mice of one kind: "A" and five of them, for instance.
struct MouseKind {
    char letter;
    int count;
};
constexpr std::array<MouseKind, 3> mouseKinds{{{'A', 5}, {'B', 10}, {'C', 10}}};

using MouseButtons = std::array<std::string_view, 3>; ///< left, middle, right
constexpr std::array<MouseButtons, 5> twoButtons{{
    {"T1", "n/a", "T6"},
    {"T6", "n/a", "T1"},
    {"T1", "n/a", "n/a"},
    {"T6", "n/a", "n/a"},
    {"n/a", "n/a", "n/a"},
}};
constexpr std::array<MouseButtons, 10> threeButtons{{
    {"T1", "T6", "n/a"},
    {"T6", "T1", "n/a"},
    {"T1", "n/a", "n/a"},
    {"T6", "n/a", "n/a"},
    {"n/a", "n/a", "n/a"},
    {"T1", "T6", "T3"},
    {"T6", "T1", "T3"},
    {"T1", "n/a", "T3"},
    {"T6", "n/a", "T3"},
    {"n/a", "n/a", "T3"},
}};

const MouseButtons& buttonsOf(int kind, std::size_t entry)
{
    return kind == 0 ? twoButtons.at(entry) : threeButtons.at(entry);
}

void FillMiceListBoxes(WinLoadPage& page)
{
    for (std::size_t kind = 0; kind < mouseKinds.size(); ++kind) {
        std::vector<std::string> names;
        for (int i = 1; i <= mouseKinds[kind].count; ++i) names.push_back(mouseKinds[kind].letter + std::to_string(i));
        page.MouseList[kind].Items = names;
        page.MouseList[kind].Visible = false;
    }
}

/// Marks the chosen one of a group of option buttons.
template <std::size_t count> void choose(std::array<OptionButton, count>& group, int index)
{
    for (std::size_t i = 0; i < count; ++i) group[i].Value = static_cast<int>(i) == index;
}
template <std::size_t count> std::int16_t chosen(const std::array<OptionButton, count>& group, std::int16_t otherwise)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (group[i].Value) return static_cast<std::int16_t>(i);
    }
    return otherwise;
}

void showMice(WinLoadPage& page, int kind)
{
    page.FrameMouseVisible = kind != WinLoadPage::noMouse;
    for (std::size_t i = 0; i < page.MouseList.size(); ++i) page.MouseList[i].Visible = static_cast<int>(i) == kind;
}

/// A handler of the page: what fails in it is reported under its name.
template <typename Work> void handle(WinLoadPage& page, std::string_view tag, Work work)
{
    const Steps step(page.shared.errors, tag);
    step(work);
}

} // namespace

WinLoadPage::WinLoadPage(Shared& theShared) : shared(theShared)
{
    CheckApplyWinLoad.Caption = "Apply when downloading files with WinLoad";
    CheckApplyWinLoad.Click = [this] { CheckApplyWinLoad_Click(*this); };
    CheckStatusBarErrors.Caption = "Show WinLoad's errors in the status bar";
    CheckUseBlanker.Caption = "USE BLANKER";
    CheckUseBlanker.Click = [this] { CheckUseBlanker_Click(*this); };
    for (std::size_t i = 0; i < WinLoadThrottle.size(); ++i) {
        WinLoadThrottle[i].Caption = std::string(throttleCaptions[i]);
        WinLoadThrottle[i].Click = [this, i] { WinLoadThrottle_Click(*this, static_cast<int>(i)); };
    }
    for (std::size_t i = 0; i < OptionMouse.size(); ++i) {
        OptionMouse[i].Caption = std::string(mouseCaptions[i]);
        OptionMouse[i].Click = [this, i] { OptionMouse_Click(*this, static_cast<int>(i)); };
    }
    for (std::size_t i = 0; i < MouseList.size(); ++i)
        MouseList[i].Click = [this, i] { MouseList_Click(*this, static_cast<int>(i)); };
    FillMiceListBoxes(*this);
    m_extraChanged = ExtraText.Text.changed.connect([this] { ExtraText_Change(*this); });
}

void CreateWinLoadString(WinLoadPage& page)
{
    page.WinLoadLabel.Caption = page.throttlePiece + page.mousePiece + page.blankerPiece + page.extraPiece;
    page.shared.settings.WinLoadString = page.WinLoadLabel.Caption.get();
}

void GetWinloadStuff(WinLoadPage& page)
{
    const Steps step(page.shared.errors, "PREFS GetWinloadStuff");
    page.shared.store.read(Access::GetWinloadStuff, "PREFS GetWinloadStuff");
    const Settings& settings = page.shared.settings;
    const int mouse = settings.WinLoadMouse;
    step([&] { WinLoadThrottle_Click(page, settings.WinLoadThr); });
    step([&] { OptionMouse_Click(page, mouse); });
    if (mouse != WinLoadPage::noMouse) {
        step([&] {
            ListBox& list = page.MouseList.at(static_cast<std::size_t>(mouse));
            if (settings.WinLoadMouseType < 0 || settings.WinLoadMouseType >= static_cast<int>(list.Items.get().size()))
                throw RuntimeError(ErrorCode::InvalidPropertyValue, "Invalid property value");
            list.ListIndex = settings.WinLoadMouseType;
            MouseList_Click(page, mouse);
        });
    }
    page.ExtraText.Text = settings.WinLoadExtra;
    ExtraText_Change(page); // an equal text is no change, and its piece is wanted all the same
    page.CheckUseBlanker.Value = settings.WinLoadBlanker == 1;
    CheckUseBlanker_Click(page);
    page.CheckApplyWinLoad.Value = settings.WinLoadUse == 1;
    page.CheckStatusBarErrors.Value = settings.WinLoadStatusBarErrors == 1;
}

void SaveWinLoadStuff(WinLoadPage& page)
{
    Settings& settings = page.shared.settings;
    settings.WinLoadExtra = page.ExtraText.Text.get();
    settings.WinLoadThr = chosen(page.WinLoadThrottle, settings.WinLoadThr);
    settings.WinLoadMouse = chosen(page.OptionMouse, settings.WinLoadMouse);
    if (settings.WinLoadMouse != WinLoadPage::noMouse) {
        const int entry = page.MouseList.at(static_cast<std::size_t>(settings.WinLoadMouse)).ListIndex;
        if (entry >= 0) settings.WinLoadMouseType = static_cast<std::int16_t>(entry);
    }
    settings.WinLoadBlanker = page.CheckUseBlanker.Value ? 1 : 0;
    settings.WinLoadUse = page.CheckApplyWinLoad.Value ? 1 : 0;
    settings.WinLoadStatusBarErrors = page.CheckStatusBarErrors.Value ? 1 : 0;
    page.shared.store.write(Access::SaveWinLoadStuff, "PREFS SaveWinLoadStuff");
}

void WinLoadThrottle_Click(WinLoadPage& page, int index)
{
    handle(page, "PREFS WinLoadThrottle_Click", [&] {
        page.throttlePiece = throttlePieces.at(static_cast<std::size_t>(index));
        choose(page.WinLoadThrottle, index);
        CreateWinLoadString(page);
    });
}

void OptionMouse_Click(WinLoadPage& page, int index)
{
    handle(page, "PREFS OptionMouse_Click", [&] {
        mouseCaptions.at(static_cast<std::size_t>(index)); // a damaged setting chooses nothing
        choose(page.OptionMouse, index);
        showMice(page, index);
        if (index == WinLoadPage::noMouse) {
            page.mousePiece.clear();
            CreateWinLoadString(page);
        } else if (page.MouseList[static_cast<std::size_t>(index)].ListIndex >= 0) {
            MouseList_Click(page, index); // the entry that was chosen in this list before
        }
    });
}

void MouseList_Click(WinLoadPage& page, int kind)
{
    handle(page, "PREFS MouseList_Click", [&] {
        const ListBox& list = page.MouseList.at(static_cast<std::size_t>(kind));
        const auto entry = static_cast<std::size_t>(list.ListIndex.get());
        page.mousePiece = " /" + list.Items.get().at(entry);
        const MouseButtons& buttons = buttonsOf(kind, entry);
        for (std::size_t i = 0; i < buttons.size(); ++i) page.Label5[i].Caption = std::string(buttons[i]);
        CreateWinLoadString(page);
    });
}

void CheckUseBlanker_Click(WinLoadPage& page)
{
    handle(page, "PREFS CheckUseBlanker_Click", [&] {
        page.blankerPiece = page.CheckUseBlanker.Value ? " /NB" : "";
        CreateWinLoadString(page);
    });
}

void ExtraText_Change(WinLoadPage& page)
{
    handle(page, "PREFS ExtraText_Change", [&] {
        page.extraPiece = " " + page.ExtraText.Text.get();
        CreateWinLoadString(page);
    });
}

void CheckApplyWinLoad_Click(WinLoadPage& page)
{
    page.shared.settings.WinLoadUse = page.CheckApplyWinLoad.Value ? 1 : 0;
}

bool isWinLoad(const std::string& loaderPath) { return loaderPath.find("winld") != std::string::npos; }

} // namespace tarvex
