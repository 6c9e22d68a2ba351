#include "lists/recent_list.h"

#include <algorithm>

namespace tarvex {

namespace {

/// Place, from 1, of the first entry if it has this first text, or else of the last one that has it; 0 when none has.
int placeOf(const RecentList& list, const SettingText& text)
{
    const std::vector<SettingText>& texts = *list.columns.front();
    if (!texts.empty() && texts.front().whole() == text.whole()) return 1;
    auto found =
        std::find_if(texts.rbegin(), texts.rend(), [&](const SettingText& one) { return one.whole() == text.whole(); });
    if (found == texts.rend() && isOnMenu(list, text) != 0) found = std::find(texts.rbegin(), texts.rend(), text);
    return static_cast<int>(texts.rend() - found);
}

/// Place, from 1, whose entry may go: a new one, or in a full list the last.
int placeForNew(const RecentList& list)
{
    if (list.count >= mostEntries) return mostEntries;
    ++list.count;
    resizeColumns(list);
    return list.count;
}

/// An entry has all of these texts.
bool stands(const RecentList& list, const std::vector<SettingText>& entry)
{
    for (std::size_t row = 0; row < static_cast<std::size_t>(list.count); ++row) {
        std::size_t column = 0;
        while (column < entry.size() && list.columns[column]->at(row).whole() == entry[column].whole()) ++column;
        if (column == entry.size()) return true;
    }
    return false;
}

} // namespace

void resizeColumns(const RecentList& list)
{
    list.count = std::max<std::int16_t>(list.count, 0);
    for (std::vector<SettingText>* column : list.columns) column->resize(static_cast<std::size_t>(list.count));
}

void showMenu(const RecentList& list)
{
    MenuArray& menu = list.menu;
    while (menu.UBound() > list.count) menu.Unload(menu.UBound());
    while (menu.UBound() < list.count) menu.Load(menu.UBound() + 1);
    menu[0].Visible = list.count == 0;
    const std::vector<SettingText>& texts = *list.columns.front();
    for (int i = 1; i <= list.count; ++i) {
        menu[i].Caption = texts[static_cast<std::size_t>(i - 1)];
        menu[i].Visible = true;
    }
}

std::int16_t isOnMenu(const RecentList& list, const std::string& caption)
{
    const int last = std::min<int>(list.count, list.menu.UBound());
    for (int i = 1; i <= last; ++i) {
        if (list.menu[i].Caption == caption) return -1;
    }
    return 0;
}

void putOnTop(const RecentList& list, const std::vector<SettingText>& entry)
{
    resizeColumns(list);
    int place = placeOf(list, entry.front());
    // Of two entries of one name the second was used; the texts of the first may stand nowhere else.
    if (place == 1 && stands(list, entry)) return showMenu(list);
    if (place == 0) place = placeForNew(list);
    for (std::size_t i = 0; i < list.columns.size(); ++i) {
        const auto first = list.columns[i]->begin();
        std::move_backward(first, first + place - 1, first + place);
        *first = entry[i];
    }
    showMenu(list);
}

} // namespace tarvex
