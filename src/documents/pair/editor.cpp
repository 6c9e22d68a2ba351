#include "documents/pair/editor.h"

namespace tarvex {

Editor::Editor(Platform& thePlatform, Shared& theShared, Mum& theMum, Menus& theMenus, Operations& theOperations)
    : platform(thePlatform), shared(theShared), mum(theMum), menus(theMenus), operations(theOperations),
      formats(std::make_shared<FormatTable>()), JoystickText(formats), MacroText(formats), TempRichTextBox(formats),
      CompareRTF(formats), joystick{.tab = 1,
                                    .kind = "joystick",
                                    .pane = JoystickText,
                                    .FilePath = pair.JoystickFilePath,
                                    .FileName = pair.JoystickFileName,
                                    .Changed = pair.JoystickChanged,
                                    .Caret = pair.JoystickCaret,
                                    .SelectionLength = pair.JoystickSelectionLength,
                                    .TakeNewLevel = pair.JoystickTakeNewLevel,
                                    .Extension = shared.settings.JoystickExtension,
                                    .Background = shared.settings.BackgroundColour,
                                    .Undo = JoystickUndo,
                                    .Journal = JoystickJournal,
                                    .ApplyColours = operations.ApplyColourHighlighting,
                                    .NoteLatestFile = operations.NoteLatestJoystickFile,
                                    .UpdateRecentMenuList = operations.UpdateRecentJFMenuList},
      macro{.tab = 2,
            .kind = "macro",
            .pane = MacroText,
            .FilePath = pair.MacroFilePath,
            .FileName = pair.MacroFileName,
            .Changed = pair.MacroChanged,
            .Caret = pair.MacroCaret,
            .SelectionLength = pair.MacroSelectionLength,
            .TakeNewLevel = pair.MacroTakeNewLevel,
            .Extension = shared.settings.MacroExtension,
            .Background = shared.settings.MacroBackgroundColour,
            .Undo = MacroUndo,
            .Journal = MacroJournal,
            .ApplyColours = operations.ApplyMacroColourHighlighting,
            .NoteLatestFile = operations.NoteLatestMacroFile,
            .UpdateRecentMenuList = operations.UpdateRecentMFMenuList}
{
    TempRichTextBox.Visible = false;
    CompareRTF.Visible = false;
}

} // namespace tarvex
