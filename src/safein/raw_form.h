#pragma once

#include "documents/pair/editor.h"
#include "platform/toggle_label.h"
#include "safein/keys/key_strings.h"
#include "safein/keys/key_table.h"
#include "shell/menus.h"
#include "shell/tool_form.h"

#include <array>
#include <vector>

namespace tarvex {

/// What was added last to the statement; only a RAW block changes what the next one does.
namespace lastAppend {
constexpr std::int16_t nothing = 0;
constexpr std::int16_t other = 1;
constexpr std::int16_t rawBlock = 2;
} // namespace lastAppend

/// Indexes of mnuOption1.
namespace safeinOption {
constexpr int addCarriageReturn = 0;
constexpr int addRawBrackets = 1;
constexpr int useShfKey = 2;
constexpr int viewModifiers = 3;
constexpr int keepOnTop = 4;
} // namespace safeinOption

/// Safein: a drawn keyboard whose keys give their names and raw codes, and a statement that is put together from them.
/// It stays open beside the document window and inserts into the pane of the selected tab. Its options are settings.
struct RAWform {
    static constexpr std::size_t slashCount = 8;
    static constexpr std::size_t pasteCount = 5;

    explicit RAWform(Editor& theEditor);
    RAWform(const RAWform&) = delete;
    RAWform& operator=(const RAWform&) = delete;

    Editor& editor;
    ToolForm form;

    MenuItem mnuFile{"mnuFile", "&File"};
    MenuItem mnuFileClose{"mnuFileClose", "&Close Safein"};
    MenuItem mnuOptions{"mnuOptions", "&Options"};
    MenuArray mnuOption1{
        "mnuOption1",
        {"&Add carriage return", "Add &RAW ()", "&Use SHF key syntax", "&View slash modifiers", "&Keep on top"}};
    MenuItem mnuUseExtendedRAW{"mnuUseExtendedRAW", "&Use extended RAW codes as per An-0001.txt"};
    MenuItem mnuOptionsExplain{"mnuOptionsExplain", "&Explain these options"};
    MenuItem mnuExtendedExplain{"mnuExtendedExplain", "Explain e&xtended RAW codes"};
    MenuItem mnuHelp{"mnuHelp", "&Help"};
    MenuItem mnuHelpContents{"mnuHelpContents", "&Tarvex help topics"};
    MenuItem mnuRawOverview{"mnuRawOverview", "&Overview"};
    MenuItem mnuHelpRawcodes{"mnuHelpRawcodes", "What's a &RAW code?"};
    MenuItem mnuUseHideButton{"mnuUseHideButton", "&Use the Hide button. Why?"};
    MenuItem mnuDelay{"mnuDelay"}; ///< pops up only
    MenuArray mnuDelayValue{"mnuDelayValue", {"20", "40", "60", "80", "100", "150", "200", "300", "400", "500"}};

    std::array<Button, keyIndex::last + 1> Command1; ///< the keys; that at 54 isn't there
    ToggleLabel ToggleButton1;                       ///< Shift
    ToggleLabel ToggleButton2;                       ///< Ctrl
    ToggleLabel ToggleButton3;                       ///< Alt
    ToggleLabel ToggleButton4;                       ///< Num Lock

    TextBox SyntaxText;
    TextBox RMakeText;
    TextBox RBreakText;
    TextBox RCombinedText;
    TextBox TotalCombinedText;                   ///< the statement
    Property<Colour> TotalCombinedBackColor = 0; ///< its background

    Button Command5;                              ///< appends SyntaxText to the statement
    std::array<Button, 3> Command10;              ///< appends make, break or combined
    std::array<Button, slashCount> Command3;      ///< appends a slash modifier
    Button Command6;                              ///< DLY()
    Button Command7;                              ///< Rem
    Button Command4;                              ///< empties the statement
    std::array<Button, pasteCount> CommandPasteJ; ///< inserts the text of a field
    Button Command14;                             ///< shows the insertion point
    Button Command2;                              ///< hides the window

    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    /// What other units offer; none while they aren't there.
    std::function<void(const std::string& statement)> MirrorStatement; ///< the open macro windows show it too
    std::function<void(int topic)> HelpTopic;                          ///< shows a topic of the help file
    std::function<void(int item)> ShowInfoItem;                        ///< shows an item of the information window

    KeyStrings keys;
    std::int16_t LastAppend = lastAppend::nothing;

    ToggleLabel Capture;       ///< while it is held, real keys are looked up; the view gives them to captureKey
    KeyStrings keysBeforeCtrl; ///< what a captured Ctrl replaced
    Property<int> LitKey = -1; ///< index of the key that was captured last; -1: none
    TextBox RawToRead;         ///< raw codes that the user wants to read
    Label RawKeys;             ///< the keys that they stand for

    std::vector<MenuEntry> menuBar();
    std::vector<MenuEntry> delayMenu() { return {{nullptr, {}, {}, &mnuDelayValue}}; }

    std::vector<Connection> connections;
};

} // namespace tarvex
