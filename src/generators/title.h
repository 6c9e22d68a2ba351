#pragma once

#include "documents/pair/editor.h"

#include <cstdint>
#include <string>

namespace tarvex {

/// The dialogue that writes a boxed title block at the start of the selected file.
struct Title {
    explicit Title(Editor& theEditor);
    Title(const Title&) = delete;
    Title& operator=(const Title&) = delete;

    Editor& editor;
    tarvex::Form Form;
    TextBox Text1;     ///< the file's name
    TextBox Text2;     ///< the game; stays for the next title
    TextBox Text3;     ///< the user's name
    TextBox Text4;     ///< today's date
    TextBox Text5;     ///< the controllers
    Pane RichTextBox1; ///< lines of a comment; stays for the next title
    Button Command1;   ///< writes the title
    Button Command2;   ///< cancels

private:
    Connection m_shown;
};

/// The dialogue comes up: fills in what the program knows.
void Form_Activate(Title& window);
void Command1_Click(Title& window);

/// The controllers go into Text5.
void GetHardwareNames(Title& window);
/// Selects a line of the comment, from 0, with its line end if it has one; returns it as bytes. `lineLength` takes the
/// length of the selection.
std::string GetCommentLine(Title& window, std::int64_t lineIndex, std::int64_t& lineLength);
/// The user's name goes into Text3.
void GetPersonsName(Title& window);
void SaveThePersonsName(Title& window);

} // namespace tarvex
