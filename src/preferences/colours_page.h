#pragma once

#include "documents/pair/editor.h"

#include <string>

namespace tarvex {

/// The page "Colours/Fonts": the colour scheme and the font of the panes, shown on two samples. A colour or font that
/// the user chooses is in the settings at once.
struct ColoursPage {
    explicit ColoursPage(Editor& theEditor);
    ColoursPage(const ColoursPage&) = delete;
    ColoursPage& operator=(const ColoursPage&) = delete;

    Editor& editor;
    ListBox List1;      ///< what has a colour
    CheckBox CheckBox1; ///< colour a file when it is opened
    Button Command18;   ///< changes the font
    Button Command17;   ///< a tip on fonts
    CheckBox CheckFixedPitch;
    SSTab SSTab2{"&Joystick file", "&Macro file"};
    Pane ExampleJoystickText;
    Pane ExampleMacroText;
    bool coloursChanged = false; ///< since the page was loaded
};

void loadColours(ColoursPage& page);
/// Fills both samples and paints them.
void AddColourTabStuff(ColoursPage& page);
void ColourJoy(ColoursPage& page);
void ColourMac(ColoursPage& page);
/// Gives an item of List1 a colour: its setting takes it, and only that class of the sample is painted again.
void ApplyColour(ColoursPage& page, int item, Colour colour);
void SaveColourScheme(Editor& editor);
void DoTheFonts(ColoursPage& page);

/// An item was chosen: shows its sample and asks for its colour.
void PREFS_List1_Click(ColoursPage& page);

} // namespace tarvex
