#include "documents/pair/editor.h"

namespace tarvex {

Editor::Editor(Platform& thePlatform, Shared& theShared, Mum& theMum, Menus& theMenus, Operations& theOperations)
    : platform(thePlatform), shared(theShared), mum(theMum), menus(theMenus), operations(theOperations),
      formats(std::make_shared<FormatTable>()), joystick{.tab = 1,
                                                         .kind = "joystick",
                                                         .pane = Pane(formats),
                                                         .Extension = shared.settings.JoystickExtension,
                                                         .Background = shared.settings.BackgroundColour,
                                                         .ApplyColours = operations.ApplyColourHighlighting,
                                                         .NoteLatestFile = operations.NoteLatestJoystickFile,
                                                         .UpdateRecentMenuList = operations.UpdateRecentJFMenuList},
      macro{.tab = 2,
            .kind = "macro",
            .pane = Pane(formats),
            .Extension = shared.settings.MacroExtension,
            .Background = shared.settings.MacroBackgroundColour,
            .ApplyColours = operations.ApplyMacroColourHighlighting,
            .NoteLatestFile = operations.NoteLatestMacroFile,
            .UpdateRecentMenuList = operations.UpdateRecentMFMenuList},
      JoystickText(joystick.pane), MacroText(macro.pane), TempRichTextBox(formats), CompareRTF(formats)
{
    TempRichTextBox.Visible = false;
    CompareRTF.Visible = false;
}

} // namespace tarvex
