#include "preferences/games_page.h"

#include "preferences/entry_list.h"

namespace tarvex {

namespace {

template <typename Work> void handle(GamesPage& page, std::string_view tag, Work work)
{
    const Steps step(page.games.editor.shared.errors, tag);
    step(work);
}

/// The boxes in the order of the list's columns.
std::array<TextBox*, 4> boxesOf(GamesPage& page) { return {&page.Text12, &page.Text11, &page.Text4, &page.Text13}; }

void enable(GamesPage& page, bool on)
{
    for (TextBox* box : boxesOf(page)) box->Enabled = on;
    page.Command12.Enabled = on;
    page.List3.Enabled = on;
}

/// The user wrote into the box of a column.
void boxChanged(GamesPage& page, std::size_t column)
{
    if (page.showing || page.List3.Items.get().empty()) return;
    handle(page, "PREFS GameText_Change", [&] {
        const std::size_t entry = chosenEntry(page.List3);
        page.games.list.columns.at(column)->at(entry) = boxesOf(page).at(column)->Text.get();
        if (column == 0) showEntries(page.List3, page.games.list);
    });
}

void fillBoxes(GamesPage& page, const std::array<std::string, 4>& texts)
{
    page.showing = true;
    const auto boxes = boxesOf(page);
    for (std::size_t column = 0; column < boxes.size(); ++column) boxes[column]->Text = texts[column];
    page.showing = false;
}

} // namespace

GamesPage::GamesPage(Games& theGames) : games(theGames)
{
    Command12.Caption = "Remove";
    Command12.handler = [this] { PREFS_Command12_Click(*this); };
    List3.Click = [this] { handle(*this, "PREFS List3_Click", [&] { UpdateGamesControls(*this); }); };
    const auto boxes = boxesOf(*this);
    for (std::size_t column = 0; column < boxes.size(); ++column)
        m_textChanged[column] = boxes[column]->Text.changed.connect([this, column] { boxChanged(*this, column); });
}

void loadGames(GamesPage& page)
{
    page.List3.ListIndex = -1;
    showEntries(page.List3, page.games.list);
    if (page.List3.Items.get().empty())
        DisableGamesControls(page);
    else
        UpdateGamesControls(page);
}

void UpdateGamesControls(GamesPage& page)
{
    const std::size_t entry = chosenEntry(page.List3);
    std::array<std::string, 4> texts;
    for (std::size_t column = 0; column < texts.size(); ++column)
        texts[column] = page.games.list.columns.at(column)->at(entry).whole();
    enable(page, true);
    fillBoxes(page, texts);
}

void DisableGamesControls(GamesPage& page)
{
    fillBoxes(page, {});
    enable(page, false);
}

void PREFS_Command12_Click(GamesPage& page)
{
    handle(page, "PREFS Command12_Click", [&] {
        removeEntry(page.List3, page.games.list, chosenEntry(page.List3));
        if (page.List3.Items.get().empty())
            DisableGamesControls(page);
        else
            UpdateGamesControls(page);
    });
}

} // namespace tarvex
