#include "language/language_commands.h"

#include "language/colour_highlighting.h"
#include "language/macro_commands.h"
#include "language/remove_colour.h"

namespace tarvex {

namespace {

/// A command of the editor as a handler.
template <typename Work> std::function<void()> on(Editor& editor, Work work)
{
    return [&editor, work] { work(editor); };
}

void wireColours(Editor& editor)
{
    Menus& menus = editor.menus;
    editor.operations.ApplyColourHighlighting = on(editor, ApplyColourHighlighting);
    editor.operations.ApplyMacroColourHighlighting = on(editor, ApplyMacroColourHighlighting);
    menus.mnuViewColourJoystick.handler = on(editor, ApplyColourHighlighting);
    menus.mnuViewColourMacro.handler = on(editor, ApplyMacroColourHighlighting);
    menus.mnuViewApplyColourBothFiles.handler = on(editor, mnuViewApplyColourBothFiles_Click);
    menus.mnuRemoveColourJoystick.handler = on(editor, mnuRemoveColourJoystick_Click);
    menus.mnuRemoveColourMacro.handler = on(editor, mnuRemoveColourMacro_Click);
    menus.mnuRemoveColourSelectedText.handler = on(editor, mnuRemoveColourSelectedText_Click);
    menus.mnuRHMColour.handler = on(editor, mnuRHMColour_Click);
    menus.mnuRHMColoursRemove.handler = on(editor, mnuRHMColoursRemove_Click);
    menus.mnuRHMColoursSelection.handler = on(editor, mnuRemoveColourSelectedText_Click);
}

} // namespace

void wireLanguage(Editor& editor)
{
    wireColours(editor);
    wireMacros(editor);
}

} // namespace tarvex
