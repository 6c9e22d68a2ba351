#include "lists/games.h"

#include "documents/files/file_save.h"
#include "documents/pair/document_status.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/offer/recovery_offer.h"
#include "documents/window/preferences_page.h"

namespace tarvex {

namespace {

std::vector<Side*> modifiedSides(Editor& editor)
{
    std::vector<Side*> sides;
    for (Side* side : {&editor.joystick, &editor.macro}) {
        if (side->Changed == changed::modified) sides.push_back(side);
    }
    return sides;
}

void markModified(Editor& editor, const std::vector<Side*>& sides)
{
    for (Side* side : sides) side->Changed = changed::modified;
    UpdateSavedIcon(editor);
}

/// Once the game runs, there is no further question about the text. False: there is no copy, and the user stays.
bool keepCopy(Editor& editor, const Side& side)
{
    const AsideCopy copy = putAside(editor, side);
    const std::string unsaved = side.FileName + " isn't saved, and once the game is running I won't be here to ask. ";
    if (!copy.path.empty()) {
        editor.platform.dialogues.show({.title = "Just in case ...",
                                        .text = unsaved + "So I've put a copy of it here:\n\n    " + copy.path,
                                        .icon = BoxIcon::Information});
        return true;
    }
    const Answer answer = editor.platform.dialogues.show(
        {.title = "Hang on a minute ...",
         .text = unsaved + "I tried to put a copy of it into " + journalDirectory(editor) +
                 ", but that didn't work either: " + copy.reason + "\n\nShall I start the game and lose your text?",
         .icon = BoxIcon::Exclamation,
         .buttons = BoxButtons::YesNo,
         .secondButtonIsDefault = true});
    return answer == Answer::Yes;
}

/// Keeps a copy of a document that can't be saved. False: the game isn't to start.
bool saveDocuments(Editor& editor)
{
    for (const Side* side : modifiedSides(editor)) saveSide(editor, *side);
    for (const Side* side : modifiedSides(editor)) {
        if (!keepCopy(editor, *side)) return false;
    }
    return true;
}

Game gameAt(const Settings& settings, int index)
{
    const auto entry = static_cast<std::size_t>(index - 1);
    return {settings.GameName.at(entry), settings.GamePath.at(entry), settings.GameDIRPath.at(entry),
            settings.GameJF.at(entry)};
}

} // namespace

Games::Games(Editor& theEditor)
    : editor(theEditor), list{editor.shared.settings.GameArrayNum,
                              {&editor.shared.settings.GameName, &editor.shared.settings.GamePath,
                               &editor.shared.settings.GameDIRPath, &editor.shared.settings.GameJF},
                              editor.menus.mnuGameArray},
      form(editor, current)
{
}

void GetGames(Games& games)
{
    games.editor.shared.store.read(Access::GetGames, "MODULE GetGames");
    games.editor.menus.mnuGamesDownloadFirst.Checked = games.editor.shared.settings.GameDownloadOption == 1;
    AddmnuGamesArray(games);
}

void AddmnuGamesArray(Games& games)
{
    const Steps step(games.editor.shared.errors, "MODULE AddmnuGamesArray");
    step([&] { GamesRedim(games); });
    step([&] { showMenu(games.list); });
}

std::int16_t IsGameOnMenuAlready(Games& games, const std::string& name)
{
    const Steps step(games.editor.shared.errors, "MODULE IsGameOnMenuAlready");
    std::int16_t found = 0;
    step([&] { found = isOnMenu(games.list, name); });
    return found;
}

void UpdateGamesMenu(Games& games)
{
    const Steps step(games.editor.shared.errors, "MODULE UpdateGamesMenu");
    step([&] {
        const Game& game = games.current;
        games.editor.menus.mnuGames.Enabled = true;
        putOnTop(games.list, {game.name, game.command, game.workingDirectory, game.joystickFile});
    });
    SaveGames(games);
}

void SaveGames(Games& games) { games.editor.shared.store.write(Access::SaveGames, "MODULE SaveGames"); }

void GamesRedim(Games& games)
{
    const Steps step(games.editor.shared.errors, "MODULE GamesRedim");
    step([&] { resizeColumns(games.list); });
}

void mnuGameArray_Click(Games& games, int index)
{
    Editor& editor = games.editor;
    const Steps step(editor.shared.errors, "ED_mnuGameArray_Click");
    step([&] {
        const Game game = gameAt(editor.shared.settings, index);
        if (!saveDocuments(editor)) return;
        const std::vector<Side*> unsaved = modifiedSides(editor);
        // Cleared even when saving failed, since the program is about to end without asking.
        for (Side* side : {&editor.joystick, &editor.macro}) side->Changed = changed::saved;
        UpdateSavedIcon(editor);
        games.current = game;
        UpdateGamesMenu(games);
        games.LaunchGame(games.current);
        if (editor.Visible) markModified(editor, unsaved); // the game didn't start
    });
}

void mnuGamesAdd_Click(Games& games)
{
    const Steps step(games.editor.shared.errors, "ED_mnuGamesAdd_Click");
    step([&] {
        games.form.okPressed = 0;
        GAME_Form_Load(games.form);
        games.editor.platform.dialogues.showModal("EnterGameName");
        if (games.form.okPressed == 1) UpdateGamesMenu(games);
    });
}

void mnuGamesEdit_Click(Games& games) { showPreferencesPage(games.editor, preferencesPage::games); }

void mnuGamesDownloadFirst_Click(Games& games)
{
    Editor& editor = games.editor;
    MenuItem& item = editor.menus.mnuGamesDownloadFirst;
    item.Checked = !item.Checked;
    editor.shared.settings.GameDownloadOption = item.Checked ? 1 : 0;
    editor.shared.store.write(Access::mnuGamesDownloadFirst_Click, "mnuGamesDownloadFirst_Click");
}

} // namespace tarvex
