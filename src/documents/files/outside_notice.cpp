#include "documents/files/outside_notice.h"

#include "documents/files/file_load.h"
#include "documents/files/reload.h"
#include "documents/pair/document_status.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "shell/extras.h"
#include "shell/session_extras.h"

namespace tarvex {

namespace {

using Kind = FileNews::Kind;

std::string textOf(const Side& side, Kind kind)
{
    const std::string& name = side.FileName;
    switch (kind) {
    case Kind::Gone:
        return name + " is gone: another program has deleted or renamed it. What you see here is still all there.";
    case Kind::Unreadable:
        return "I can't read " + name + " any more. What you see here is still all there.";
    case Kind::TooLarge:
        return "Another program has made " + name + " larger than 64 MB, and I don't open files of that size.";
    default:
        return side.Changed == changed::modified ? "Another program has changed " + name +
                                                       ", and so have you. After a reload, Undo brings yours back."
                                                 : "Another program has changed " + name + ".";
    }
}

void show(OutsideNotice& notice, Kind kind)
{
    notice.Text.Caption = textOf(notice.side, kind);
    notice.Reload.Visible = kind == Kind::Changed;
    notice.Differences.Visible = kind == Kind::Changed;
    notice.Visible = true;
}

bool reloadsUnasked(const OutsideNotices& notices, const OutsideNotice& notice, Kind kind)
{
    return kind == Kind::Changed && notice.side.Changed != changed::modified &&
           notices.editor.shared.extras.on(extraKey::reloadUnmodified);
}

void reload(OutsideNotices& notices, OutsideNotice& notice)
{
    Side& side = notice.side;
    const auto bytes = readForOpening(notices.editor, side.FilePath, side.FileName);
    if (!bytes) return;
    takeFileText(notices.editor, side, *bytes, notices.colour);
    notice.Visible = false;
    notice.KeptAgainst.reset();
}

void look(OutsideNotices& notices, OutsideNotice& notice)
{
    const FileNews news = fileNews(notices.editor, notice.side);
    if (news.kind == Kind::None) notice.KeptAgainst.reset();
    if (news.kind == Kind::None || notice.KeptAgainst == news) {
        notice.Visible = false;
        return;
    }
    if (reloadsUnasked(notices, notice, news.kind)) return reload(notices, notice);
    show(notice, news.kind);
}

/// From now on the text stands in no file: it counts as modified, whatever is undone, and outlives a crash.
void keepAsModified(Editor& editor, Side& side)
{
    side.Changed = changed::modified;
    side.Journal.Base = {};
    beginJournal(editor, side, side.Journal.Number);
    UpdateSavedIcon(editor);
}

void keep(OutsideNotices& notices, OutsideNotice& notice)
{
    const FileNews news = fileNews(notices.editor, notice.side);
    notice.Visible = false;
    if (news.kind == Kind::None) return;
    notice.KeptAgainst = news;
    keepAsModified(notices.editor, notice.side);
    notices.editor.status(notice.side.FileName + " stays as it is here. It counts as modified until you save it.");
}

/// The document is another one, or its file was just read or written.
void settle(OutsideNotices& notices, OutsideNotice& notice)
{
    notice.Visible = false;
    notice.KeptAgainst.reset();
    if (notices.watch != nullptr)
        notices.watch->watch({notices.editor.joystick.FilePath, notices.editor.macro.FilePath});
}

template <typename Work>
std::function<void()> step(OutsideNotices& notices, OutsideNotice& notice, std::string_view tag, Work work)
{
    return [&notices, &notice, tag, work] {
        const Steps steps(notices.editor.shared.errors, tag);
        steps([&] { work(notices, notice); });
    };
}

void showDifferences(OutsideNotices& notices, OutsideNotice& notice)
{
    Editor& editor = notices.editor;
    if (editor.selected().tab != notice.side.tab) editor.TabStrip1.Select(notice.side.tab);
    editor.platform.dialogues.showModal("Differences");
    lookForOutsideChanges(notices);
}

void wire(OutsideNotices& notices, OutsideNotice& notice)
{
    Editor& editor = notices.editor;
    notice.Reload.Caption = "Reload";
    notice.Differences.Caption = "Show the differences ...";
    notice.Keep.Caption = "Keep mine";
    notice.Reload.ToolTipText =
        "Shows what the file holds now; Undo brings the old text back (Ctrl+Shift+O leads here)";
    notice.Differences.ToolTipText = "Shows both texts side by side";
    notice.Keep.ToolTipText = "Leaves the text as it is here; I ask before I replace the other one";
    notice.Reload.handler = step(notices, notice, "OUTSIDE Reload_Click", reload);
    notice.Differences.handler = step(notices, notice, "OUTSIDE Differences_Click", showDifferences);
    notice.Keep.handler = step(notices, notice, "OUTSIDE Keep_Click", keep);

    const bool isMacro = notice.side.tab == editor.macro.tab;
    Operations& operations = editor.operations;
    for (Operation<const std::string&>* done :
         {isMacro ? &operations.NoteLatestMacroFile : &operations.NoteLatestJoystickFile,
          isMacro ? &operations.UpdateRecentMFMenuList : &operations.UpdateRecentJFMenuList}) {
        *done = [&notices, &notice, before = *done](const std::string& path) {
            before(path);
            settle(notices, notice);
        };
    }
    // A new document has a name, and no file that was opened or saved.
    notices.connections.push_back(editor.TabStrip1.Tabs(notice.side.tab).Caption.changed.connect([&notices, &notice] {
        settle(notices, notice);
    }));
}

} // namespace

void wireOutsideNotices(OutsideNotices& notices)
{
    wire(notices, notices.joystick);
    wire(notices, notices.macro);
}

void useFileWatch(OutsideNotices& notices, FileWatch& watch)
{
    notices.watch = &watch;
    notices.connections.push_back(watch.changed.connect([&notices] { lookForOutsideChanges(notices); }));
    watch.watch({notices.editor.joystick.FilePath, notices.editor.macro.FilePath});
}

void lookForOutsideChanges(OutsideNotices& notices)
{
    const Steps step(notices.editor.shared.errors, "OUTSIDE lookForOutsideChanges");
    if (notices.editor.shared.IsLoading == 1) return;
    for (OutsideNotice* notice : {&notices.joystick, &notices.macro}) step([&] { look(notices, *notice); });
}

} // namespace tarvex
