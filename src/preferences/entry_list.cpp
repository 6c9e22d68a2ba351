#include "preferences/entry_list.h"

#include <algorithm>
#include <stdexcept>

namespace tarvex {

void showEntries(ListBox& box, const RecentList& list)
{
    const int chosen = box.ListIndex;
    const std::vector<SettingText>& texts = *list.columns.front();
    box.Items = std::vector<std::string>(texts.begin(), texts.end());
    box.ListIndex = std::min(chosen, static_cast<int>(box.Items.get().size()) - 1);
}

std::size_t chosenEntry(ListBox& box)
{
    if (box.Items.get().empty()) throw std::out_of_range("the list has no entries");
    if (box.ListIndex < 0) box.ListIndex = 0;
    return static_cast<std::size_t>(box.ListIndex.get());
}

void removeEntry(ListBox& box, const RecentList& list, std::size_t entry)
{
    for (std::vector<SettingText>* column : list.columns)
        column->erase(column->begin() + static_cast<std::ptrdiff_t>(entry));
    list.count = static_cast<std::int16_t>(list.columns.front()->size());
    showMenu(list);
    showEntries(box, list);
}

} // namespace tarvex
