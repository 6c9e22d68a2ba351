#include "lists/favourites.h"

#include "documents/window/preferences_page.h"
#include "platform/dos_path.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

/// False: there is nothing to add yet, and the user knows why.
bool areSaved(Editor& editor)
{
    const auto refuse = [&](const char* title, const char* text) {
        editor.platform.dialogues.show({.title = title, .text = text, .icon = BoxIcon::Exclamation});
        return false;
    };
    const FileSystem& files = editor.platform.files;
    if (editor.joystick.Changed == changed::noText && editor.macro.Changed == changed::noText)
        return refuse("Nothing to add!", "Both files have no text!");
    if (!files.fileExists(editor.joystick.FilePath))
        return refuse("Your joystick file isn't saved",
                      "Please save the joystick file first before adding to Favourites");
    if (!files.fileExists(editor.macro.FilePath))
        return refuse("Your macro file isn't saved", "Please save the macro file first before adding to Favourites");
    return true;
}

} // namespace

Favourites::Favourites(Editor& theEditor)
    : editor(theEditor), list{editor.shared.settings.FavArrayNum,
                              {&editor.shared.settings.FavName, &editor.shared.settings.FavJFPath,
                               &editor.shared.settings.FavMFPath},
                              editor.menus.mnuFavArray},
      form(editor.shared.errors, current)
{
}

void GetFavourites(Favourites& favourites)
{
    favourites.editor.shared.store.read(Access::GetFavourites, "MODULE GetFavourites");
    AddmnuFavouritesArray(favourites);
}

void AddmnuFavouritesArray(Favourites& favourites)
{
    const Steps step(favourites.editor.shared.errors, "MODULE AddmnuFavouritesArray");
    step([&] { FavsRedim(favourites); });
    step([&] { showMenu(favourites.list); });
}

std::int16_t IsFavOnMenuAlready(Favourites& favourites, const std::string& name)
{
    const Steps step(favourites.editor.shared.errors, "MODULE IsFavOnMenuAlready");
    std::int16_t found = 0;
    step([&] { found = isOnMenu(favourites.list, name); });
    return found;
}

void UpdateFavouritesMenu(Favourites& favourites)
{
    const Steps step(favourites.editor.shared.errors, "MODULE UpdateFavouritesMenu");
    Favourite& current = favourites.current;
    step([&] {
        current.joystickPath = current.joystickPath.lower();
        current.macroPath = current.macroPath.lower();
        favourites.editor.menus.mnuFavourites.Enabled = true;
        putOnTop(favourites.list, {current.name, current.joystickPath, current.macroPath});
    });
    SaveFavourites(favourites);
}

void SaveFavourites(Favourites& favourites)
{
    favourites.editor.shared.store.write(Access::SaveFavourites, "MODULE SaveFavourites");
}

void FavsRedim(Favourites& favourites)
{
    const Steps step(favourites.editor.shared.errors, "MODULE FavsRedim");
    step([&] { resizeColumns(favourites.list); });
}

void OpenFavouriteFile(Favourites& favourites, const std::string& path)
{
    Editor& editor = favourites.editor;
    editor.OpeningWithoutAsking = 1;
    editor.OpeningPath = path;
    editor.OpeningName = fileNameOf(path);
    const std::string_view extension = Right(path, 3); // with regard to case: "X.M22" is opened as a joystick file
    if (extension == "m22" || extension == "mdf" || extension == "m50")
        editor.menus.MnuFileMacroLoad.Click();
    else
        editor.menus.mnuFileJoystickLoad.Click();
    editor.OpeningWithoutAsking = 0;
}

void mnuFavArray_Click(Favourites& favourites, int index)
{
    Editor& editor = favourites.editor;
    const Steps step(editor.shared.errors, "ED_mnuFavArray_Click");
    step([&] {
        const Settings& settings = editor.shared.settings;
        const auto entry = static_cast<std::size_t>(index - 1);
        favourites.current = {settings.FavName.at(entry), settings.FavJFPath.at(entry), settings.FavMFPath.at(entry)};
        OpenFavouriteFile(favourites, favourites.current.macroPath.whole());
        OpenFavouriteFile(favourites, favourites.current.joystickPath.whole());
        UpdateFavouritesMenu(favourites);
        if (settings.CheckIdentifyOK == 1) editor.operations.IdentifyMacrosUsed();
    });
}

void mnuFavouritesAddCurrent_Click(Favourites& favourites)
{
    Editor& editor = favourites.editor;
    const Steps step(editor.shared.errors, "ED_mnuFavouritesAddCurrent_Click");
    step([&] {
        if (!areSaved(editor)) return;
        favourites.current.joystickPath = editor.joystick.FilePath;
        favourites.current.macroPath = editor.macro.FilePath;
        FAV_Form_Load(favourites.form, proposedName(editor.joystick.FilePath));
        editor.platform.dialogues.showModal("EnterFavouritename");
        if (!favourites.current.name.empty()) UpdateFavouritesMenu(favourites);
    });
}

void mnuFavsEdit_Click(Favourites& favourites) { showPreferencesPage(favourites.editor, preferencesPage::favourites); }

std::string proposedName(std::string_view joystickPath)
{
    const std::string fileName = fileNameOf(joystickPath);
    constexpr std::size_t extension = 4; // with its dot
    const std::string_view name = utf8Left(fileName, std::max(utf8Length(fileName), extension) - extension);
    const std::string_view first = utf8Left(name, 1);
    return upperUtf8(first) + lowerUtf8(name.substr(first.size()));
}

} // namespace tarvex
