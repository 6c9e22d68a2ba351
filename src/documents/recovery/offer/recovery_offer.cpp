#include "documents/recovery/offer/recovery_offer.h"

#include "documents/files/file_load.h"
#include "documents/pair/document_status.h"
#include "documents/pair/loading.h"
#include "documents/pair/noted_caret.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/journal/recovery_names.h"
#include "documents/recovery/offer/recovery_find.h"
#include "platform/dos_path.h"
#include "platform/free_path.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::string_view tag = "ED_offerRecovery";

// ---- bringing back --------------------------------------------------------------------------------------------------

Side& sideOf(Editor& editor, const LeftJournal& found)
{
    return found.journal.start.tab == editor.joystick.tab ? editor.joystick : editor.macro;
}

/// A document that had no file yet goes on as the empty one that is there.
bool wasNew(const LeftJournal& found) { return found.fileIsSame && !found.journal.start.file; }

/// Where a text goes. A new name begins with "untitled", so that Save asks for one.
std::string pathFor(Editor& editor, const LeftJournal& found)
{
    const JournalStart& start = found.journal.start;
    const std::string name = fileNameFor(start.name);
    const bool untitled = name.starts_with("untitled");
    if (found.fileIsSame && start.file) return start.path;
    const std::string& present = sideOf(editor, found).FilePath;
    if (wasNew(found) && lowerUtf8(start.path) == lowerUtf8(present)) return present;
    return freePath(editor.platform.files, directoryOf(present), (untitled ? "" : "untitled-") + name);
}

/// The change from the saved text to the unsaved one, as if the user had made it.
void putUnsavedText(Editor& editor, Side& side, const std::string& text)
{
    const UserEdit counts(editor.shared);
    const TextEdit edit = differenceOf(side.pane.Text(), text);
    side.pane.setSelStart(static_cast<std::int64_t>(edit.position));
    side.pane.setSelLength(static_cast<std::int64_t>(edit.removed));
    if (edit != TextEdit{edit.position, 0, {}}) side.pane.setSelText(edit.inserted);
    side.Changed = changed::modified;
    UpdateSavedIcon(editor);
    const std::int64_t caret = side.pane.SelStart();
    if (editor.shared.settings.ApplyColoursOnFileOpen == 1) side.ApplyColours();
    side.pane.setSelStart(caret);
    noteCaret(editor, side);
}

void showBase(Editor& editor, Side& side, const std::string& path, const std::string& base)
{
    if (!base.empty()) return showFile(editor, side, path, fileNameOf(path), base);
    const Loading loading(editor.shared);
    showText(editor, side, path, fileNameOf(path), base); // no macros to list
}

/// The document's name as the user knows it.
std::string shownName(const LeftJournal& found) { return fileNameFor(found.journal.start.name); }

/// The journal stays, for another time.
void reportWrongText(Editor& editor, const LeftJournal& found)
{
    editor.platform.dialogues.show(
        {.title = "That's not quite it ...",
         .text = "I couldn't bring " + shownName(found) +
                 " back as you left it, so don't trust what you see there. My notes are still where they were: I'll "
                 "ask you again next time, and if you press No then, you'll find them as plain text in\n\n    " +
                 journalDirectory(editor),
         .icon = BoxIcon::Exclamation});
}

/// The journal of the text that has come back takes the place of the one that was left, if all of it came back.
void goOnFrom(Editor& editor, const LeftJournal& found, const JournalledText& text)
{
    text.Journal.Held = false;
    if (text.pane.Text() == found.journal.text) return beginJournal(editor, text, found.number);
    writeDownChanges(editor, text);
    reportWrongText(editor, found);
}

/// The path that the text has now; the journal goes once the one of the document that it has become is safe.
std::string bringBack(Editor& editor, const LeftJournal& found)
{
    const Steps step(editor.shared.errors, tag);
    const JournalStart& start = found.journal.start;
    Side& side = sideOf(editor, found);
    const std::string path = pathFor(editor, found);
    showBase(editor, side, path, start.base);
    noteTextSettled(editor, side, found.fileIsSame ? start.file : std::nullopt);
    side.Journal.Held = true; // nothing takes the journal's place before all of it is there
    step([&] { putUnsavedText(editor, side, found.journal.text); });
    goOnFrom(editor, found, side);
    return path;
}

/// The document that was open beside one that is brought back, and had nothing unsaved.
void openPartner(Editor& editor, const LeftJournal& found, std::vector<std::string>& open)
{
    const std::string& path = found.journal.start.partnerPath;
    if (path.empty() || !editor.platform.files.fileExists(path)) return;
    if (loadFile(editor, editor.other(sideOf(editor, found)), path, fileNameOf(path))) open.push_back(path);
}

// ---- asking ---------------------------------------------------------------------------------------------------------

/// For each pane the newest; a pane holds no more than one.
struct Offer {
    std::vector<LeftJournal> wanted; ///< joystick first
    std::vector<LeftJournal> older;
    std::string untitled = {}; ///< the new name of a text beside the pair
};

Offer sortedOut(std::vector<LeftJournal> journals)
{
    Offer offer;
    for (LeftJournal& found : journals) {
        const auto samePane = [&](const LeftJournal& other) {
            return other.journal.start.tab == found.journal.start.tab;
        };
        const bool taken = std::any_of(offer.wanted.begin(), offer.wanted.end(), samePane);
        (taken ? offer.older : offer.wanted).push_back(std::move(found));
    }
    std::sort(offer.wanted.begin(), offer.wanted.end(),
              [](const LeftJournal& a, const LeftJournal& b) { return a.journal.start.tab < b.journal.start.tab; });
    return offer;
}

/// The sentence about a text whose file was changed by another program.
std::string newNameInBox(Editor& editor, const Offer& offer, const LeftJournal& found)
{
    if (found.fileIsSame) return {};
    const bool besidePair = found.journal.start.tab == tabBesidePair;
    return "\n\n" + shownName(found) + " isn't what it was then, so I'd leave the file alone and call yours " +
           (besidePair ? offer.untitled : fileNameOf(pathFor(editor, found))) + ".";
}

/// A text that ends where its journal can't be read any further.
std::string damageInBox(const Editor& editor, const LeftJournal& found)
{
    if (!found.journal.damaged) return {};
    return "\n\nSome of my notes on " + shownName(found) +
           " have gone bad, so you'll get it as it was before those. I'll keep the lot as " +
           fileNameOf(damagedPath(editor, found.number)) + ".";
}

std::string boxText(Editor& editor, const Offer& offer)
{
    std::string text = "Somebody pulled the plug on me last time, before everything was saved. Don't panic: I'd been "
                       "taking notes all along, and here's what I've got:\n";
    for (const LeftJournal& found : offer.wanted) text += "\n    " + shownName(found);
    for (const LeftJournal& found : offer.wanted) text += newNameInBox(editor, offer, found);
    for (const LeftJournal& found : offer.wanted) text += damageInBox(editor, found);
    text += "\n\nShall I bring it back? It will be just as you left it: not saved yet, and one Undo away from what was "
            "saved. If you press No it goes as plain text into\n\n    " +
            journalDirectory(editor) + "\n\nand I won't bother you with it again.";
    if (!offer.older.empty())
        text += " That's where I'll put some older notes in any case, as there's no room for them here.";
    return text;
}

/// The journal stays when its text can't be written.
void putAside(Editor& editor, const LeftJournal& found)
{
    const Steps step(editor.shared.errors, tag);
    const std::string path = freePath(editor.platform.files, journalDirectory(editor) + "\\", shownName(found));
    step([&] {
        editor.platform.files.writePrivate(path, found.journal.text);
        removeJournal(editor, found.number);
    });
}

std::vector<std::string> bringAllBack(Editor& editor, const Offer& offer)
{
    const Steps step(editor.shared.errors, tag);
    std::vector<std::string> open;
    // First, so that the new journal names it from its first record on.
    if (offer.wanted.size() == 1) step([&] { openPartner(editor, offer.wanted.front(), open); });
    for (const LeftJournal& found : offer.wanted) {
        step([&] {
            open.push_back(bringBack(editor, found));
            open.push_back(found.journal.start.path);
        });
    }
    step([&] { editor.TabStrip1.Select(sideOf(editor, offer.wanted.front()).tab); });
    Operations& operations = editor.operations;
    step([&] {
        editor.shared.settings.CheckIdentifyOK == 1 ? operations.IdentifyMacrosIfAny() : operations.ClearMacroTicks();
    });
    return open;
}

/// They have been renamed, so this is said once.
void reportUnreadable(Editor& editor, const std::vector<std::string>& paths)
{
    if (paths.empty()) return;
    std::string text = "These are notes that I took of something that wasn't saved, and they've gone bad, so I can't "
                       "bring it back. There may still be something of yours in there, so I've kept them:\n";
    for (const std::string& path : paths) text += "\n    " + path;
    editor.platform.dialogues.show({.title = "I can't read my own writing ...",
                                    .text = text + "\n\nI won't bother you with them again.",
                                    .icon = BoxIcon::Exclamation});
}

/// Texts without a place, and all of them after a No, are put aside. True: the user wants the texts back.
bool areWanted(Editor& editor, const Offer& offer)
{
    const Answer answer = editor.platform.dialogues.show({.title = "Phew ... nothing's lost!",
                                                          .text = boxText(editor, offer),
                                                          .icon = BoxIcon::Question,
                                                          .buttons = BoxButtons::YesNo});
    for (const LeftJournal& found : offer.older) putAside(editor, found);
    if (answer == Answer::Yes) return true;
    for (const LeftJournal& found : offer.wanted) putAside(editor, found);
    return false;
}

std::vector<std::string> offerTexts(Editor& editor, std::vector<LeftJournal> journals)
{
    if (journals.empty()) return {};
    const Offer offer = sortedOut(std::move(journals));
    return areWanted(editor, offer) ? bringAllBack(editor, offer) : std::vector<std::string>();
}

} // namespace

std::vector<std::string> offerRecovery(Editor& editor)
{
    FoundJournals found = findJournals(editor, {editor.joystick.tab, editor.macro.tab});
    std::vector<std::string> open = offerTexts(editor, std::move(found.withText));
    reportUnreadable(editor, found.unreadable);
    return open;
}

void offerRecovery(Editor& editor, const JournalledText& text, const std::string& untitled, const BringBack& bringBack)
{
    const Steps step(editor.shared.errors, tag);
    Offer offer = sortedOut(findJournals(editor, {text.tab}).withText);
    if (offer.wanted.empty()) return;
    offer.untitled = untitled;
    if (!areWanted(editor, offer)) return;
    const LeftJournal& found = offer.wanted.front();
    text.Journal.Held = true; // nothing takes the journal's place before all of it is there
    step([&] { bringBack(found.journal, found.fileIsSame); });
    goOnFrom(editor, found, text);
}

AsideCopy putAside(Editor& editor, const Side& side)
{
    const Steps step(editor.shared.errors, tag);
    AsideCopy copy;
    step([&] {
        const std::string directory = journalDirectory(editor) + "\\";
        const std::string path = freePath(editor.platform.files, directory, fileNameFor(side.FileName));
        editor.platform.files.writePrivate(path, side.pane.Text());
        copy.path = path;
    });
    if (copy.path.empty()) copy.reason = editor.shared.errors.ErrorDescription;
    return copy;
}

bool isAmong(const std::vector<std::string>& paths, const std::string& path)
{
    return std::any_of(paths.begin(), paths.end(),
                       [&](const std::string& one) { return lowerUtf8(one) == lowerUtf8(path); });
}

} // namespace tarvex
