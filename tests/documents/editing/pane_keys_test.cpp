#include "documents/editing/pane_keys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

namespace tarvex {
namespace {

struct Key {
    const char* keys;
    const char* joystick; ///< the command in the joystick pane
    const char* macro;
};

constexpr Key expected[] = {
    {"Ctrl+Z", "mnuEditUndo", "mnuEditUndo"},
    {"Ctrl+X", "mnuEditCut", "mnuEditCut"},
    {"Ctrl+C", "mnuEditCopy", "mnuEditCopy"},
    {"Ctrl+V", "mnuEditPaste", "mnuEditPaste"},
    {"Ctrl+A", "mnuEditSelectAll", "mnuEditSelectAll"},
    {"Ctrl+F", "mnuEditFind", "mnuEditFind"},
    {"Ctrl+G", "mnuEditGoto", "mnuEditGoto"},
    {"Ctrl+R", "mnuEditReplace", "mnuEditReplace"},
    {"Ctrl+N", "mnuFileNewJoystick", "mnuFileNewMacro"},
    {"Ctrl+O", "mnuFileJoystickLoad", "MnuFileMacroLoad"},
    {"Ctrl+S", "mnuFileSave", "mnuFileSave"},
    {"Ctrl+P", "mnuFilePrintJoystick", "mnuFilePrintMacro"},
    {"Ctrl+Y", "mnuEditRedo", "mnuEditRedo"},
    {"Ctrl+H", "mnuViewReformat", "mnuViewReformat"},
    {"Ctrl+K", "mnuSendToKeyTest", "mnuSendToKeyTest"},
    {"Ctrl+L", "mnuViewHighlightLine", "mnuViewHighlightLine"},
    {"Ctrl+T", "mnuViewApplyColourBothFiles", "mnuViewApplyColourBothFiles"},
    {"Ctrl+F8", "mnuFileSaveBoth", "mnuFileSaveBoth"},
};

using Shortcuts = std::map<std::string, std::string>; ///< keys to the command's name

void collect(const std::vector<MenuEntry>& entries, Shortcuts& shortcuts)
{
    for (const MenuEntry& entry : entries) {
        if (entry.item != nullptr && !entry.keys.empty()) {
            EXPECT_TRUE(shortcuts.emplace(entry.keys, entry.item->Name).second) << entry.keys << " twice";
        }
        collect(entry.entries, shortcuts);
    }
}

TEST(PaneKeys, EachKeyRunsItsCommandOfThePane)
{
    Menus menus;
    ASSERT_EQ(paneKeys().size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        const PaneKey& key = paneKeys()[i];
        EXPECT_EQ(key.keys, expected[i].keys);
        EXPECT_EQ((menus.*key.joystick).Name, expected[i].joystick) << key.keys;
        EXPECT_EQ((menus.*key.macro).Name, expected[i].macro) << key.keys;
    }
}

TEST(PaneKeys, EachKeyStandsBesideItsCommandInTheMenuBar)
{
    Menus menus;
    Shortcuts shortcuts;
    collect(menuBar(menus), shortcuts);
    for (const PaneKey& key : paneKeys()) EXPECT_EQ(shortcuts[std::string(key.keys)], (menus.*key.joystick).Name);
}

TEST(PaneKeys, EachShortcutOfTheMenuBarIsAKeyOfThePanesOrOneOfTheMenusAlone)
{
    const Shortcuts ofMenusAlone{
        {"F8", "mnuFileOpen"},
        {"Ctrl+Shift+K", "mnuEditREMblock"},
        {"Ctrl+Shift+U", "mnuEditREMunblock"},
        {"Ctrl+Shift+V", "mnuEditPastePlain"},
        {"Ctrl+Shift+F", "mnuEditFindBar"},
        {"Ctrl+U", "mnuEditUpdateMacros"},
        {"Ctrl+Shift+C", "mnuViewTextColour"},
        {"Ctrl+Shift+A", "mnuViewAlignSlashes"},
        {"F7", "mnuViewIdentify"},
        {"Ctrl+Alt+F", "mnuViewFilterMacros"},
        {"Ctrl++", "mnuViewZoomIn"},
        {"Ctrl+-", "mnuViewZoomOut"},
        {"Ctrl+0", "mnuViewZoomNormal"},
        {"F2", "mnuShowInsertWindow"},
        {"F3", "mnuComposerPlugin"},
        {"F4", "mnuInsertRAW"},
        {"F5", "mnuInsertHeading"},
        {"F6", "mnuInsertRemStatement"},
        {"F12", "mnuSendToJoystick"},
        {"Shift+F11", "mnuAppsTemplate"},
        {"F11", "mnuAppsJoyAnalyser"},
        {"F9", "mnuPreferencesEdit"},
        {"F1", "mnuHelpContents"},
    };
    Menus menus;
    Shortcuts shortcuts;
    collect(menuBar(menus), shortcuts);
    for (const PaneKey& key : paneKeys()) shortcuts.erase(std::string(key.keys));
    EXPECT_EQ(shortcuts, ofMenusAlone);
}

} // namespace
} // namespace tarvex
