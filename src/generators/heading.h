#pragma once

#include "documents/pair/editor.h"

#include <array>

namespace tarvex {

/// The dialogue that asks for a heading, one of a list or the user's own.
struct Heading {
    explicit Heading(Shared& theShared);
    Heading(const Heading&) = delete;
    Heading& operator=(const Heading&) = delete;

    Shared& shared;
    tarvex::Form Form;
    ComboBox Combo1;
    std::array<Button, 2> Command1; ///< 0: OK, 1: Cancel

private:
    Connection m_shown;
};

/// The dialogue comes up.
void Form_Load(Heading& window);
/// What was chosen goes into HeadingText; index 1 leaves nothing there.
void Command1_Click(Heading& window, int Index);

/// Fills a list with the names of headings.
void AddHeadingsToList(Property<std::vector<std::string>>& items);

} // namespace tarvex
