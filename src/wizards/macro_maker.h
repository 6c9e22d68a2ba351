#pragma once

#include "documents/pair/editor.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tarvex {

/// What the macro wizard and Speedy have in common: a macro is put together from its name and keys and goes into the
/// macro pane, under headings from a list.
struct MacroMaker {
    explicit MacroMaker(Editor& theEditor);
    MacroMaker(const MacroMaker&) = delete;
    MacroMaker& operator=(const MacroMaker&) = delete;

    Editor& editor;
    std::array<TextBox, 2> Text1;   ///< 0: the macro's name, 1: its keys
    Label Label1;                   ///< the macro as it will be
    ListBox List1;                  ///< names of headings
    std::array<Button, 9> Command1; ///< the actions

private:
    std::vector<Connection> m_connections;
};

/// Puts everything as it is when a window comes up.
void loadMacroMaker(MacroMaker& maker);
void Command1_Click(MacroMaker& maker, std::size_t Index);
void Text1_Change(MacroMaker& maker, std::size_t Index);
/// Writes the heading that is picked in the list into the macro pane.
void List1_DblClick(MacroMaker& maker);

} // namespace tarvex
