#pragma once

#include "documents/pair/editor.h"
#include "shell/tool_form.h"

namespace tarvex {

/// The tabs of the window.
namespace findTab {
constexpr int find = 1;
constexpr int replace = 2;
constexpr int line = 3;
} // namespace findTab

/// The window that finds and replaces text in the panes and goes to a line. It stays open while the user works in the
/// panes. What was written and chosen in it is there again when it is opened the next time.
struct FindAndReplace {
    explicit FindAndReplace(Editor& theEditor)
        : editor(theEditor), form("FindAndReplace", &theEditor.shared.FindWindowOpen)
    {
    }
    FindAndReplace(const FindAndReplace&) = delete;
    FindAndReplace& operator=(const FindAndReplace&) = delete;

    Editor& editor;
    ToolForm form;
    TabStrip SSTab1{3};

    ComboBox ComboTextFind; ///< with the history of what was sought
    OptionButton OptionJoystickF;
    OptionButton OptionMacroF;
    CheckBox MatchCaseF;
    CheckBox WholeWordF;
    Button Command1; ///< find first or next
    Button Command2; ///< close
    CheckBox Check6; ///< keep on top

    ComboBox ComboTextReplaceFind;
    ComboBox ComboTextReplaceWith;
    OptionButton OptionJoystickR;
    OptionButton OptionMacroR;
    CheckBox MatchCaseR;
    CheckBox WholeWordR;
    Button Command3; ///< find first or next
    Button Command5; ///< replace what was found
    Button Command6; ///< replace all
    Button Command4; ///< close
    CheckBox Check7;

    TextBox LineToFind;
    Button Command7; ///< go to the line
    Button Command8; ///< close
    CheckBox Check8;

    Button Command9;  ///< close, for a view that has a place for it outside of the tabs
    Button Command10; ///< help

    std::int32_t FoundPosition = -1;     ///< of the last search; every test of it sees its lower 16 bits only
    std::string SearchText;              ///< bytes, as the panes have them
    std::string ReplaceText;             ///< bytes
    std::int16_t FindOptions = 0;        ///< MatchOption + WordOption
    std::int16_t MatchOption = 0;        ///< 4: case counts
    std::int16_t WordOption = 0;         ///< 2: whole words only
    bool MarksElsewhere = false;         ///< the find bar is open: the marks in the panes are of its text
    int FileChosen = 1;                  ///< tab of the document that was chosen last
    std::vector<Connection> connections; ///< of its own controls
};

/// What the find tab and the replace tab both have.
struct FindPage {
    ComboBox& text; ///< to find
    OptionButton& joystick;
    OptionButton& macro;
    CheckBox& matchCase;
    CheckBox& wholeWord;
    Button& find;
};
FindPage findPage(FindAndReplace& window);
FindPage replacePage(FindAndReplace& window);

/// Captions of the search button; the caption decides whether a search begins at the top or behind the last match.
inline constexpr char findFirst[] = "Find first";
inline constexpr char findNext[] = "Find next";

} // namespace tarvex
