#pragma once

#include "documents/pair/editor.h"
#include "platform/controls.h"

#include <array>
#include <cstdint>
#include <string>

namespace tarvex {

/// Four texts: what one game is.
struct Game {
    SettingText name;
    SettingText command; ///< starts it, with any switches
    SettingText workingDirectory;
    SettingText joystickFile; ///< to download before it starts
};

/// The dialogue that asks for the details of a new game.
struct EnterGameName {
    EnterGameName(Editor& theEditor, Game& theCurrent);
    EnterGameName(const EnterGameName&) = delete;
    EnterGameName& operator=(const EnterGameName&) = delete;

    Editor& editor;
    Game& current;              ///< what OK fills in
    std::int16_t okPressed = 0; ///< 1: it was closed by OK

    tarvex::Form Form;
    TextBox Text1;                  ///< name
    TextBox Text2;                  ///< path of the game
    TextBox Text3;                  ///< working directory
    TextBox Text4;                  ///< joystick file
    std::array<Button, 2> Command1; ///< look for the game, for the joystick file
    Button Command2;                ///< selects the working directory
    Button Command3;                ///< OK
    Button Command4;                ///< Cancel
    Button Command5;                ///< help on the game's path
    Button Command6;                ///< help on the working directory

private:
    Connection m_textChanged;
};

/// The dialogue is about to be shown: a sample stands in each box.
void GAME_Form_Load(EnterGameName& form);
/// 0 looks for the game, 1 for the joystick file.
void GAME_Command1_Click(EnterGameName& form, int index);
void GAME_Command2_Click(EnterGameName& form);
void GAME_Command3_Click(EnterGameName& form);
void GAME_Command4_Click(EnterGameName& form);
void GAME_Command5_Click(EnterGameName& form);
void GAME_Command6_Click(EnterGameName& form);
/// A game without a name can't be taken.
void GAME_Text1_Change(EnterGameName& form);

} // namespace tarvex
