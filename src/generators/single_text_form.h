#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// The dialogue that asks for the words of a Rem statement.
struct SingleTextForm {
    explicit SingleTextForm(Shared& theShared);
    SingleTextForm(const SingleTextForm&) = delete;
    SingleTextForm& operator=(const SingleTextForm&) = delete;

    Shared& shared;
    tarvex::Form Form;
    Pane RichTextBox1;   ///< the words; a line, since a Rem statement ends where its line does
    CheckBox CheckAddCR; ///< a line end after the statement
    Button Command1;     ///< OK
    Button Command2;     ///< cancels

    bool tidying = false; ///< the box's text is being changed by its own Change event

private:
    Connection m_shown;
};

/// The dialogue comes up.
void Form_Load(SingleTextForm& window);
/// One colour for the whole text, line ends become blanks, and the caret goes to the end.
void RichTextBox1_Change(SingleTextForm& window);
/// A blank and the words go into HeadingText, the tick into the settings.
void Command1_Click(SingleTextForm& window);
/// Writes AddCRtoREM.
void SaveCRthang(SingleTextForm& window);

} // namespace tarvex
