#include "documents/files/auto_save.h"

#include "documents/files/file_save.h"
#include "documents/files/outside_change.h"
#include "documents/files/text_files.h"

namespace tarvex {

namespace {

void autoSave(Editor& editor, Side& side)
{
    if (side.Changed != changed::modified) return;
    const Steps step(editor.shared.errors, "ED_AutoSaveFile");
    const OutsideChange change = outsideChange(editor, side);
    if (change == OutsideChange::Changed) {
        editor.status(side.FileName + " was changed by another program since I opened it, so I haven't saved it " +
                      "automatically. Save it yourself, and I'll ask you what to do.");
        return;
    }
    const bool written = step([&] {
        if (change == OutsideChange::Unknown)
            keepOutsideVersion(editor, side.FilePath); // an untitled text of another day
        writePlain(editor, side);
    });
    if (!written) return editor.status(side.FileName + " couldn't be saved automatically: " + step.whyNot());
    const bool backedUp = step([&] { writeBackup(editor, side); });
    noteSaved(editor, side);
    if (!backedUp) editor.status(side.FileName + " was saved, but its backup wasn't: " + step.whyNot());
}

} // namespace

void Timer1_Timer(Editor& editor)
{
    ++editor.AutoSaveMinutes;
    if (editor.AutoSaveMinutes < editor.shared.settings.AutoSaveTime) return;
    editor.AutoSaveMinutes = 0;
    AutoSaveFile(editor);
}

void AutoSaveFile(Editor& editor)
{
    autoSave(editor, editor.joystick);
    autoSave(editor, editor.macro);
}

} // namespace tarvex
