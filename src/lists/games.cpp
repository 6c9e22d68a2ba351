#include "lists/games.h"

#include "documents/files/file_save.h"
#include "documents/pair/document_status.h"
#include "documents/recovery/offer/recovery_offer.h"
#include "documents/window/preferences_page.h"

namespace tarvex {

namespace {

/// The marks go whatever became of the saving, since the program is about to end without asking.
void saveDocuments(Editor& editor)
{
    for (const Side* side : {&editor.joystick, &editor.macro}) {
        if (side->Changed == changed::modified) saveSide(editor, *side);
        if (side->Changed == changed::modified) putAside(editor, *side); // nobody will ask about it any more
    }
    for (Side* side : {&editor.joystick, &editor.macro}) side->Changed = changed::saved;
    UpdateSavedIcon(editor);
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
        saveDocuments(editor);
        games.current = game;
        UpdateGamesMenu(games);
        games.LaunchGame(games.current);
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
