#include "language/commands/update_macros.h"

#include "documents/pair/loading.h"
#include "language/commands/macro_file.h"
#include "language/commands/macro_lists.h"

namespace tarvex {

namespace {

void selectMacroTab(Editor& editor)
{
    if (editor.TabStrip1.SelectedItem != editor.macro.tab) editor.TabStrip1.Select(editor.macro.tab);
}

/// False: the list would not show what stands in the pane, and the user was informed.
bool isSaved(Editor& editor)
{
    const std::string& name = editor.macro.FileName;
    if (editor.macro.Changed != changed::modified) return true;
    const Answer answer = editor.platform.dialogues.show(
        {.title = " Save " + name + " now?",
         .text = name +
                 " has changed and isn't saved. You must save it if you want to update your macros list. Shall I "
                 "go ahead and save it?",
         .icon = BoxIcon::Question,
         .buttons = BoxButtons::YesNo});
    if (answer == Answer::Yes) {
        selectMacroTab(editor);
        editor.menus.mnuFileSave.Click();
        if (editor.macro.Changed != changed::modified) return true;
    }
    editor.platform.dialogues.show(
        {.title = "File not saved",
         .text = editor.macro.FileName + " wasn't saved, so I won't continue to update your macros list.",
         .icon = BoxIcon::Exclamation});
    return false;
}

void analyse(Editor& editor, const Steps& step)
{
    editor.macros.MacroListDirty = 1;
    const Loading loading(editor.shared);
    if (!editor.menus.mnuViewMacros.Checked) step([&] { editor.menus.mnuViewMacros.Click(); });
    ClearAllForNewMacroFile(editor);
    editor.mum.StatusBar.Panels(panel::macroFile).Text = editor.macro.FileName;
    editor.macros.NotAMacroLine = 0;
    GetEachLineFromMacroFile(editor);
    ExtractMacrosAndTitles(editor);
}

} // namespace

void mnuEditUpdateMacros_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditUpdateMacros_Click");
    const std::size_t equals = editor.MacroText.Text().find('=');
    if (equals == std::string::npos || equals == 0) return;
    step([&] { selectMacroTab(editor); });
    bool saved = false;
    step([&] { saved = isSaved(editor); });
    if (saved) analyse(editor, step);
}

} // namespace tarvex
