#pragma once

#include "documents/pair/editor.h"

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
    explicit FindAndReplace(Editor& theEditor);
    FindAndReplace(const FindAndReplace&) = delete;
    FindAndReplace& operator=(const FindAndReplace&) = delete;

    Editor& editor;
    Form form;
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

    std::int32_t FoundPosition = -1; ///< of the last search; every test of it sees its lower 16 bits only
    std::string SearchText;          ///< bytes, as the panes have them
    std::string ReplaceText;         ///< bytes
    std::int16_t FindOptions = 0;    ///< MatchOption + WordOption
    std::int16_t MatchOption = 0;    ///< 4: case counts
    std::int16_t WordOption = 0;     ///< 2: whole words only
    int FileChosen = 1;              ///< tab of the document that was chosen last

private:
    std::vector<Connection> m_connections;
};

/// Gives the commands of the menu their handlers.
void wireFindAndReplace(FindAndReplace& window);

void Form_Load(FindAndReplace& window);
void Form_Unload(FindAndReplace& window);
/// Another tab of the window was selected, by the user or by the program.
void SSTab1_Click(FindAndReplace& window);

void mnuEditFind_Click(FindAndReplace& window);
void mnuEditReplace_Click(FindAndReplace& window);
void mnuEditGoto_Click(FindAndReplace& window);

} // namespace tarvex
