#include "lists/lists.h"

#include "lists/custom_apps.h"
#include "shell/handler.h"

namespace tarvex {

namespace {

void wirePreviousFiles(PreviousFiles& files)
{
    Operations& operations = files.editor.operations;
    operations.GetPreviousFiles = on(files, GetPreviousFiles);
    // Opening a file and saving it do the same to the lists.
    const auto joystickFile = [&files](const std::string& path) {
        files.LatestJoystickFile = path;
        UpdateRecentJFMenuList(files);
    };
    const auto macroFile = [&files](const std::string& path) {
        files.LatestMacroFile = path;
        UpdateRecentMFMenuList(files);
    };
    operations.NoteLatestJoystickFile = joystickFile;
    operations.UpdateRecentJFMenuList = joystickFile;
    operations.NoteLatestMacroFile = macroFile;
    operations.UpdateRecentMFMenuList = macroFile;

    Menus& menus = files.editor.menus;
    menus.mnuJFArray.setHandler(onItem(files, mnuJFArray_Click));
    menus.mnuMFArray.setHandler(onItem(files, mnuMFArray_Click));
    menus.mnuPreviousClearAllJ.handler = on(files, mnuPreviousClearAllJ_Click);
    menus.mnuPreviousClearAllM.handler = on(files, mnuPreviousClearAllM_Click);
}

void wireFavourites(Favourites& favourites)
{
    favourites.editor.operations.GetFavourites = on(favourites, GetFavourites);
    Menus& menus = favourites.editor.menus;
    menus.mnuFavArray.setHandler(onItem(favourites, mnuFavArray_Click));
    menus.mnuFavouritesAddCurrent.handler = on(favourites, mnuFavouritesAddCurrent_Click);
    menus.mnuFavsEdit.handler = on(favourites, mnuFavsEdit_Click);
}

void wireGames(Games& games)
{
    games.editor.operations.GetGames = on(games, GetGames);
    Menus& menus = games.editor.menus;
    menus.mnuGameArray.setHandler(onItem(games, mnuGameArray_Click));
    menus.mnuGamesAdd.handler = on(games, mnuGamesAdd_Click);
    menus.mnuGamesEdit.handler = on(games, mnuGamesEdit_Click);
    menus.mnuGamesDownloadFirst.handler = on(games, mnuGamesDownloadFirst_Click);
}

} // namespace

Lists::Lists(Editor& editor) : previous(editor), favourites(editor), games(editor)
{
    wirePreviousFiles(previous);
    wireFavourites(favourites);
    wireGames(games);
    editor.operations.GetCustomApps = on(editor, GetCustomApps);
}

} // namespace tarvex
