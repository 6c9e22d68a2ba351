#include "shell/toolbar_tips.h"

#include "shell/errors.h"

namespace tarvex {

namespace {

struct ToolTip {
    int number;
    const char* text;
};

constexpr ToolTip toolTips[] = {
    {1, "New joystick or macro file"},
    {5, "Print currently selected file (Ctrl+P)"},
    {7, "Cut (Ctrl+X)"},
    {8, "Copy (Ctrl+C)"},
    {9, "Paste (Ctrl+V)"},
    {11, "Undo (Ctrl+Z)"},
    {12, "Redo (Ctrl+Y)"},
    {14, "Find word or phrase in file (Ctrl+F)"},
    {15, "Find and Replace (Ctrl+R)"},
    {16, "Goto line number (Ctrl+G)"},
    {18, "Add current files to Favourites"},
    {20, "Update macros"},
    {21, "View macros"},
    {23, "Composer (F2)"},
    {24, "Select a template and insert it (F3)"},
    {25, "Safein (F4)"},
    {26, "Insert Title"},
    {27, "Insert Heading (F5)"},
    {28, "Insert Rem statement (F6)"},
    {30, "Tile joystick and macro files vertically"},
    {32, "Apply colour highlighting to selected file"},
    {33, "Highlight insertion line (Ctrl+L)"},
    {34, "Identify macros used (F7)"},
    {36, "Launcher"},
    {37, "Calibrate controllers"},
    {38, "Ned Marl's CTFJ"},
    {39, "Image viewer"},
    {40, "Key test (Ctrl+K)"},
    {41, "Template Editor (Shift F11)"},
    {42, "Thrustmaster Control Centre"},
    {44, "Download joystick file to joystick (F12)"},
    {45, "Compile joystick file (Shift F12)"},
    {46, "Edit Preferences (F9)"},
    {47, "Edit Preferences (F9)"},
    {48, "Help topics (F1)"}, // no such button
};

constexpr int lastTip = 48;
constexpr int openButton = 2;
constexpr int saveButton = 3;
constexpr int firstExtraButton = 35;
constexpr int lastExtraButton = 42;

bool tipsAreOn(const Settings& settings) { return settings.OKtoShowToolTips == 1; }

} // namespace

void UpdateTooltips(Mum& mum, const Settings& settings)
{
    const Steps step;
    if (!tipsAreOn(settings)) {
        for (int number = 1; number <= lastTip; ++number) step([&] { mum.Toolbar1.Buttons(number).ToolTipText = ""; });
        return;
    }
    for (const ToolTip& tip : toolTips) step([&] { mum.Toolbar1.Buttons(tip.number).ToolTipText = tip.text; });
    UpdateToolBarOpenSaveTooltips(mum, settings);
}

void UpdateToolBarOpenSaveTooltips(Mum& mum, const Settings& settings)
{
    const bool openBoth = settings.OpenBothOnToolbar == 1;
    const bool saveBoth = settings.SaveBothOnToolbar == 1;
    if (tipsAreOn(settings)) {
        mum.Toolbar1.Buttons(openButton).ToolTipText =
            openBoth ? "Open joystick file and its macro file (F8)" : "Open file";
        mum.Toolbar1.Buttons(saveButton).ToolTipText =
            saveBoth ? "Save both files" : "Save currently selected file (Ctrl+S)";
    }
    mum.Toolbar1.Refresh(); // the two buttons have other pictures, too
}

void ShowExtraButtons(Mum& mum, const Settings& settings)
{
    for (int number = firstExtraButton; number <= lastExtraButton; ++number)
        mum.Toolbar1.Buttons(number).Visible = settings.UseExtraButtons == 1;
}

} // namespace tarvex
