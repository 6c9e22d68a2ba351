#include "preferences/favourites_page.h"

#include "platform/windows1252.h"
#include "preferences/entry_list.h"

namespace tarvex {

namespace {

template <typename Work> void handle(FavouritesPage& page, std::string_view tag, Work work)
{
    const Steps step(page.favourites.editor.shared.errors, tag);
    step(work);
}

Settings& settingsOf(FavouritesPage& page) { return page.favourites.editor.shared.settings; }

bool isLoadedAtStart(FavouritesPage& page, const std::string& name)
{
    const Settings& settings = settingsOf(page);
    return settings.FavLoadOnStart == 1 && settings.FavNameToLoad == name;
}

void enable(FavouritesPage& page, bool on)
{
    for (TextBox* box : {&page.Text7, &page.Text8, &page.Text9}) box->Enabled = on;
    for (Button* button : {&page.Command13, &page.Command14}) button->Enabled = on;
    page.LoadAppCheckBox.Enabled = on;
    page.List2.Enabled = on;
}

} // namespace

FavouritesPage::FavouritesPage(Favourites& theFavourites) : favourites(theFavourites)
{
    LoadAppCheckBox.Caption = "Load this favourite when Tarvex starts";
    LoadAppCheckBox.Click = [this] { LoadAppCheckBox_Click(*this); };
    Command13.Caption = "Remove";
    Command13.handler = [this] { PREFS_Command13_Click(*this); };
    Command14.Caption = "Apply";
    Command14.handler = [this] { PREFS_Command14_Click(*this); };
    List2.Click = [this] { handle(*this, "PREFS List2_Click", [&] { UpdateFavouritesControls(*this); }); };
}

void loadFavourites(FavouritesPage& page)
{
    page.List2.ListIndex = -1;
    showEntries(page.List2, page.favourites.list);
    if (page.List2.Items.get().empty())
        DisableFavouritesControls(page);
    else
        UpdateFavouritesControls(page);
}

void UpdateFavouritesControls(FavouritesPage& page)
{
    const std::size_t entry = chosenEntry(page.List2);
    const Settings& settings = settingsOf(page);
    enable(page, true);
    page.Text7.Text = settings.FavName.at(entry).whole();
    page.Text8.Text = settings.FavJFPath.at(entry).whole();
    page.Text9.Text = settings.FavMFPath.at(entry).whole();
    page.LoadAppCheckBox.Value = isLoadedAtStart(page, settings.FavName.at(entry));
}

void DisableFavouritesControls(FavouritesPage& page)
{
    for (TextBox* box : {&page.Text7, &page.Text8, &page.Text9}) box->Text = "";
    page.LoadAppCheckBox.Value = false;
    enable(page, false);
}

void PREFS_Command13_Click(FavouritesPage& page)
{
    handle(page, "PREFS Command13_Click", [&] {
        Settings& settings = settingsOf(page);
        const std::size_t entry = chosenEntry(page.List2);
        if (isLoadedAtStart(page, settings.FavName.at(entry))) settings.FavLoadOnStart = 0;
        removeEntry(page.List2, page.favourites.list, entry);
        if (page.List2.Items.get().empty())
            DisableFavouritesControls(page);
        else
            UpdateFavouritesControls(page);
    });
}

void PREFS_Command14_Click(FavouritesPage& page)
{
    handle(page, "PREFS Command14_Click", [&] {
        Settings& settings = settingsOf(page);
        const std::size_t entry = chosenEntry(page.List2);
        if (isLoadedAtStart(page, settings.FavName.at(entry))) settings.FavNameToLoad = page.Text7.Text.get();
        settings.FavName.at(entry) = page.Text7.Text.get();
        settings.FavJFPath.at(entry) = lowerUtf8(page.Text8.Text.get());
        settings.FavMFPath.at(entry) = lowerUtf8(page.Text9.Text.get());
        showMenu(page.favourites.list);
        showEntries(page.List2, page.favourites.list);
        UpdateFavouritesControls(page);
    });
}

void LoadAppCheckBox_Click(FavouritesPage& page)
{
    handle(page, "PREFS LoadAppCheckBox_Click", [&] {
        Settings& settings = settingsOf(page);
        settings.FavLoadOnStart = page.LoadAppCheckBox.Value ? 1 : 0;
        if (page.LoadAppCheckBox.Value) settings.FavNameToLoad = settings.FavName.at(chosenEntry(page.List2));
    });
}

} // namespace tarvex
