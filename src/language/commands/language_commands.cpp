#include "language/commands/language_commands.h"

#include "language/commands/align_slashes.h"
#include "language/commands/colour_highlighting.h"
#include "language/commands/find_macro.h"
#include "language/commands/identify_macros.h"
#include "language/commands/layout_refresh.h"
#include "language/commands/macro_file.h"
#include "language/commands/macro_filter.h"
#include "language/commands/macro_list_events.h"
#include "language/commands/macro_lists.h"
#include "language/commands/rem_block.h"
#include "language/commands/remove_colour.h"
#include "language/commands/slash_buttons.h"
#include "language/commands/update_macros.h"
#include "shell/handler.h"

namespace tarvex {

namespace {

void wireColours(Editor& editor)
{
    Menus& menus = editor.menus;
    editor.operations.ApplyColourHighlighting = on(editor, colourOpenedJoystickFile);
    editor.operations.ApplyMacroColourHighlighting = on(editor, colourOpenedMacroFile);
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

void wireMacros(Editor& editor)
{
    Operations& operations = editor.operations;
    operations.ClearAllForNewMacroFile = on(editor, ClearAllForNewMacroFile);
    operations.GetEachLineFromMacroFile = on(editor, GetEachLineFromMacroFile);
    operations.ExtractMacrosAndTitles = on(editor, ExtractMacrosAndTitles);
    operations.ClearMacroTicks = on(editor, ClearMacroTicks);
    operations.IdentifyMacrosUsed = on(editor, IdentifyMacrosUsed);
    operations.IdentifyMacrosIfAny = on(editor, IdentifyMacrosIfAny);

    Menus& menus = editor.menus;
    menus.mnuEditUpdateMacros.handler = on(editor, mnuEditUpdateMacros_Click);
    for (MenuItem* item : {&menus.mnuViewIdentify, &menus.mnuRHMIdentify, &menus.mnuRHListIdentify})
        item->handler = on(editor, IdentifyMacrosUsed);
    menus.mnuViewFilterMacros.handler = on(editor, mnuViewFilterMacros_Click);
    menus.mnuFindInJF.handler = on(editor, FindMacroInJF);
    menus.mnuRHListInsert.handler = on(editor, mnuRHListInsert_Click);
    editor.FrameMacros.Combo1.Click = on(editor, Combo1_Click);
    loadSlashButtons(editor);
}

void wireLayout(Editor& editor)
{
    Menus& menus = editor.menus;
    menus.mnuViewReformat.handler = on(editor, mnuViewReformat_Click);
    menus.mnuViewrefreshIndent.handler = on(editor, mnuViewrefreshIndent_Click);
    menus.mnuViewAlignSlashes.handler = on(editor, AlignSlashes);
    menus.mnuEditREMblock.handler = on(editor, REMblock);
    menus.mnuEditREMunblock.handler = on(editor, REMunblock);
}

} // namespace

void wireLanguage(Editor& editor)
{
    wireColours(editor);
    wireMacros(editor);
    wireLayout(editor);
}

} // namespace tarvex
